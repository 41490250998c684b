#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <filesystem>
#include <functional>
#include <vector>

#include "connections/routing_rule.h"
#include "shell/editor/path_chooser.h"

namespace tarnel {

// Edits one routing rule: what it matches, with a live preview over five sample names, where
// its files go, which tags they get, and whether it is on. "Save Rule" accepts the sheet.
class RoutingRuleEditSheet final : public QDialog {
public:
    RoutingRuleEditSheet(RoutingRule rule, ChoosePath choosePath, QWidget* parent);

    static const std::vector<const char*>& previewFiles();

    const RoutingRule& rule() const { return rule_; }
    // Whether the rule takes each preview name, as the marks show it.
    std::vector<bool> previewMarks() const;

    // A folder was chosen for the rule: its grant is recorded at once, as for every folder.
    std::function<void(const std::filesystem::path&, const RoutingRule&)> onRuleBookmarkSave;

    QComboBox* typePicker() const { return type_; }
    QLineEdit* valueField() const { return value_; }
    QPushButton* saveButton() const { return save_; }

private:
    void refresh();

    RoutingRule rule_;
    ChoosePath choosePath_;
    QComboBox* type_;
    QLineEdit* value_;
    std::vector<QLabel*> previewIcons_;
    QLabel* folder_;
    std::vector<QPushButton*> colors_;
    QLineEdit* tagName_;
    QCheckBox* enabled_;
    QPushButton* save_;
};

}  // namespace tarnel
