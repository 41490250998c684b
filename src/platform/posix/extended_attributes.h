#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tarnel {

// Extended attributes of a file, following symbolic links.

// The attribute's bytes; nothing when the file has no such attribute or it cannot be read.
std::optional<std::string> readExtendedAttribute(const std::filesystem::path& path,
                                                 const std::string& name);

// Sets the attribute, replacing any value; false (errno set) when the file system refuses.
bool writeExtendedAttribute(const std::filesystem::path& path, const std::string& name,
                            std::string_view value);

}  // namespace tarnel
