#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "connections/connection_config.h"
#include "platform/clock.h"

namespace tarnel {

// The folder a connection files into before any subfolder: `localPath`, then the connection's
// name (each "/" made "_") if organised by connection, then year/month/day of `date` (today when
// absent) in the clock's calendar if organised by date.
std::string baseLocalDestination(const ConnectionConfig& config, std::optional<TimePoint> date,
                                 const Clock& clock);

// The folder for a file at `relativePath` below the watched folder, by the connection's
// subdirectory organisation. A custom folder mapping replaces the base folder altogether.
std::string destinationDirectory(const ConnectionConfig& config, const std::string& relativePath,
                                 std::optional<TimePoint> date, const Clock& clock);

// `name` renamed by the connection's pattern at the clock's present; the extension is kept as it
// was. An empty pattern leaves the name alone.
std::string applyRenamePattern(const ConnectionConfig& config, const std::string& name, int counter,
                               const Clock& clock);

// `url` if nothing is there, otherwise the first free "stem (n).ext" beside it. `reserved` tells
// of names that nothing holds yet but a file is about to take.
std::filesystem::path uniqueDestinationURL(
    const std::filesystem::path& url,
    const std::function<bool(const std::filesystem::path&)>& reserved = {});

// The temporary file a transfer writes in `folder` before the file is placed: the name, a tag
// of the connection and the tracking key, and ".tarnel-partial". Two connections that place one
// name into one folder, and two files of one name from two remote folders that flat or routed
// placing sends to one folder, never share one; the same file of the same connection always gets
// the same one, so that a restart finds it to resume.
std::filesystem::path partialFileURL(const std::filesystem::path& folder, const std::string& name,
                                     const std::string& connectionId,
                                     const std::string& trackingKey);

// Why a name or relative path from the server (or a name the rename pattern made) cannot be used
// below the folder a file is placed into, or nothing when it can. Remote names stay otherwise
// unchanged, but none may lead the program to write outside that folder: an absolute path or a
// ".." component is refused, and so is a NUL byte, which would cut the path short.
std::optional<std::string> remotePathProblem(std::string_view path);

}  // namespace tarnel
