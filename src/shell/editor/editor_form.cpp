#include "shell/editor/editor_form.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QRegularExpressionValidator>

#include "shell/bridge/qt_text.h"
#include "shell/icons/symbol_icon.h"
#include "shell/settings/settings_form.h"

namespace tarnel {

TextStepper::TextStepper(std::function<QString(int)> format) : format_(std::move(format)) {
    lineEdit()->setReadOnly(true);
    setMaximumWidth(320);
}

EditorForm::EditorForm(ConnectionConfig& config, QVBoxLayout* column, std::function<void()> edited)
    : config_(config), column_(column), edited_(std::move(edited)) {}

QFormLayout* EditorForm::section(const QString& title) {
    auto* box = new QGroupBox(QString(title).replace(QLatin1Char('&'), QStringLiteral("&&")));
    current_ = new QFormLayout(box);
    current_->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    current_->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    column_->addWidget(box);
    return current_;
}

void EditorForm::row(const QString& label, QWidget* field) {
    if (label.isEmpty())
        current_->addRow(field);
    else
        current_->addRow(label, field);
    lastField_ = field;
}

QCheckBox* EditorForm::toggle(const char* label, bool ConnectionConfig::*field) {
    auto* box = new QCheckBox(ui(label));
    box->setObjectName(QString::fromUtf8(label));
    row({}, box);
    QObject::connect(box, &QCheckBox::toggled, box, [this, field](bool on) {
        config_.*field = on;
        edited();
    });
    onRefresh([this, box, field] {
        const QSignalBlocker quiet(box);
        box->setChecked(config_.*field);
    });
    return box;
}

QLineEdit* EditorForm::lineEdit(const char* label, const char* placeholder,
                                std::string ConnectionConfig::*field) {
    auto* edit = new QLineEdit;
    edit->setObjectName(QString::fromUtf8(label));
    if (placeholder) edit->setPlaceholderText(ui(placeholder));
    QObject::connect(edit, &QLineEdit::textEdited, edit, [this, field](const QString& value) {
        config_.*field = value.toStdString();
        edited();
    });
    onRefresh([this, edit, field] {
        const QString value = qs(config_.*field);
        if (edit->text() != value) edit->setText(value);
    });
    return edit;
}

QLineEdit* EditorForm::text(const char* label, const char* placeholder,
                            std::string ConnectionConfig::*field, Problem problem) {
    auto* edit = lineEdit(label, placeholder, field);
    row(ui(label), problem ? withProblem(edit, std::move(problem)) : edit);
    return edit;
}

QLineEdit* EditorForm::number(const char* label, int ConnectionConfig::*field, Problem problem) {
    auto* edit = new QLineEdit;
    edit->setObjectName(QString::fromUtf8(label));
    edit->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,6}")), edit));
    edit->setMaximumWidth(120);
    row(ui(label), withProblem(edit, std::move(problem)));
    QObject::connect(edit, &QLineEdit::textEdited, edit, [this, field](const QString& value) {
        config_.*field = value.toInt();
        edited();
    });
    onRefresh([this, edit, field] {
        // An emptied field stays empty while the value is 0, so the user can type anew.
        if (edit->text().isEmpty() && config_.*field == 0) return;
        if (edit->text().toInt() != config_.*field) edit->setText(QString::number(config_.*field));
    });
    return edit;
}

QWidget* EditorForm::withProblem(QWidget* field, Problem problem) {
    auto* holder = new QWidget;
    auto* line = new QHBoxLayout(holder);
    line->setContentsMargins(0, 0, 0, 0);
    // A field of limited width keeps it, with its sentence beside it.
    const bool limited = field->maximumWidth() < QWIDGETSIZE_MAX;
    line->addWidget(field, limited ? 0 : 1, limited ? Qt::AlignLeft : Qt::Alignment());
    auto* words = new QLabel;
    words->setTextFormat(Qt::PlainText);
    auto palette = words->palette();
    palette.setColor(QPalette::WindowText, QColor(0xc0, 0x30, 0x28));
    words->setPalette(palette);
    words->setObjectName(field->objectName() + QStringLiteral(" problem"));
    line->addWidget(words, limited ? 1 : 0);
    onRefresh([this, words, problem = std::move(problem)] {
        const auto why = problem(config_);
        words->setText(why.value_or(QString()));
        words->setVisible(why.has_value());
    });
    return holder;
}

QLabel* EditorForm::live(Text text, const QString& label) {
    auto* shown = new QLabel;
    shown->setTextFormat(Qt::PlainText);
    shown->setWordWrap(true);
    row(label, shown);
    onRefresh([this, shown, text = std::move(text)] { shown->setText(text(config_)); });
    return shown;
}

QLabel* EditorForm::note(const QString& text) {
    auto* shown = formNote(text);
    shown->setContentsMargins(0, 0, 0, 4);
    row({}, shown);
    return shown;
}

QWidget* EditorForm::warning(const char* icon, const QString& text, Condition when) {
    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* picture = new QLabel;
    picture->setPixmap(tintedPixmap(symbolIcon(icon), 16, QColor(0xe6, 0x8a, 0x00),
                                    line->devicePixelRatioF()));
    layout->addWidget(picture);
    auto* words = new QLabel(text);
    words->setWordWrap(true);
    layout->addWidget(words, 1);
    row({}, line);
    showWhen(std::move(when));
    return line;
}

void EditorForm::showWhen(Condition when) {
    QFormLayout* form = current_;
    QWidget* field = lastField_;
    onRefresh([this, form, field, when = std::move(when)] { form->setRowVisible(field, when(config_)); });
}

void EditorForm::onRefresh(std::function<void()> fn) {
    refreshers_.push_back(std::move(fn));
}

void EditorForm::refresh() {
    for (const auto& fn : refreshers_) fn();
}

void EditorForm::edited() {
    refresh();
    if (edited_) edited_();
}

}  // namespace tarnel
