#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "connections/routing_rule.h"

namespace tarnel {

class EditorForm;

// The connection's routing rules in order: drag to reorder, a colour mark, what the rule takes,
// where it sends it, an enabled box, edit and delete, and a warning on a rule that an earlier
// one always catches first. "Add Rule" and "pencil" ask `editRule` for the rule to save.
class RoutingRuleList final : public QWidget {
public:
    // Opens the sheet over `rule`; the finished rule, or nothing when cancelled.
    using EditRule = std::function<std::optional<RoutingRule>(const RoutingRule& rule)>;

    RoutingRuleList(EditorForm& form, EditRule editRule);

    // Moves the rule at `from` to stand at `to`, as a drag does.
    void moveRule(int from, int to);
    void addRule();
    void editRule(int index);
    void removeRule(int index);

    QListWidget* list() const { return list_; }
    // The dead-rule warning shown on each row, empty where there is none.
    std::vector<QString> warnings() const;

private:
    void rebuild();
    QWidget* makeRow(const RoutingRule& rule, int index, const std::vector<RoutingRule>& rules);

    EditorForm& form_;
    EditRule editRule_;
    QListWidget* list_;
    QLabel* empty_;
    std::vector<RoutingRule> shown_;
    bool rebuildQueued_ = false;
};

}  // namespace tarnel
