#pragma once

#include <string>

namespace tarnel {

// Who the program is and where its makers are found, as the build was configured.
struct ProductInfo {
    std::string version;
    std::string build;
    std::string website;       // "https://…", without a trailing slash
    std::string supportEmail;  // an address, without "mailto:"
};

ProductInfo builtProductInfo();

}  // namespace tarnel
