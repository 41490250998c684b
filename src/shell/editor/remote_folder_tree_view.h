#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "shell/editor/folder_node_row.h"

namespace tarnel {

// The server's folders with check marks. A box selects its own folder only, never the ones
// below it. The head line counts the selection; "Select All" takes every folder listed so far.
class RemoteFolderTreeView final : public QWidget {
public:
    RemoteFolderTreeView();

    // A browse's result replaces the tree; an empty one shows the zero state.
    void setRoots(const std::vector<RemoteFolderNode>& roots);
    // Children listed on demand, under the folder `id`.
    void setChildren(const std::string& id, const std::vector<RemoteFolderNode>& children);
    void setSelectedPaths(const std::vector<std::string>& paths);
    const std::vector<std::string>& selectedPaths() const { return selectedPaths_; }
    // "Listing..." while a browse runs; a failure keeps the tree and says "Error: " and why.
    void showBrowsing(bool browsing);
    void showError(const std::optional<QString>& error);

    // The user changed the selection.
    std::function<void(const std::vector<std::string>&)> onSelectionChanged;
    // A folder whose children were never listed was opened.
    std::function<void(const std::string& id)> onExpand;

    FolderNodeRow* row(const std::string& id) const;
    QTreeWidget* tree() const { return tree_; }
    QPushButton* selectAllButton() const { return selectAll_; }
    QString headText() const { return head_->text(); }
    QString stateText() const { return state_->text(); }

private:
    void showSelection();
    void rowChanged(QTreeWidgetItem* item);
    void selectAllOrNone();
    std::vector<FolderNodeRow*> rows() const;

    QLabel* head_;
    QPushButton* selectAll_;
    QTreeWidget* tree_;
    QLabel* state_;
    std::vector<std::string> selectedPaths_;
    bool browsed_ = false;
    bool browsing_ = false;
    std::optional<QString> error_;
};

}  // namespace tarnel
