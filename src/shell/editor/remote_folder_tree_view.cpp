#include "shell/editor/remote_folder_tree_view.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>

#include "shell/bridge/qt_text.h"
#include "shell/editor/editor_texts.h"

namespace tarnel {

RemoteFolderTreeView::RemoteFolderTreeView()
    : head_(new QLabel), selectAll_(new QPushButton), tree_(new QTreeWidget), state_(new QLabel) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* top = new QHBoxLayout;
    top->addWidget(head_, 1);
    selectAll_->setAutoDefault(false);
    top->addWidget(selectAll_);
    layout->addLayout(top);
    tree_->setColumnCount(2);
    tree_->setHeaderHidden(true);
    tree_->header()->setStretchLastSection(false);
    tree_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    tree_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    tree_->setMinimumHeight(200);
    tree_->setSelectionMode(QAbstractItemView::NoSelection);
    layout->addWidget(tree_);
    state_->setWordWrap(true);
    state_->setTextFormat(Qt::PlainText);
    layout->addWidget(state_);

    connect(tree_, &QTreeWidget::itemChanged, this, &RemoteFolderTreeView::rowChanged);
    connect(tree_, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) {
        auto* folder = static_cast<FolderNodeRow*>(item);
        if (!folder->childrenLoaded() && onExpand) onExpand(folder->id());
    });
    connect(selectAll_, &QPushButton::clicked, this, &RemoteFolderTreeView::selectAllOrNone);
    showSelection();
}

void RemoteFolderTreeView::setRoots(const std::vector<RemoteFolderNode>& roots) {
    const QSignalBlocker quiet(tree_);
    tree_->clear();
    for (const auto& node : roots) tree_->addTopLevelItem(new FolderNodeRow(node));
    browsed_ = true;
    error_.reset();
    showSelection();
}

void RemoteFolderTreeView::setChildren(const std::string& id,
                                       const std::vector<RemoteFolderNode>& children) {
    if (auto* parent = row(id)) {
        const QSignalBlocker quiet(tree_);
        parent->setChildren(children);
        showSelection();
    }
}

void RemoteFolderTreeView::setSelectedPaths(const std::vector<std::string>& paths) {
    selectedPaths_ = paths;
    showSelection();
}

void RemoteFolderTreeView::showBrowsing(bool browsing) {
    browsing_ = browsing;
    showSelection();
}

void RemoteFolderTreeView::showError(const std::optional<QString>& error) {
    error_ = error;
    showSelection();
}

FolderNodeRow* RemoteFolderTreeView::row(const std::string& id) const {
    for (auto* folder : rows())
        if (folder->id() == id) return folder;
    return nullptr;
}

std::vector<FolderNodeRow*> RemoteFolderTreeView::rows() const {
    std::vector<FolderNodeRow*> all;
    for (QTreeWidgetItemIterator it(tree_); *it; ++it) all.push_back(static_cast<FolderNodeRow*>(*it));
    return all;
}

void RemoteFolderTreeView::rowChanged(QTreeWidgetItem* item) {
    auto* folder = static_cast<FolderNodeRow*>(item);
    auto found = std::find(selectedPaths_.begin(), selectedPaths_.end(), folder->id());
    if (folder->isSelectedFolder() && found == selectedPaths_.end())
        selectedPaths_.push_back(folder->id());
    else if (!folder->isSelectedFolder() && found != selectedPaths_.end())
        selectedPaths_.erase(found);
    else
        return;
    showSelection();
    if (onSelectionChanged) onSelectionChanged(selectedPaths_);
}

void RemoteFolderTreeView::selectAllOrNone() {
    const auto all = rows();
    const bool everySelected = std::all_of(all.begin(), all.end(), [](auto* f) { return f->isSelectedFolder(); });
    if (everySelected) {
        selectedPaths_.clear();
    } else {
        for (auto* folder : all)
            if (std::find(selectedPaths_.begin(), selectedPaths_.end(), folder->id()) == selectedPaths_.end())
                selectedPaths_.push_back(folder->id());
    }
    showSelection();
    if (onSelectionChanged) onSelectionChanged(selectedPaths_);
}

void RemoteFolderTreeView::showSelection() {
    const auto all = rows();
    {
        const QSignalBlocker quiet(tree_);
        for (auto* folder : all)
            folder->setSelected(std::find(selectedPaths_.begin(), selectedPaths_.end(),
                                          folder->id()) != selectedPaths_.end());
    }
    head_->setVisible(!selectedPaths_.empty());
    head_->setText(foldersSelectedText(selectedPaths_.size()));
    const bool everySelected =
        !all.empty() && std::all_of(all.begin(), all.end(), [](auto* f) { return f->isSelectedFolder(); });
    selectAll_->setText(everySelected ? ui("Deselect All") : ui("Select All"));
    selectAll_->setVisible(!all.empty());
    tree_->setVisible(!all.empty());
    if (browsing_)
        state_->setText(ui("Listing folders..."));
    else if (error_)
        state_->setText(ui("Error: ") + *error_);
    else if (browsed_ && all.empty())
        state_->setText(ui("No subdirectories found"));
    else if (!browsed_)
        state_->setText(ui("Press \"Browse...\" to list the server's folders."));
    else
        state_->clear();
    state_->setVisible(!state_->text().isEmpty());
}

}  // namespace tarnel
