#pragma once

#include <QButtonGroup>
#include <QWidget>

#include "records/app_settings.h"
#include "shell/bridge/settings_binding.h"

namespace tarnel {

// Startup, sleep, network, disk space and language: each control writes its setting at once.
class GeneralSettingsTab final : public QWidget {
public:
    explicit GeneralSettingsTab(AppSettings& settings);

    // The languages offered, by code, with their names as they stand in every language.
    static const std::vector<std::pair<const char*, const char*>>& languages();

private:
    Bindings bindings_;
};

}  // namespace tarnel
