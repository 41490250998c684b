#pragma once

#include <QSpinBox>
#include <QWidget>

#include "platform/sound_player.h"
#include "records/app_settings.h"
#include "shell/bridge/settings_binding.h"

namespace tarnel {

// Download, error and schedule notifications and the download sound; each control writes its
// setting at once, and "Preview" plays the chosen sound.
class NotificationsSettingsTab final : public QWidget {
public:
    NotificationsSettingsTab(AppSettings& settings, SoundPlayer& sounds);

    QSpinBox* minFileCountStepper() const { return minFileCount_; }
    QSpinBox* errorAttemptsStepper() const { return errorAttempts_; }

private:
    Bindings bindings_;
    QSpinBox* minFileCount_ = nullptr;
    QSpinBox* errorAttempts_ = nullptr;
};

}  // namespace tarnel
