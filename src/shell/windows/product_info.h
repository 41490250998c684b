#pragma once

#include <filesystem>
#include <string>

namespace tarnel {

// Who the program is and what it brings along, as the build was configured.
struct ProductInfo {
    std::string version;
    std::string build;
    std::filesystem::path readme;  // where the package installs the README
};

ProductInfo builtProductInfo();

}  // namespace tarnel
