#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "connections/routing_rule.h"

namespace tarnel {

// Tags on placed files, in the freedesktop attribute "user.xdg.tags" (comma-separated names,
// what the desktop's file manager shows). A colour label has no attribute of its own here: it
// becomes the colour's English name as a tag.

inline constexpr const char* tagsAttribute = "user.xdg.tags";

// "Gray", "Green", "Purple", "Blue", "Yellow", "Red", "Orange".
std::string colorTagName(FinderTagColor color);

// The colour's tag, then the name's unless it is empty. Failures are swallowed: a file that
// cannot carry tags is still placed.
void applyFinderTags(const std::filesystem::path& to, std::optional<FinderTagColor> color,
                     const std::optional<std::string>& name);

// Adds `tag` to the file's tags unless it is there already. Tags already set stay; an attribute
// that is not a tag list is replaced by `tag` alone.
void addFinderTag(const std::string& tag, const std::filesystem::path& to);

}  // namespace tarnel
