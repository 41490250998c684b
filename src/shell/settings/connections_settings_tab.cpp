#include "shell/settings/connections_settings_tab.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "shell/bridge/qt_text.h"
#include "shell/editor/connection_edit_view.h"
#include "shell/editor/editor_texts.h"
#include "shell/icons/symbol_icon.h"

namespace tarnel {

namespace {

constexpr int idRole = Qt::UserRole;
constexpr int nameRole = Qt::UserRole + 1;
constexpr int protocolRole = Qt::UserRole + 2;

// An entry's name over its protocol word, in the selection's text colour while it is selected,
// where the grey protocol word would be unreadable on the highlight.
void paintEntry(QListWidget* list, QListWidgetItem* item, bool selected) {
    auto* label = item ? qobject_cast<QLabel*>(list->itemWidget(item)) : nullptr;
    if (!label) return;
    const auto& palette = list->palette();
    const QColor primary = selected ? palette.color(QPalette::HighlightedText)
                                    : palette.color(QPalette::Text);
    const QColor secondary = selected ? primary : QColor(0x6e, 0x6e, 0x73);
    label->setText(QStringLiteral("<b style=\"color:%1\">%2</b><br><span style=\"color:%3\">%4</span>")
                       .arg(primary.name(), item->data(nameRole).toString().toHtmlEscaped(),
                            secondary.name(), item->data(protocolRole).toString()));
}

bool askBeforeDelete(QWidget* parent, const QString& name) {
    QMessageBox box(QMessageBox::Warning, ui("Delete this connection?"),
                    ui("Delete '") + name + ui("'?"), QMessageBox::NoButton, parent);
    box.setInformativeText(ui("This action cannot be undone."));
    auto* remove = box.addButton(ui("Delete"), QMessageBox::DestructiveRole);
    box.addButton(ui("Cancel"), QMessageBox::RejectRole);
    box.exec();
    return box.clickedButton() == remove;
}

ConnectionsSettingsTab::EditsChoice askAboutUnappliedEdits(QWidget* parent, const QString& name) {
    using Choice = ConnectionsSettingsTab::EditsChoice;
    QMessageBox box(QMessageBox::Question, ui("Apply your changes?"),
                    ui("The connection '") + name + ui("' has changes that were not applied."),
                    QMessageBox::NoButton, parent);
    box.setInformativeText(ui("Apply them now, or discard them?"));
    auto* apply = box.addButton(ui("Apply"), QMessageBox::AcceptRole);
    auto* discard = box.addButton(ui("Discard"), QMessageBox::DestructiveRole);
    box.addButton(ui("Cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(apply);
    box.exec();
    if (box.clickedButton() == apply) return Choice::apply;
    return box.clickedButton() == discard ? Choice::discard : Choice::cancel;
}

QToolButton* smallButton(const char* icon) {
    auto* button = new QToolButton;
    button->setIcon(symbolIcon(icon));
    button->setFixedSize(28, 28);
    return button;
}

}  // namespace

ConnectionsSettingsTab::ConnectionsSettingsTab(ConnectionsManager& manager,
                                               std::optional<Uuid> initialConnectionId)
    : manager_(manager),
      list_(new QListWidget),
      plus_(smallButton("plus")),
      minus_(smallButton("minus")),
      detail_(new QLabel),
      columns_(new QHBoxLayout(this)) {
    confirmDelete = [this](const QString& name) { return askBeforeDelete(this, name); };
    askAboutEdits = [this](const QString& name) { return askAboutUnappliedEdits(this, name); };
    auto* columns = columns_;
    auto* left = new QVBoxLayout;
    list_->setFixedWidth(200);
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    left->addWidget(list_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(2);
    buttons->addWidget(plus_);
    buttons->addWidget(minus_);
    buttons->addStretch();
    left->addLayout(buttons);
    columns->addLayout(left);
    detail_->setAlignment(Qt::AlignCenter);
    detail_->setWordWrap(true);
    detail_->setTextFormat(Qt::PlainText);
    columns->addWidget(detail_, 1);

    connect(plus_, &QToolButton::clicked, this, [this] {
        if (!settleEdits()) return;
        const auto id = addNewConnection(manager_);
        autoFocusNewConnection_ = true;
        select(id);
    });
    connect(minus_, &QToolButton::clicked, this, &ConnectionsSettingsTab::deleteSelected);
    connect(list_, &QListWidget::currentItemChanged, this,
            [this](QListWidgetItem* item, QListWidgetItem* previous) {
        paintEntry(list_, previous, false);
        paintEntry(list_, item, true);
        if (!item) return;
        if (const auto id = Uuid::parse(item->data(idRole).toString().toStdString()))
            selectionClicked(*id);
    });
    connect(list_, &QListWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        if (!list_->itemAt(at)) return;
        QMenu menu;
        connect(menu.addAction(ui("Delete")), &QAction::triggered, this,
                &ConnectionsSettingsTab::deleteSelected);
        menu.exec(list_->viewport()->mapToGlobal(at));
    });

    selectedConnectionId_ = initialConnectionId;
    listWatch_ = manager_.connections().subscribe([this](const auto&) { rebuildList(); });
}

ConnectionsSettingsTab::~ConnectionsSettingsTab() = default;

Uuid ConnectionsSettingsTab::addNewConnection(ConnectionsManager& manager) {
    ConnectionConfig config;
    config.enabled = false;
    manager.addConnection(config);
    return config.id;
}

bool ConnectionsSettingsTab::select(const std::optional<Uuid>& id) {
    if (id != selectedConnectionId_ && !settleEdits()) return false;
    selectedConnectionId_ = id;
    rebuildList();
    return true;
}

void ConnectionsSettingsTab::selectionClicked(const Uuid& id) {
    if (id == selectedConnectionId_) return;
    if (settleEdits()) {
        selectedConnectionId_ = id;
        showDetail();
        return;
    }
    // Back to the connection still being edited, without rebuilding the list under its signal.
    const QSignalBlocker quiet(list_);
    for (int row = 0; row < list_->count(); ++row) {
        auto* item = list_->item(row);
        const bool edited = item->data(idRole).toString() == qs(selectedConnectionId_->toString());
        paintEntry(list_, item, edited);
        if (edited) list_->setCurrentItem(item);
    }
}

bool ConnectionsSettingsTab::settleEdits() {
    if (!editor_ || !editor_->hasUnappliedChanges()) return true;
    // The question runs an event loop: the editor may be replaced or the list changed meanwhile.
    const QPointer<ConnectionEditView> editor = editor_;
    const auto choice = askAboutEdits(qs(editor_->config().name));
    if (!editor || editor != editor_) return true;
    switch (choice) {
        case EditsChoice::apply:
            if (!canApply(editor->config())) return false;  // the editor says what is missing
            editor->apply();
            return true;
        case EditsChoice::discard:
            // A fresh editor over the stored record; the window may stay open.
            delete std::exchange(editor_, nullptr);
            showDetail();
            return true;
        case EditsChoice::cancel:
            return false;
    }
    return false;
}

void ConnectionsSettingsTab::rebuildList() {
    const QSignalBlocker quiet(list_);
    list_->clear();
    bool selectionFound = false;
    for (const auto& config : manager_.connections()()) {
        auto* item = new QListWidgetItem;
        item->setData(idRole, qs(config.id.toString()));
        list_->addItem(item);
        item->setData(nameRole, qs(config.name));
        item->setData(protocolRole, QString::fromLatin1(protocolName(config.transferProtocol)));
        auto* label = new QLabel;
        label->setContentsMargins(6, 4, 6, 4);
        list_->setItemWidget(item, label);
        const bool selected = selectedConnectionId_ == config.id;
        paintEntry(list_, item, selected);
        item->setSizeHint(label->sizeHint());
        if (selected) {
            list_->setCurrentItem(item);
            selectionFound = true;
        }
    }
    if (!selectionFound) selectedConnectionId_.reset();
    showDetail();
}

void ConnectionsSettingsTab::showDetail() {
    const auto& list = manager_.connections()();
    const auto found = std::find_if(list.begin(), list.end(), [this](const ConnectionConfig& c) {
        return selectedConnectionId_ == c.id;
    });
    minus_->setEnabled(found != list.end());
    if (found == list.end()) {
        delete std::exchange(editor_, nullptr);
        detail_->setText(ui("Select a connection or add a new one."));
        detail_->show();
        return;
    }
    // The editor is made anew only when the selection changes: an apply, which changes the
    // list, keeps it as it stands.
    if (editor_ && editor_->config().id == found->id) {
        editor_->storedRecordChanged(*found);
        return;
    }
    delete std::exchange(editor_, nullptr);
    detail_->clear();
    detail_->hide();
    editor_ = new ConnectionEditView(manager_, *found, std::exchange(autoFocusNewConnection_, false));
    columns_->addWidget(editor_, 1);
}

void ConnectionsSettingsTab::deleteSelected() {
    if (!selectedConnectionId_) return;
    // The question runs an event loop, in which the list may be replaced: only the id is kept.
    const Uuid id = *selectedConnectionId_;
    const auto named = [this](const Uuid& id) -> const ConnectionConfig* {
        const auto& list = manager_.connections()();
        const auto found =
            std::find_if(list.begin(), list.end(), [&](const auto& c) { return c.id == id; });
        return found == list.end() ? nullptr : &*found;
    };
    const auto* found = named(id);
    if (!found || !confirmDelete(qs(found->name)) || !named(id)) return;
    // The editor goes with the connection, and with it what was not applied.
    delete std::exchange(editor_, nullptr);
    manager_.removeConnection(id);
    const auto& rest = manager_.connections()();
    selectedConnectionId_ = rest.empty() ? std::nullopt : std::optional<Uuid>(rest.front().id);
    rebuildList();
}

}  // namespace tarnel
