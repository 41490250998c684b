#include "shell/settings/notifications_settings_tab.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "platform/localized.h"
#include "shell/bridge/qt_text.h"
#include "shell/settings/settings_form.h"

namespace tarnel {

namespace {

// The stepper's number stands inside its sentence, whose words agree with it as it changes:
// "Only if 10 or more files"; in Polish "Po 1 nieudanej próbie", "Po 5 nieudanych próbach".
QSpinBox* stepper(const char* sentence, int minimum, int maximum) {
    auto* box = new QSpinBox;
    box->setRange(minimum, maximum);
    const auto agree = [box, sentence](int count) {
        const auto text = qs(localizedCount(sentence, count));
        const auto number = QString::number(count);
        const auto at = text.indexOf(number);
        if (at < 0) return;
        const auto before = text.left(at), after = text.mid(at + number.size());
        if (before != box->prefix()) box->setPrefix(before);
        if (after != box->suffix()) box->setSuffix(after);
    };
    QObject::connect(box, &QSpinBox::valueChanged, box, agree);
    agree(box->value());
    return box;
}

// Controls that show only while their section's first toggle is on, set in from its left.
QWidget* dependent(QVBoxLayout* section, QWidget* control) {
    auto* holder = new QWidget;
    auto* row = new QHBoxLayout(holder);
    row->setContentsMargins(24, 0, 0, 0);
    row->addWidget(control);
    row->addStretch();
    section->addWidget(holder);
    return holder;
}

}  // namespace

NotificationsSettingsTab::NotificationsSettingsTab(AppSettings& settings, SoundPlayer& sounds) {
    auto* form = new QVBoxLayout(this);
    form->setSpacing(12);
    auto toggle = [this](QVBoxLayout* into, const char* label, const Observable<bool>& value,
                         std::function<void(bool)> write) {
        formToggle(into, label, value, std::move(write), bindings_);
    };

    auto* downloads = formSection(form, ui("Download Notifications"));
    toggle(downloads, UI_TEXT("Notify when downloads complete"), settings.notificationsEnabled,
           [&settings](bool on) { settings.setNotificationsEnabled(on); });
    minFileCount_ = stepper(UI_TEXT("Only if %n or more files"), 1, 50);
    bindValue(minFileCount_, settings.notifyMinFileCount,
              [&settings](int n) { settings.setNotifyMinFileCount(n); }, bindings_);
    bindVisible(dependent(downloads, minFileCount_), settings.notificationsEnabled, true, bindings_);
    auto* group = new QCheckBox(ui("Group notifications (summary instead of file list)"));
    bindChecked(group, settings.groupNotifications,
                [&settings](bool on) { settings.setGroupNotifications(on); }, bindings_);
    bindVisible(dependent(downloads, group), settings.notificationsEnabled, true, bindings_);

    auto* errors = formSection(form, ui("Error Notifications"));
    toggle(errors, UI_TEXT("Notify on connection errors"), settings.notifyErrors,
           [&settings](bool on) { settings.setNotifyErrors(on); });
    errorAttempts_ = stepper(UI_TEXT("After %n consecutive failures"), 1, 10);
    bindValue(errorAttempts_, settings.notifyErrorsAfterAttempts,
              [&settings](int n) { settings.setNotifyErrorsAfterAttempts(n); }, bindings_);
    bindVisible(dependent(errors, errorAttempts_), settings.notifyErrors, true, bindings_);

    auto* sound = formSection(form, ui("Sound"));
    toggle(sound, UI_TEXT("Play sound on download"), settings.playSoundOnDownload,
           [&settings](bool on) { settings.setPlaySoundOnDownload(on); });
    auto* soundRow = new QWidget;
    auto* row = new QHBoxLayout(soundRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new QLabel(ui("Sound")));
    auto* picker = new QComboBox;
    for (const char* name : AppSettings::soundNames) picker->addItem(ui(name), QString::fromLatin1(name));
    bindChoice(picker, settings.soundName,
               [&settings](const std::string& name) { settings.setSoundName(name); }, bindings_);
    row->addWidget(picker);
    auto* preview = new QPushButton(ui("Preview"));
    connect(preview, &QPushButton::clicked, preview,
            [&settings, &sounds] { sounds.play(settings.soundName()); });
    row->addWidget(preview);
    bindVisible(dependent(sound, soundRow), settings.playSoundOnDownload, true, bindings_);

    auto* schedule = formSection(form, ui("Schedule Notifications"));
    toggle(schedule, UI_TEXT("Notify when connections pause/resume by schedule"),
           settings.notifySchedulePauseResume,
           [&settings](bool on) { settings.setNotifySchedulePauseResume(on); });
    form->addStretch();
}

}  // namespace tarnel
