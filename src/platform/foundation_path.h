#pragma once

#include <string>
#include <string_view>

namespace tarnel {

// Path text rules as the macOS Foundation library defines them for its path strings. Placement
// names folders and files by these rules, so they must match exactly: each one first folds runs
// of "/" into one and drops one trailing "/" (except from "/" itself).

// The last component: "/tmp/scratch.tiff" → "scratch.tiff", "/tmp/" → "tmp", "/" → "/".
std::string lastPathComponent(std::string_view path);

// Everything before the last component: "/tmp/a.txt" → "/tmp", "/tmp" → "/", "a.txt" → "".
std::string stringByDeletingLastPathComponent(std::string_view path);

// The text after the last "." of the last component: "a.tar.gz" → "gz". A name that starts with
// its only dot (".bashrc"), ends in a dot ("a.") or is ".." has none.
std::string pathExtension(std::string_view path);

// The path without "." and its extension: "a.tar.gz" → "a.tar"; unchanged when there is none.
std::string stringByDeletingPathExtension(std::string_view path);

// `path` + "/" + `component` with one separator between them and runs of "/" folded; an empty
// side gives the other, an empty component leaves `path` as it is.
std::string stringByAppendingPathComponent(std::string_view path, std::string_view component);

}  // namespace tarnel
