#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QToolButton>
#include <QWidget>
#include <functional>
#include <optional>

#include "fleet/connections_manager.h"

namespace tarnel {

class ConnectionEditView;

// The list of connections at the left with "plus" and "minus" under it, and at the right what
// the selected one is (or a word to select one).
class ConnectionsSettingsTab final : public QWidget {
public:
    ConnectionsSettingsTab(ConnectionsManager& manager, std::optional<Uuid> initialConnectionId);
    ~ConnectionsSettingsTab() override;

    // A new record with its defaults, disabled until the user enables it, added to the list.
    static Uuid addNewConnection(ConnectionsManager& manager);

    std::optional<Uuid> selectedConnectionId() const { return selectedConnectionId_; }
    // Shows another connection once the editor's unapplied changes are settled; false when
    // the user chose to go on editing.
    bool select(const std::optional<Uuid>& id);
    // Asks what becomes of the editor's unapplied changes before it goes; true when it may go.
    bool settleEdits();

    // Asks before a delete; true deletes. Tests answer in place of the user.
    std::function<bool(const QString& name)> confirmDelete;
    enum class EditsChoice { apply, discard, cancel };
    // Asks whether the unapplied changes of connection `name` are applied or discarded.
    std::function<EditsChoice(const QString& name)> askAboutEdits;

    QToolButton* plusButton() const { return plus_; }
    QToolButton* minusButton() const { return minus_; }
    QListWidget* list() const { return list_; }
    QString detailText() const { return detail_->text(); }
    // The editor of the selected connection; none while nothing is selected.
    ConnectionEditView* editor() const { return editor_; }

private:
    void rebuildList();
    void showDetail();
    void deleteSelected();
    void selectionClicked(const Uuid& id);

    ConnectionsManager& manager_;
    std::optional<Uuid> selectedConnectionId_;
    QListWidget* list_;
    QToolButton* plus_;
    QToolButton* minus_;
    QLabel* detail_;
    QHBoxLayout* columns_;
    ConnectionEditView* editor_ = nullptr;
    bool autoFocusNewConnection_ = false;
    Subscription listWatch_;
};

}  // namespace tarnel
