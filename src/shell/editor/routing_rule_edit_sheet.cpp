#include "shell/editor/routing_rule_edit_sheet.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "connections/finder_tags.h"
#include "shell/bridge/qt_text.h"
#include "shell/editor/editor_texts.h"
#include "shell/icons/symbol_icon.h"

namespace tarnel {

namespace {

constexpr std::array matchTypes = {RuleMatchType::allFiles, RuleMatchType::fileType,
                                   RuleMatchType::nameContains, RuleMatchType::nameStartsWith,
                                   RuleMatchType::customPattern};

constexpr std::array<std::optional<FinderTagColor>, 8> tagColors = {
    std::nullopt,         FinderTagColor::red,    FinderTagColor::orange, FinderTagColor::yellow,
    FinderTagColor::green, FinderTagColor::blue,  FinderTagColor::purple, FinderTagColor::gray};

QString placeholder(RuleMatchType type) {
    switch (type) {
        case RuleMatchType::fileType:
            return ui("jpg, pdf, raw, cr3");
        case RuleMatchType::nameContains:
            return ui("invoice");
        case RuleMatchType::nameStartsWith:
            return ui("STOCK_");
        case RuleMatchType::customPattern:
            return ui("*.2024.*");
        case RuleMatchType::allFiles:
            break;
    }
    return {};
}

QGroupBox* group(QVBoxLayout* into, const char* title) {
    auto* box = new QGroupBox(ui(title));
    into->addWidget(box);
    return box;
}

QString colorButtonStyle(const QColor& color, bool chosen) {
    return QStringLiteral("QPushButton { background: %1; border-radius: 10px; border: %2; }")
        .arg(color.name(), chosen ? QStringLiteral("2px solid #1d1d1f") : QStringLiteral("1px solid #c7c7cc"));
}

}  // namespace

const std::vector<const char*>& RoutingRuleEditSheet::previewFiles() {
    static const std::vector<const char*> names = {"IMG_0042.jpg", "invoice_2024.pdf",
                                                   "STOCK_20241201.csv", "backup.zip",
                                                   "report.docx"};
    return names;
}

RoutingRuleEditSheet::RoutingRuleEditSheet(RoutingRule rule, ChoosePath choosePath, QWidget* parent)
    : QDialog(parent),
      rule_(std::move(rule)),
      choosePath_(std::move(choosePath)),
      type_(new QComboBox),
      value_(new QLineEdit),
      folder_(new QLabel),
      tagName_(new QLineEdit),
      enabled_(new QCheckBox(ui("Rule enabled"))),
      save_(new QPushButton(ui("Save Rule"))) {
    setWindowTitle(ui("Routing Rule"));
    setFixedWidth(420);
    auto* layout = new QVBoxLayout(this);

    auto* match = new QFormLayout(group(layout, UI_TEXT("Match")));
    for (auto type : matchTypes) type_->addItem(qs(title(type)));
    match->addRow(ui("Type"), type_);
    match->addRow(value_);
    connect(type_, &QComboBox::activated, this, [this](int index) {
        rule_.matchType = matchTypes[static_cast<std::size_t>(index)];
        refresh();
    });
    connect(value_, &QLineEdit::textEdited, this, [this](const QString& text) {
        rule_.matchValue = text.toStdString();
        refresh();
    });

    auto* preview = new QVBoxLayout(group(layout, "Preview"));
    for (const char* name : previewFiles()) {
        auto* line = new QHBoxLayout;
        auto* icon = new QLabel;
        icon->setFixedSize(16, 16);
        previewIcons_.push_back(icon);
        line->addWidget(icon);
        line->addWidget(new QLabel(QString::fromLatin1(name)), 1);
        preview->addLayout(line);
    }

    auto* destination = new QHBoxLayout(group(layout, UI_TEXT("Destination Folder")));
    folder_->setTextFormat(Qt::PlainText);
    destination->addWidget(folder_, 1);
    auto* clear = new QPushButton(ui("Clear"));
    auto* choose = new QPushButton(ui("Choose..."));
    destination->addWidget(clear);
    destination->addWidget(choose);
    connect(clear, &QPushButton::clicked, this, [this] {
        // The grant stays stored; with no folder in the rule it is never used.
        rule_.destinationPath.reset();
        refresh();
    });
    connect(choose, &QPushButton::clicked, this, [this] {
        if (auto path = choosePath_(PathPanel::folder)) {
            rule_.destinationPath = path->string();
            if (onRuleBookmarkSave) onRuleBookmarkSave(*path, rule_);
            refresh();
        }
    });

    auto* tags = new QFormLayout(group(layout, UI_TEXT("Tags")));
    auto* colorRow = new QHBoxLayout;
    for (const auto color : tagColors) {
        auto* button = new QPushButton;
        button->setFixedSize(20, 20);
        button->setToolTip(color ? qs(colorTagName(*color)) : ui("None"));
        colors_.push_back(button);
        colorRow->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, color] {
            rule_.tagColor = color;
            refresh();
        });
    }
    colorRow->addStretch();
    tags->addRow(ui("Color"), colorRow);
    tagName_->setPlaceholderText(ui("Optional tag name"));
    tags->addRow(ui("Text tag"), tagName_);
    connect(tagName_, &QLineEdit::textEdited, this, [this](const QString& text) {
        rule_.tagName = text.isEmpty() ? std::nullopt : std::optional(text.toStdString());
    });

    layout->addWidget(enabled_);
    connect(enabled_, &QCheckBox::toggled, this, [this](bool on) { rule_.isEnabled = on; });

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    auto* cancel = new QPushButton(ui("Cancel"));
    buttons->addWidget(cancel);
    buttons->addWidget(save_);
    layout->addLayout(buttons);
    for (auto* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(save_, &QPushButton::clicked, this, &QDialog::accept);

    value_->setText(qs(rule_.matchValue));
    tagName_->setText(qs(rule_.tagName.value_or("")));
    enabled_->setChecked(rule_.isEnabled);
    refresh();
}

std::vector<bool> RoutingRuleEditSheet::previewMarks() const {
    std::vector<bool> marks;
    for (const char* name : previewFiles()) marks.push_back(rule_.matches(name));
    return marks;
}

void RoutingRuleEditSheet::refresh() {
    for (std::size_t i = 0; i < matchTypes.size(); ++i)
        if (matchTypes[i] == rule_.matchType) type_->setCurrentIndex(static_cast<int>(i));
    value_->setVisible(rule_.matchType != RuleMatchType::allFiles);
    value_->setPlaceholderText(placeholder(rule_.matchType));
    const auto marks = previewMarks();
    for (std::size_t i = 0; i < marks.size(); ++i)
        previewIcons_[i]->setPixmap(
            marks[i] ? tintedPixmap(symbolIcon("checkmark.circle.fill"), 16, QColor(0x28, 0xa7, 0x45),
                                    devicePixelRatioF())
                     : tintedPixmap(symbolIcon("circle"), 16, QColor(0x9a, 0x9a, 0x9e),
                                    devicePixelRatioF()));
    folder_->setText(rule_.destinationPath ? qs(*rule_.destinationPath) : ui("Same as main folder"));
    for (std::size_t i = 0; i < colors_.size(); ++i)
        colors_[i]->setStyleSheet(colorButtonStyle(tagDisplayColor(tagColors[i]),
                                                   rule_.tagColor == tagColors[i]));
}

}  // namespace tarnel
