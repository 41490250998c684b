#pragma once

#include <set>
#include <string>
#include <string_view>

namespace tarnel {

// Filter lists are comma-separated entries as typed: extensions or whole file names, no wildcards.

// The entries as the download decision sees them: trimmed, lower-cased, one leading dot
// dropped, empty ones left out. ".JPG" and "jpg" are the same entry.
std::set<std::string> parseExtensionList(std::string_view list);

// The entries as preset detection sees them: the same but with a leading dot kept, so ".jpg"
// and "jpg" differ.
std::set<std::string> parseFilterTokens(std::string_view list);

}  // namespace tarnel
