#pragma once

#include <QSettings>
#include <filesystem>

#include "platform/settings_store.h"

namespace tarnel {

// Settings in an INI file (~/.config/Tarnel/Tarnel.conf by default). QSettings replaces the
// file through a temporary file and a rename, so a crash never leaves it half written, and it
// writes once per turn of the event loop however many keys changed in it (a file that arrives
// changes several), and when the store is destroyed.
class QtSettingsStore final : public SettingsStore {
public:
    explicit QtSettingsStore(const std::filesystem::path& file);

    std::optional<SettingValue> value(const std::string& key) const override;
    void setValue(const std::string& key, const SettingValue& value) override;
    void remove(const std::string& key) override;
    // Writes pending changes now: for an exit that skips destructors.
    void flush();

private:
    mutable QSettings settings_;
};

}  // namespace tarnel
