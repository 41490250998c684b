#pragma once

#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>

namespace tarnel {

enum class PathPanel { folder, sshKey };

// Asks the user for a path; nothing when the panel is cancelled. Tests answer in its place.
using ChoosePath = std::function<std::optional<std::filesystem::path>(PathPanel panel)>;

// The desktop's own panels: folders only, with a button to make one; files with hidden ones
// shown, for the SSH key.
ChoosePath filePanels(QWidget* parent);

}  // namespace tarnel
