#pragma once

#include <QCheckBox>
#include <QCoreApplication>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "connections/connection_config.h"

namespace tarnel {

// Picker entries from pairs of an English text and a value, their texts translated.
template <typename T, typename Values>
std::vector<std::pair<QString, T>> translatedEntries(const Values& values) {
    std::vector<std::pair<QString, T>> out;
    for (const auto& [text, value] : values)
        out.emplace_back(QCoreApplication::translate("tarnel", text), value);
    return out;
}

// A stepper whose text is made by `format` ("Stability checks: 3", "8:00", "1.0 MB"); it is
// stepped, never typed into.
class TextStepper final : public QSpinBox {
public:
    explicit TextStepper(std::function<QString(int)> format);

protected:
    QString textFromValue(int value) const override { return format_(value); }
    int valueFromText(const QString&) const override { return value(); }
    QValidator::State validate(QString&, int&) const override { return QValidator::Acceptable; }

private:
    std::function<QString(int)> format_;
};

// Builds the editor's sections over the working copy. Each control writes its field at once
// and reports the edit; after every edit all controls, conditions and live texts are read back
// from the copy, so a change that moves other fields (the protocol's port, a sector preset)
// shows everywhere. Every control is named after its label, which is how tests find it.
class EditorForm {
public:
    using Condition = std::function<bool(const ConnectionConfig&)>;
    using Text = std::function<QString(const ConnectionConfig&)>;

    EditorForm(ConnectionConfig& config, QVBoxLayout* column, std::function<void()> edited);

    ConnectionConfig& config() { return config_; }

    // Starts a titled section; the rows below go into it.
    QFormLayout* section(const QString& title);
    QFormLayout* current() const { return current_; }

    QCheckBox* toggle(const char* label, bool ConnectionConfig::*field);
    using Problem = std::function<std::optional<QString>(const ConnectionConfig&)>;

    QLineEdit* text(const char* label, const char* placeholder, std::string ConnectionConfig::*field,
                    Problem problem = {});
    // A field bound like text(), for a row that the caller lays out.
    QLineEdit* lineEdit(const char* label, const char* placeholder, std::string ConnectionConfig::*field);
    // Digits only; what cannot be used is said by `problem`, the value is kept as typed.
    QLineEdit* number(const char* label, int ConnectionConfig::*field, Problem problem);
    // Steps an integer field (an int, or the 64-bit size that stays within an int's range).
    template <typename T>
    TextStepper* stepper(const char* label, T ConnectionConfig::*field, int min, int max,
                         std::function<QString(int)> format, int step = 1);
    // `then` runs after the field is written, before the edit is reported (the protocol's port).
    template <typename T>
    QComboBox* picker(const char* label, const std::vector<std::pair<QString, T>>& entries,
                      T ConnectionConfig::*field, std::function<void(ConnectionConfig&)> then = {});
    // `field` in a row beside the sentence that says why its value cannot be used, if it can't.
    QWidget* withProblem(QWidget* field, Problem problem);
    // A row of text that follows the copy.
    QLabel* live(Text text, const QString& label = {});
    // A grey note under the last control.
    QLabel* note(const QString& text);
    // The warning line with its icon; shown only while `when` holds.
    QWidget* warning(const char* icon, const QString& text, Condition when);
    // An arbitrary row of the current section.
    void row(const QString& label, QWidget* field);

    // The row added last is shown only while `when` holds.
    void showWhen(Condition when);
    // Runs after every edit and at the start, to bring a control or text up to date.
    void onRefresh(std::function<void()> fn);
    void refresh();
    // To be called by controls made outside the form once they have written the copy.
    void edited();

private:
    ConnectionConfig& config_;
    QVBoxLayout* column_;
    QFormLayout* current_ = nullptr;
    QWidget* lastField_ = nullptr;  // the widget of the row added last
    std::function<void()> edited_;
    std::vector<std::function<void()>> refreshers_;
};

template <typename T>
QComboBox* EditorForm::picker(const char* label, const std::vector<std::pair<QString, T>>& entries,
                              T ConnectionConfig::*field,
                              std::function<void(ConnectionConfig&)> then) {
    auto* box = new QComboBox;
    for (const auto& [text, value] : entries) box->addItem(text);
    row(QCoreApplication::translate("tarnel", label), box);
    box->setObjectName(QString::fromUtf8(label));
    QObject::connect(box, &QComboBox::activated, box, [this, entries, field, then](int index) {
        if (index < 0 || index >= static_cast<int>(entries.size())) return;
        config_.*field = entries[static_cast<std::size_t>(index)].second;
        if (then) then(config_);
        edited();
    });
    onRefresh([this, box, entries, field] {
        const QSignalBlocker quiet(box);
        int found = -1;
        for (std::size_t i = 0; i < entries.size(); ++i)
            if (entries[i].second == config_.*field) found = static_cast<int>(i);
        // A value the list does not offer (a sector's own interval) stays, shown as it is.
        while (box->count() > static_cast<int>(entries.size())) box->removeItem(box->count() - 1);
        if constexpr (std::is_arithmetic_v<T>) {
            if (found < 0) {
                box->addItem(QString::number(static_cast<double>(config_.*field)));
                found = box->count() - 1;
            }
        }
        box->setCurrentIndex(found);
    });
    return box;
}

template <typename T>
TextStepper* EditorForm::stepper(const char* label, T ConnectionConfig::*field, int min, int max,
                                 std::function<QString(int)> format, int step) {
    auto* spin = new TextStepper(std::move(format));
    spin->setObjectName(QString::fromUtf8(label));
    spin->setRange(min, max);
    spin->setSingleStep(step);
    row({}, spin);
    QObject::connect(spin, &QSpinBox::valueChanged, spin, [this, field](int value) {
        config_.*field = value;
        edited();
    });
    onRefresh([this, spin, field] {
        const QSignalBlocker quiet(spin);
        spin->setValue(static_cast<int>(config_.*field));
    });
    return spin;
}

}  // namespace tarnel
