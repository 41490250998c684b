#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tarnel {

// Replaces `file` by `contents` through a temporary file beside it and a rename, so that a crash
// leaves the old file or the new one, never a cut-short mix. Creates the folder, for its owner
// alone, if it is missing; a store makes its existing folder private once, when it starts.
// Returns false on any failure; the stores that call it drop that, as they never report one.
bool replaceFileAtomically(const std::filesystem::path& file, std::string_view contents);

// Writes all of `text` to `fd`, going on after interruptions; how many bytes it wrote, which is
// fewer than asked only when the write failed.
std::size_t writeAll(int fd, std::string_view text);

// The whole file, or nothing if it cannot be read.
std::optional<std::string> readWholeFile(const std::filesystem::path& file);

}  // namespace tarnel
