#pragma once

#include <QVBoxLayout>
#include <QWidget>
#include <string>
#include <vector>

namespace tarnel {

class EditorForm;

// With custom folders per remote folder: one row per selected remote folder, with the local
// folder its files go to and a button that clears it.
class FolderMappingsView final : public QWidget {
public:
    explicit FolderMappingsView(EditorForm& form);

private:
    void rebuild();

    EditorForm& form_;
    QVBoxLayout* rows_;
    std::vector<std::string> shown_;
};

}  // namespace tarnel
