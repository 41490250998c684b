#include "records/app_settings.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iostream>
#include <system_error>

namespace tarnel {

namespace {

constexpr const char* languagesKey = "AppleLanguages";

bool readBool(const SettingsStore& store, const std::string& key, bool fallback) {
    return store.boolValue(key).value_or(fallback);
}

int readInt(const SettingsStore& store, const std::string& key, int fallback) {
    auto value = store.intValue(key);
    if (!value)
        return fallback;
    return static_cast<int>(std::clamp<std::int64_t>(*value, INT32_MIN, INT32_MAX));
}

std::string readString(const SettingsStore& store, const std::string& key,
                       const std::string& fallback) {
    return store.stringValue(key).value_or(fallback);
}

// Older versions kept one three-way choice; only its "preventSleep" meant keeping awake.
bool readPreventSleep(const SettingsStore& store) {
    if (store.contains("prevent_sleep_downloads"))
        return readBool(store, "prevent_sleep_downloads", false);
    return store.stringValue("sleep_behavior") == "preventSleep";
}

SettingValue toSetting(bool v) {
    return v;
}
SettingValue toSetting(int v) {
    return std::int64_t{v};
}
SettingValue toSetting(const std::string& v) {
    return v;
}

std::filesystem::path currentExecutable() {
    std::error_code ec;
    auto path = std::filesystem::read_symlink("/proc/self/exe", ec);
    return ec ? std::filesystem::path("tarnel") : path;
}

// Exec= wants the program quoted when it holds a blank or a quote character.
std::string desktopExec(const std::filesystem::path& program) {
    std::string text = program.string();
    if (text.find_first_of(" \t\"\\$`") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (char c : text) {
        if (c == '"' || c == '`' || c == '$' || c == '\\')
            quoted += '\\';
        quoted += c;
    }
    return quoted + "\"";
}

}  // namespace

AppSettings::AppSettings(SettingsStore& store, std::filesystem::path autostartFile)
    : launchAtLogin(readBool(store, "launch_at_login", false)),
      preventSleepDuringDownloads(readPreventSleep(store)),
      pauseResumeOnWake(readBool(store, "pause_resume_on_wake", true)),
      pauseOnHotspot(readBool(store, "pause_on_hotspot", false)),
      pauseOnNoInternet(readBool(store, "pause_on_no_internet", true)),
      diskSpaceWarningEnabled(readBool(store, "disk_space_warning", true)),
      diskSpaceThresholdGB(readInt(store, "disk_space_threshold_gb", 5)),
      notificationsEnabled(readBool(store, "notifications_enabled", false)),
      notifyMinFileCount(std::max(1, readInt(store, "notify_min_file_count", 10))),
      groupNotifications(readBool(store, "group_notifications", true)),
      notifyErrors(readBool(store, "notify_errors", true)),
      notifyErrorsAfterAttempts(readInt(store, "notify_errors_after", 3)),
      notifySchedulePauseResume(readBool(store, "notify_schedule", false)),
      playSoundOnDownload(readBool(store, "play_sound", true)),
      soundName(readString(store, "sound_name", "Glass")),
      preferredLanguage(readString(store, "preferred_language", "system")),
      store_(store),
      autostartFile_(std::move(autostartFile)) {}

template <typename T>
void AppSettings::assign(Observable<T>& property, const char* key, T value) {
    property.set(value);
    store_.setValue(key, toSetting(value));
}

void AppSettings::setLaunchAtLogin(bool v) {
    assign(launchAtLogin, "launch_at_login", v);
}
void AppSettings::setPreventSleepDuringDownloads(bool v) {
    assign(preventSleepDuringDownloads, "prevent_sleep_downloads", v);
}
void AppSettings::setPauseResumeOnWake(bool v) {
    assign(pauseResumeOnWake, "pause_resume_on_wake", v);
}
void AppSettings::setPauseOnHotspot(bool v) {
    assign(pauseOnHotspot, "pause_on_hotspot", v);
}
void AppSettings::setPauseOnNoInternet(bool v) {
    assign(pauseOnNoInternet, "pause_on_no_internet", v);
}
void AppSettings::setDiskSpaceWarningEnabled(bool v) {
    assign(diskSpaceWarningEnabled, "disk_space_warning", v);
}
void AppSettings::setDiskSpaceThresholdGB(int v) {
    assign(diskSpaceThresholdGB, "disk_space_threshold_gb", v);
}
// Desktop notifications need no permission here, so turning them on asks nothing.
void AppSettings::setNotificationsEnabled(bool v) {
    assign(notificationsEnabled, "notifications_enabled", v);
}
void AppSettings::setNotifyMinFileCount(int v) {
    assign(notifyMinFileCount, "notify_min_file_count", v);
}
void AppSettings::setGroupNotifications(bool v) {
    assign(groupNotifications, "group_notifications", v);
}
void AppSettings::setNotifyErrors(bool v) {
    assign(notifyErrors, "notify_errors", v);
}
void AppSettings::setNotifyErrorsAfterAttempts(int v) {
    assign(notifyErrorsAfterAttempts, "notify_errors_after", v);
}
void AppSettings::setNotifySchedulePauseResume(bool v) {
    assign(notifySchedulePauseResume, "notify_schedule", v);
}
void AppSettings::setPlaySoundOnDownload(bool v) {
    assign(playSoundOnDownload, "play_sound", v);
}
void AppSettings::setSoundName(const std::string& v) {
    assign(soundName, "sound_name", v);
}
void AppSettings::setPreferredLanguage(const std::string& v) {
    assign(preferredLanguage, "preferred_language", v);
    if (v == "system")
        store_.remove(languagesKey);
    else
        store_.setValue(languagesKey, std::vector<std::string>{v});
}

void AppSettings::applyLaunchAtLogin(bool enabled) {
    std::error_code ec;
    if (enabled) {
        std::filesystem::create_directories(autostartFile_.parent_path(), ec);
        auto temporary = autostartFile_;
        temporary += ".tmp";
        std::ofstream out(temporary, std::ios::trunc);
        out << "[Desktop Entry]\nType=Application\nName=Tarnel\n"
            << "Exec=" << desktopExec(currentExecutable()) << "\n"
            << "X-GNOME-Autostart-enabled=true\n";
        out.close();
        if (!out)
            ec = std::error_code(errno != 0 ? errno : EIO, std::generic_category());
        if (!ec)
            std::filesystem::rename(temporary, autostartFile_, ec);
        std::error_code ignored;
        if (ec)
            std::filesystem::remove(temporary, ignored);
    } else {
        std::filesystem::remove(autostartFile_, ec);  // no entry is no error
    }
    if (ec) {
        std::cerr << "[LaunchAtLogin] Failed to " << (enabled ? "register" : "unregister")
                  << " login item: " << ec.message() << " (" << autostartFile_.string() << ")"
                  << std::endl;
    }
}

std::string AppSettings::startupLanguage(const SettingsStore& store) {
    auto languages = store.stringListValue(languagesKey);
    return languages && !languages->empty() ? languages->front() : std::string();
}

}  // namespace tarnel
