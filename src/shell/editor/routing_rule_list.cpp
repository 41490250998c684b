#include "shell/editor/routing_rule_list.h"

#include <QCheckBox>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "connections/routing.h"
#include "platform/localized.h"
#include "shell/bridge/qt_text.h"
#include "shell/editor/editor_form.h"
#include "shell/editor/editor_texts.h"
#include "shell/icons/symbol_icon.h"

namespace tarnel {

namespace {

// Drops move rules in the record; the list is then rebuilt from it rather than moved by Qt.
class RuleListWidget final : public QListWidget {
public:
    std::function<void(int from, int to)> onMove;

protected:
    void dropEvent(QDropEvent* event) override {
        const int from = currentRow();
        QModelIndex at = indexAt(event->position().toPoint());
        int to = at.isValid() ? at.row() : count() - 1;
        if (at.isValid() && dropIndicatorPosition() == QAbstractItemView::BelowItem && to < from) ++to;
        if (at.isValid() && dropIndicatorPosition() == QAbstractItemView::AboveItem && to > from) --to;
        event->setDropAction(Qt::IgnoreAction);
        event->accept();
        if (from >= 0 && to != from && onMove) onMove(from, to);
    }
};

QLabel* iconLabel(const char* name, const QColor& color, qreal ratio) {
    auto* label = new QLabel;
    label->setPixmap(tintedPixmap(symbolIcon(name), 16, color, ratio));
    return label;
}

}  // namespace

RoutingRuleList::RoutingRuleList(EditorForm& form, EditRule editRule)
    : form_(form), editRule_(std::move(editRule)), list_(new RuleListWidget), empty_(new QLabel) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    empty_->setText(ui("No rules — all files go to the main folder"));
    layout->addWidget(empty_);
    list_->setDragDropMode(QAbstractItemView::InternalMove);
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    static_cast<RuleListWidget*>(list_)->onMove = [this](int from, int to) { moveRule(from, to); };
    layout->addWidget(list_);
    auto* add = new QPushButton(symbolIcon("plus.circle"), ui("Add Rule"));
    add->setAutoDefault(false);
    auto* addRow = new QHBoxLayout;
    addRow->addWidget(add);
    addRow->addStretch();
    layout->addLayout(addRow);
    connect(add, &QPushButton::clicked, this, &RoutingRuleList::addRule);
    // Rows are rebuilt after the event that changed the rules, never inside a row's own signal.
    form_.onRefresh([this] {
        if (form_.config().routingRules == shown_ || rebuildQueued_) return;
        rebuildQueued_ = true;
        QMetaObject::invokeMethod(this, [this] { rebuild(); }, Qt::QueuedConnection);
    });
    rebuild();
}

void RoutingRuleList::moveRule(int from, int to) {
    auto& rules = form_.config().routingRules;
    if (from < 0 || to < 0 || from >= static_cast<int>(rules.size()) || to >= static_cast<int>(rules.size())) return;
    auto rule = rules[static_cast<std::size_t>(from)];
    rules.erase(rules.begin() + from);
    rules.insert(rules.begin() + to, std::move(rule));
    form_.edited();
}

void RoutingRuleList::addRule() {
    if (auto rule = editRule_(RoutingRule{})) {
        form_.config().routingRules.push_back(*rule);
        form_.edited();
    }
}

void RoutingRuleList::editRule(int index) {
    auto& rules = form_.config().routingRules;
    if (index < 0 || index >= static_cast<int>(rules.size())) return;
    if (auto rule = editRule_(rules[static_cast<std::size_t>(index)])) {
        form_.config().routingRules[static_cast<std::size_t>(index)] = *rule;
        form_.edited();
    }
}

void RoutingRuleList::removeRule(int index) {
    auto& rules = form_.config().routingRules;
    if (index < 0 || index >= static_cast<int>(rules.size())) return;
    rules.erase(rules.begin() + index);
    form_.edited();
}

