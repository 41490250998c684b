#include "shell/editor/folder_mappings_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "shell/bridge/qt_text.h"
#include "shell/editor/editor_form.h"
#include "shell/icons/symbol_icon.h"
#include "shell/popover/popover_widgets.h"

namespace tarnel {

FolderMappingsView::FolderMappingsView(EditorForm& form) : form_(form), rows_(new QVBoxLayout(this)) {
    rows_->setContentsMargins(0, 0, 0, 0);
    form_.onRefresh([this] {
        if (form_.config().selectedRemotePaths != shown_) rebuild();
    });
}

void FolderMappingsView::rebuild() {
    shown_ = form_.config().selectedRemotePaths;
    clearLayout(rows_);
    for (const auto& path : shown_) {
        auto* row = new QWidget;
        auto* line = new QHBoxLayout(row);
        line->setContentsMargins(0, 0, 0, 0);
        auto* icon = new QLabel;
        icon->setPixmap(symbolIcon("folder.fill").pixmap(16, 16));
        line->addWidget(icon);
        auto* remote = new QLabel(qs(path));
        remote->setTextFormat(Qt::PlainText);
        line->addWidget(remote, 1);
        auto* mapped = new QLineEdit;
        const auto& mappings = form_.config().customFolderMappings;
        if (auto found = mappings.find(path); found != mappings.end()) mapped->setText(qs(found->second));
        line->addWidget(mapped, 2);
        auto* clear = new QToolButton;
        clear->setIcon(symbolIcon("xmark.circle"));
        line->addWidget(clear);
        rows_->addWidget(row);
        const auto write = [this, path](const QString& text) {
            auto& all = form_.config().customFolderMappings;
            if (text.isEmpty())
                all.erase(path);
            else
                all[path] = text.toStdString();
            form_.edited();
        };
        connect(mapped, &QLineEdit::textEdited, this, write);
        connect(clear, &QToolButton::clicked, this, [mapped, write] {
            mapped->clear();
            write({});
        });
    }
}

}  // namespace tarnel
