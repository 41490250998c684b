#pragma once

#include <filesystem>
#include <string>

namespace tarnel {

// A gzip or plain file that could not be opened, read or written, in words a user can act on.
struct GzipFileError {
    std::string description;
};

// Inflates the body of the first member of the gzip file `source` into `target`, a fixed-size
// block at a time, so that memory stays the same whatever the file inflates to. The header is
// read here; only the deflate body goes to zlib. The CRC and length trailer are not checked, so
// a file cut short gives what its body held up to the cut. Returns false, leaving no `target`
// behind, for what is no gzip data, whose deflate data is corrupt, or that inflates to nothing.
// Throws GzipFileError when `source` cannot be read or `target` written.
bool gunzipFile(const std::filesystem::path& source, const std::filesystem::path& target);

}  // namespace tarnel
