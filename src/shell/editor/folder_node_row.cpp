#include "shell/editor/folder_node_row.h"

#include "shell/bridge/qt_text.h"
#include "shell/editor/editor_texts.h"
#include "shell/icons/symbol_icon.h"

namespace tarnel {

FolderNodeRow::FolderNodeRow(const RemoteFolderNode& node) : id_(node.id) {
    setText(0, qs(node.name));
    setIcon(0, symbolIcon("folder.fill"));
    setText(1, fileCountText(node.fileCount));
    setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
    setCheckState(0, Qt::Unchecked);
    setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    if (!node.children.empty()) setChildren(node.children);
}

void FolderNodeRow::setChildren(const std::vector<RemoteFolderNode>& children) {
    qDeleteAll(takeChildren());
    for (const auto& child : children) addChild(new FolderNodeRow(child));
    childrenLoaded_ = true;
    setChildIndicatorPolicy(children.empty() ? QTreeWidgetItem::DontShowIndicator
                                             : QTreeWidgetItem::ShowIndicator);
}

void FolderNodeRow::setSelected(bool on) {
    setCheckState(0, on ? Qt::Checked : Qt::Unchecked);
}

}  // namespace tarnel
