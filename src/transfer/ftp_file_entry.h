#pragma once

#include <cstdint>
#include <string>

namespace tarnel {

// One row of a remote listing.
struct FTPFileEntry {
    std::string name;       // the entry's own name, without any folder
    std::int64_t size = 0;  // as the server stated it; 0 for DOS folders and name-list rows
    bool isDirectory = false;
    std::string relativePath;  // below the watched root, name included; "" in a flat listing

    bool operator==(const FTPFileEntry&) const = default;
};

}  // namespace tarnel
