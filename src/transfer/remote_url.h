#pragma once

#include <string>
#include <string_view>

#include "connections/connection_config.h"

namespace tarnel {

// The one spelling of a remote place in a URL, for every operation: listing, the folder walk,
// download, header request, delete and folder removal. libcurl decodes the path it is given, so
// a name is addressed as itself only when every byte a URL would read otherwise ("%41", a
// blank, "#", "?") is encoded; the folder and the file are encoded alike.

// `name` with every byte outside the URL path characters as %XX; "/" stays, so a path of folders
// may be named. The raw name if that gives nothing.
std::string percentEncodedPath(std::string_view name);

// The last path segment of `url`, decoded: the name a command in the item's folder gives it.
std::string remoteItemName(std::string_view url);

// The folder at `path` (from the server root, as the record or a listing names it), ending in
// "/": a listing of it, or an FTP command run inside it.
std::string remoteFolderURL(const ConnectionConfig& config, std::string_view path);

// The file `relativePath` (a name, or folders and a name) below the folder at `folder`.
std::string remoteFileURL(const ConnectionConfig& config, std::string_view folder,
                          std::string_view relativePath);

}  // namespace tarnel
