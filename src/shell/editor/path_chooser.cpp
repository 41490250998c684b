#include "shell/editor/path_chooser.h"

#include <QDir>
#include <QFileDialog>

#include "shell/bridge/qt_text.h"

namespace tarnel {

ChoosePath filePanels(QWidget* parent) {
    return [parent](PathPanel panel) -> std::optional<std::filesystem::path> {
        QFileDialog dialog(parent);
        dialog.setDirectory(QDir::home());
        if (panel == PathPanel::folder) {
            dialog.setFileMode(QFileDialog::Directory);
            dialog.setOption(QFileDialog::ShowDirsOnly);
        } else {
            dialog.setFileMode(QFileDialog::ExistingFile);
            dialog.setFilter(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
            dialog.setDirectory(QDir::home().filePath(QStringLiteral(".ssh")));
        }
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
        return std::filesystem::path(dialog.selectedFiles().front().toStdString());
    };
}

}  // namespace tarnel
