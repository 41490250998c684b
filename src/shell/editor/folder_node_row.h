#pragma once

#include <QTreeWidgetItem>

#include "shell/editor/remote_folders.h"

namespace tarnel {

// One folder of the tree: its box, the folder icon, its name and "n files". Its children show
// below it once they have been listed; until then it offers a disclosure that asks for them.
class FolderNodeRow final : public QTreeWidgetItem {
public:
    explicit FolderNodeRow(const RemoteFolderNode& node);

    const std::string& id() const { return id_; }
    bool childrenLoaded() const { return childrenLoaded_; }
    void setChildren(const std::vector<RemoteFolderNode>& children);
    void setSelected(bool on);
    bool isSelectedFolder() const { return checkState(0) == Qt::Checked; }

private:
    std::string id_;
    bool childrenLoaded_ = false;
};

}  // namespace tarnel