std::vector<QString> RoutingRuleList::warnings() const {
    std::vector<QString> texts;
    for (std::size_t i = 0; i < shown_.size(); ++i)
        texts.push_back(shadowingRulePosition(shown_[i], i, shown_) ? qs(localized("dead.rule.warning"))
                                                                    : QString());
    return texts;
}

void RoutingRuleList::rebuild() {
    rebuildQueued_ = false;
    shown_ = form_.config().routingRules;
    list_->clear();
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        auto* item = new QListWidgetItem(list_);
        auto* row = makeRow(shown_[i], static_cast<int>(i), shown_);
        item->setSizeHint(row->sizeHint());
        list_->setItemWidget(item, row);
    }
    empty_->setVisible(shown_.empty());
    list_->setVisible(!shown_.empty());
    int height = 2 * list_->frameWidth();
    for (int i = 0; i < list_->count(); ++i) height += list_->sizeHintForRow(i);
    list_->setFixedHeight(height);
}

QWidget* RoutingRuleList::makeRow(const RoutingRule& rule, int index,
                                  const std::vector<RoutingRule>& rules) {
    const qreal ratio = devicePixelRatioF();
    auto* row = new QWidget;
    auto* outer = new QVBoxLayout(row);
    outer->setContentsMargins(4, 2, 4, 2);
    outer->setSpacing(0);
    auto* line = new QHBoxLayout;
    line->setSpacing(8);
    line->addWidget(iconLabel("line.3.horizontal", QColor(0x9a, 0x9a, 0x9e), ratio));
    auto* mark = new QLabel;
    mark->setFixedSize(10, 10);
    mark->setStyleSheet(QStringLiteral("background: %1; border-radius: 5px;")
                            .arg(tagDisplayColor(rule.tagColor).name()));
    line->addWidget(mark);
    auto* summary = new QLabel(qs(rule.displaySummary()));
    summary->setTextFormat(Qt::PlainText);
    line->addWidget(summary, 1);
    auto* folder = new QLabel(rule.destinationPath ? qs(*rule.destinationPath) : ui("Main folder"));
    folder->setTextFormat(Qt::PlainText);
    folder->setEnabled(false);
    line->addWidget(folder, 1);
    auto* enabled = new QCheckBox;
    enabled->setChecked(rule.isEnabled);
    enabled->setToolTip(ui("Rule enabled"));
    line->addWidget(enabled);
    auto* edit = new QToolButton;
    edit->setIcon(symbolIcon("pencil"));
    auto* remove = new QToolButton;
    remove->setIcon(symbolIcon("trash"));
    line->addWidget(edit);
    line->addWidget(remove);
    outer->addLayout(line);
    if (shadowingRulePosition(rule, static_cast<std::size_t>(index), rules)) {
        auto* warning = new QHBoxLayout;
        warning->setContentsMargins(22, 0, 0, 0);
        warning->addWidget(iconLabel("exclamationmark.triangle.fill", QColor(0xe6, 0x8a, 0x00), ratio));
        warning->addWidget(new QLabel(qs(localized("dead.rule.warning"))), 1);
        outer->addLayout(warning);
    }
    const Uuid id = rule.id;
    const auto indexOf = [this, id] {
        const auto& now = form_.config().routingRules;
        for (std::size_t i = 0; i < now.size(); ++i)
            if (now[i].id == id) return static_cast<int>(i);
        return -1;
    };
    connect(enabled, &QCheckBox::toggled, this, [this, indexOf](bool on) {
        const int i = indexOf();
        if (i < 0) return;
        form_.config().routingRules[static_cast<std::size_t>(i)].isEnabled = on;
        form_.edited();
    });
    connect(edit, &QToolButton::clicked, this, [this, indexOf] { editRule(indexOf()); });
    connect(remove, &QToolButton::clicked, this, [this, indexOf] { removeRule(indexOf()); });
    return row;
}

}  // namespace tarnel
