#pragma once

#include <array>
#include <filesystem>
#include <string>

#include "platform/observable.h"
#include "platform/settings_store.h"

namespace tarnel {

// The settings that apply to the whole program, each an observable value backed by one settings
// key. Read a value as `settings.pauseResumeOnWake()`, observe it with
// `settings.pauseResumeOnWake.subscribe(...)`, and change it only through its setter, which
// stores at once. Lives on the main loop.
class AppSettings {
public:
    // The sounds the notification tab offers, in its order.
    static constexpr std::array<const char*, 5> soundNames{"Glass", "Pop", "Purr", "Ping",
                                                           "Submarine"};

    // `autostartFile` is the desktop entry that starts Tarnel at login
    // (~/.config/autostart/tarnel.desktop in the application).
    AppSettings(SettingsStore& store, std::filesystem::path autostartFile);

    AppSettings(const AppSettings&) = delete;
    AppSettings& operator=(const AppSettings&) = delete;

    Observable<bool> launchAtLogin;
    Observable<bool> preventSleepDuringDownloads;
    Observable<bool> pauseResumeOnWake;
    Observable<bool> pauseOnHotspot;
    Observable<bool> pauseOnNoInternet;
    Observable<bool> diskSpaceWarningEnabled;
    Observable<int> diskSpaceThresholdGB;
    Observable<bool> notificationsEnabled;
    Observable<int> notifyMinFileCount;
    Observable<bool> groupNotifications;
    Observable<bool> notifyErrors;
    Observable<int> notifyErrorsAfterAttempts;
    Observable<bool> notifySchedulePauseResume;
    Observable<bool> playSoundOnDownload;
    Observable<std::string> soundName;
    Observable<std::string> preferredLanguage;

    void setLaunchAtLogin(bool value);
    void setPreventSleepDuringDownloads(bool value);
    void setPauseResumeOnWake(bool value);
    void setPauseOnHotspot(bool value);
    void setPauseOnNoInternet(bool value);
    void setDiskSpaceWarningEnabled(bool value);
    void setDiskSpaceThresholdGB(int value);
    void setNotificationsEnabled(bool value);
    void setNotifyMinFileCount(int value);
    void setGroupNotifications(bool value);
    void setNotifyErrors(bool value);
    void setNotifyErrorsAfterAttempts(int value);
    void setNotifySchedulePauseResume(bool value);
    void setPlaySoundOnDownload(bool value);
    void setSoundName(const std::string& value);
    // Also records the language list under "AppleLanguages" (removed for "system"), which the
    // next start reads to choose its translation.
    void setPreferredLanguage(const std::string& value);

    // What the general tab calls when its login toggle changes: writes the autostart entry for
    // true, removes it for false. A failure goes to standard error; the stored setting stays.
    void applyLaunchAtLogin(bool enabled);

    // The language the next start should use: the first entry of "AppleLanguages", or nothing
    // for the system's own.
    static std::string startupLanguage(const SettingsStore& store);

private:
    template <typename T>
    void assign(Observable<T>& property, const char* key, T value);

    SettingsStore& store_;
    std::filesystem::path autostartFile_;
};

}  // namespace tarnel
