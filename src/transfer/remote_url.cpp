#include "transfer/remote_url.h"

#include <cctype>

namespace tarnel {

std::string percentEncodedPath(std::string_view name) {
    static constexpr std::string_view allowedMarks = "!$&'()*+,-./:;=@_~";
    static constexpr char hex[] = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : name) {
        const auto b = static_cast<unsigned char>(c);
        if ((std::isalnum(b) != 0 && b < 0x80) || allowedMarks.find(c) != std::string_view::npos) {
            encoded += c;
        } else {
            encoded += '%';
            encoded += hex[b >> 4];
            encoded += hex[b & 0xF];
        }
    }
    return encoded.empty() ? std::string(name) : encoded;
}

std::string remoteFolderURL(const ConnectionConfig& config, std::string_view path) {
    return config.remoteURL(percentEncodedPath(path));
}

std::string remoteFileURL(const ConnectionConfig& config, std::string_view folder,
                          std::string_view relativePath) {
    return remoteFolderURL(config, folder) + percentEncodedPath(relativePath);
}

}  // namespace tarnel
