#include "shell/editor/extension_filter_view.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "platform/localized.h"
#include "shell/bridge/qt_text.h"
#include "shell/editor/editor_form.h"
#include "shell/editor/editor_texts.h"

namespace tarnel {

namespace {

constexpr int columns = 8;
constexpr int columnWidth = 75;

Qt::CheckState shown(CheckboxState state) {
    switch (state) {
        case CheckboxState::checked:
            return Qt::Checked;
        case CheckboxState::indeterminate:
            return Qt::PartiallyChecked;
        case CheckboxState::unchecked:
            break;
    }
    return Qt::Unchecked;
}

}  // namespace

ExtensionFilterView::ExtensionFilterView(EditorForm& form)
    : form_(form), presets_(new QComboBox), reset_(new QPushButton), unspecified_(new QComboBox) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    auto* presetRow = new QHBoxLayout;
    presetRow->addWidget(new QLabel(ui("Extension preset")));
    for (const auto& preset : filterPresets()) presets_->addItem(qs(preset.name), qs(preset.id));
    presets_->setObjectName(QStringLiteral("Extension preset"));
    presetRow->addWidget(presets_, 1);
    reset_->setText(qs(localized("ext.reset.button")));
    reset_->setAutoDefault(false);
    presetRow->addWidget(reset_);
    layout->addLayout(presetRow);

    auto* heading = new QLabel(ui("Filters"));
    auto font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    layout->addWidget(heading);

    for (const auto& category : extensionCategories()) {
        auto* head = new QCheckBox(qs(category.name));
        head->setTristate(true);
        heads_[category.id] = head;
        layout->addWidget(head);
        // A click toggles the whole group by the filter rules, not by the box's own cycle.
        connect(head, &QCheckBox::clicked, this, [this, &category] {
            FilterStrings next = strings();
            toggleCategory(next, selectedPreset_, category);
            write(next, true);
        });
        auto* grid = new QGridLayout;
        grid->setContentsMargins(24, 0, 0, 6);
        grid->setHorizontalSpacing(0);
        int i = 0;
        for (const auto& entry : category.extensions) {
            auto* box = new QCheckBox(qs(entry));
            box->setMinimumWidth(columnWidth);
            entries_[entry] = box;
            grid->addWidget(box, i / columns, i % columns);
            ++i;
            connect(box, &QCheckBox::clicked, this, [this, &category, &entry] {
                FilterStrings next = strings();
                toggleEntry(next, selectedPreset_, category, entry);
                write(next, true);
            });
        }
        grid->setColumnStretch(columns, 1);
        layout->addLayout(grid);
    }

    auto* unspecifiedRow = new QHBoxLayout;
    unspecifiedRow->addWidget(new QLabel(qs(localized("ext.unspecified.label"))));
    unspecified_->addItem(qs(localized("ext.unspecified.download")));
    unspecified_->addItem(qs(localized("ext.unspecified.ignore")));
    unspecifiedRow->addWidget(unspecified_, 1);
    layout->addLayout(unspecifiedRow);

    connect(presets_, &QComboBox::activated, this, [this](int index) {
        const auto& preset = filterPresets()[static_cast<std::size_t>(index)];
        selectedPreset_ = preset.id;
        FilterStrings next = strings();
        applyFilterPreset(next, preset);
        write(next, false);
    });
    connect(reset_, &QPushButton::clicked, this, [this] {
        FilterStrings next = strings();
        applyFilterPreset(next, filterPreset(selectedPreset_));
        write(next, false);
    });
    connect(unspecified_, &QComboBox::activated, this, [this](int index) {
        form_.config().downloadUnspecifiedExtensions = index == 0;
        form_.edited();
    });

    showMatchingPreset();
    form_.onRefresh([this] { refresh(); });
}

void ExtensionFilterView::showMatchingPreset() {
    const auto& c = form_.config();
    selectedPreset_ = matchingPreset(c.extensionFilter, c.excludedExtensions).id;
    refresh();
}

FilterStrings ExtensionFilterView::strings() const {
    return {form_.config().extensionFilter, form_.config().excludedExtensions};
}

void ExtensionFilterView::write(const FilterStrings& strings, bool presetFollows) {
    form_.config().extensionFilter = strings.included;
    form_.config().excludedExtensions = strings.excluded;
    if (presetFollows) selectedPreset_ = matchingPreset(strings.included, strings.excluded).id;
    form_.edited();
}

void ExtensionFilterView::refresh() {
    const FilterStrings now = strings();
    const QSignalBlocker quietPresets(presets_);
    presets_->setCurrentIndex(presets_->findData(qs(selectedPreset_)));
    reset_->setVisible(isPresetModified(now, filterPreset(selectedPreset_)));
    for (const auto& category : extensionCategories()) {
        auto* head = heads_.at(category.id);
        const QSignalBlocker quiet(head);
        head->setCheckState(shown(categoryState(now, selectedPreset_, category)));
        for (const auto& entry : category.extensions) {
            auto* box = entries_.at(entry);
            const QSignalBlocker quietBox(box);
            box->setChecked(isEntryOn(now, selectedPreset_, category, entry));
        }
    }
    const QSignalBlocker quietUnspecified(unspecified_);
    unspecified_->setCurrentIndex(form_.config().downloadUnspecifiedExtensions ? 0 : 1);
}

}  // namespace tarnel
