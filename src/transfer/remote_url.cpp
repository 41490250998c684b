#include "transfer/remote_url.h"

#include <cctype>
#include <string>

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

std::string remoteItemName(std::string_view url) {
    const std::string_view segment = url.substr(url.rfind('/') + 1);
    std::string name;
    for (std::size_t i = 0; i < segment.size(); ++i) {
        if (segment[i] == '%' && i + 2 < segment.size() &&
            std::isxdigit(static_cast<unsigned char>(segment[i + 1])) != 0 &&
            std::isxdigit(static_cast<unsigned char>(segment[i + 2])) != 0) {
            const std::string hex(segment.substr(i + 1, 2));
            name += static_cast<char>(std::stoi(hex, nullptr, 16));
            i += 2;
        } else {
            name += segment[i];
        }
    }
    return name;
}

std::string remoteFolderURL(const ConnectionConfig& config, std::string_view path) {
    return config.remoteURL(percentEncodedPath(path));
}

std::string remoteFileURL(const ConnectionConfig& config, std::string_view folder,
                          std::string_view relativePath) {
    return remoteFolderURL(config, folder) + percentEncodedPath(relativePath);
}

}  // namespace tarnel
