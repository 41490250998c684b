#pragma once

#include <filesystem>
#include <string>

namespace tarnel {

// A gzip file that is not whole, sound gzip data, in words a user can act on.
struct GzipDataError {
    std::string description;
};

// A gzip or plain file that could not be opened, read or written, in words a user can act on.
struct GzipFileError {
    std::string description;
};

// Inflates every member of the gzip file `source` into a new temporary file beside it and
// returns that file's path; no existing file is opened for writing. Each member's CRC-32 and
// length are checked against its trailer, so a file cut short, a corrupt one or one that
// inflates to nothing throws GzipDataError. The temporary file takes the mode of `source` and
// its data is on disk before this returns, so that it can be renamed into place and `source`
// removed. Memory stays the same whatever the file inflates to. Throws GzipFileError when
// `source` cannot be read or the temporary file written. On any failure no temporary file is
// left behind.
std::filesystem::path gunzipBeside(const std::filesystem::path& source);

}  // namespace tarnel
