#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QWidget>
#include <map>
#include <string>
#include <vector>

#include "connections/connection_config.h"
#include "connections/filter_checkboxes.h"

namespace tarnel {

class EditorForm;

// The connection's two filter strings as a preset picker and one group of boxes per category,
// each group headed by a three-state box that sums it up. Every change goes through the filter
// rules to the strings of the working copy.
class ExtensionFilterView final : public QWidget {
public:
    explicit ExtensionFilterView(EditorForm& form);

    // The preset the picker shows, "custom" once the strings match none.
    const std::string& selectedPreset() const { return selectedPreset_; }
    // A sector preset wrote new strings: show the preset that matches them.
    void showMatchingPreset();

    QComboBox* presetPicker() const { return presets_; }
    QCheckBox* categoryBox(const std::string& categoryId) const { return heads_.at(categoryId); }
    QCheckBox* entryBox(const std::string& entry) const { return entries_.at(entry); }

private:
    FilterStrings strings() const;
    void write(const FilterStrings& strings, bool presetFollows);
    void refresh();

    EditorForm& form_;
    std::string selectedPreset_;
    QComboBox* presets_;
    QPushButton* reset_;
    QComboBox* unspecified_;
    std::map<std::string, QCheckBox*> heads_;
    std::map<std::string, QCheckBox*> entries_;
};

}  // namespace tarnel
