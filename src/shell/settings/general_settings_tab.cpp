#include "shell/settings/general_settings_tab.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>

#include "shell/bridge/qt_text.h"
#include "shell/settings/settings_form.h"

namespace tarnel {

const std::vector<std::pair<const char*, const char*>>& GeneralSettingsTab::languages() {
    static const std::vector<std::pair<const char*, const char*>> list{
        {"system", UI_TEXT("System default")}, {"en", "English"},   {"es", "Español"},
        {"ca", "Català"},             {"fr", "Français"},  {"de", "Deutsch"},
        {"pt-PT", "Português"},       {"ja", "日本語"},     {"zh-Hans", "中文"},
        {"it", "Italiano"},           {"ko", "한국어"},     {"nl", "Nederlands"},
        {"tr", "Türkçe"},             {"pl", "Polski"}};
    return list;
}

GeneralSettingsTab::GeneralSettingsTab(AppSettings& settings) {
    auto* form = new QVBoxLayout(this);
    form->setSpacing(12);
    auto toggle = [this](QVBoxLayout* into, const char* label, const Observable<bool>& value,
                         std::function<void(bool)> write) {
        formToggle(into, label, value, std::move(write), bindings_);
    };
    auto noteWhileOn = [this](QVBoxLayout* into, const char* text, const Observable<bool>& value) {
        auto* note = formNote(ui(text));
        into->addWidget(note);  // in its place first, so that showing it opens no window
        bindVisible(note, value, true, bindings_);
    };

    auto* startup = formSection(form, ui("Startup"));
    toggle(startup, UI_TEXT("Launch Tarnel when you log in"), settings.launchAtLogin, [&settings](bool on) {
        settings.setLaunchAtLogin(on);
        settings.applyLaunchAtLogin(on);
    });

    auto* sleep = formSection(form, ui("Sleep Behavior"));
    toggle(sleep, UI_TEXT("Prevent sleep during downloads"), settings.preventSleepDuringDownloads,
           [&settings](bool on) { settings.setPreventSleepDuringDownloads(on); });
    noteWhileOn(sleep,
                UI_TEXT("Sleep is only prevented while files are actively downloading. Normal sleep "
                        "resumes when idle."),
                settings.preventSleepDuringDownloads);
    toggle(sleep, UI_TEXT("Pause and resume on wake"), settings.pauseResumeOnWake,
           [&settings](bool on) { settings.setPauseResumeOnWake(on); });
    noteWhileOn(sleep,
                UI_TEXT("If the computer sleeps anyway (battery, lid close), transfers will pause "
                        "and resume automatically on wake."),
                settings.pauseResumeOnWake);

    auto* network = formSection(form, ui("Network"));
    toggle(network, UI_TEXT("Pause when on mobile hotspot"), settings.pauseOnHotspot,
           [&settings](bool on) { settings.setPauseOnHotspot(on); });
    toggle(network, UI_TEXT("Pause when internet is unavailable"), settings.pauseOnNoInternet,
           [&settings](bool on) { settings.setPauseOnNoInternet(on); });

    auto* disk = formSection(form, ui("Disk Space"));
    toggle(disk, UI_TEXT("Warn and pause if disk space is low"), settings.diskSpaceWarningEnabled,
           [&settings](bool on) { settings.setDiskSpaceWarningEnabled(on); });
    auto* threshold = new QWidget;
    auto* thresholdRow = new QHBoxLayout(threshold);
    thresholdRow->setContentsMargins(24, 0, 0, 0);
    thresholdRow->setSpacing(0);
    thresholdRow->addWidget(new QLabel(ui("Minimum free space")));
    thresholdRow->addSpacing(12);
    auto* segments = new QButtonGroup(threshold);
    for (int gb : {1, 5, 10, 20}) {
        auto* segment = new QPushButton(QString::number(gb) + ui(" GB"));
        segment->setCheckable(true);
        segments->addButton(segment, gb);
        thresholdRow->addWidget(segment);
    }
    thresholdRow->addStretch();
    bindings_.push_back(settings.diskSpaceThresholdGB.subscribe([segments](int gb) {
        if (auto* segment = segments->button(gb)) segment->setChecked(true);
    }));
    connect(segments, &QButtonGroup::idClicked, threshold,
            [&settings](int gb) { settings.setDiskSpaceThresholdGB(gb); });
    disk->addWidget(threshold);
    bindVisible(threshold, settings.diskSpaceWarningEnabled, true, bindings_);

    auto* language = formSection(form, ui("Language"));
    auto* languageRow = new QHBoxLayout;
    languageRow->addWidget(new QLabel(ui("Language")));
    auto* picker = new QComboBox;
    for (const auto& [code, name] : languages())
        picker->addItem(code == std::string("system") ? ui(name) : QString::fromUtf8(name),
                        QString::fromLatin1(code));
    bindChoice(picker, settings.preferredLanguage,
               [&settings](const std::string& code) { settings.setPreferredLanguage(code); }, bindings_);
    languageRow->addWidget(picker);
    languageRow->addStretch();
    language->addLayout(languageRow);
    auto* restartNote = formNote(ui("Restart Tarnel to apply the language change."));
    restartNote->setContentsMargins(0, 0, 0, 0);
    language->addWidget(restartNote);
    bindings_.push_back(settings.preferredLanguage.subscribe(
        [restartNote](const std::string& code) { restartNote->setVisible(code != "system"); }));
    form->addStretch();
}

}  // namespace tarnel
