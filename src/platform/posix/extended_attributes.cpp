#include "platform/posix/extended_attributes.h"

#include <cerrno>

#include <sys/xattr.h>

namespace tarnel {

std::optional<std::string> readExtendedAttribute(const std::filesystem::path& path,
                                                 const std::string& name) {
    // The value may grow between asking its size and reading it; ask again a few times.
    for (int attempt = 0; attempt < 3; ++attempt) {
        const ssize_t size = getxattr(path.c_str(), name.c_str(), nullptr, 0);
        if (size < 0)
            return std::nullopt;
        std::string value(static_cast<std::size_t>(size), '\0');
        const ssize_t read = getxattr(path.c_str(), name.c_str(), value.data(), value.size());
        if (read >= 0) {
            value.resize(static_cast<std::size_t>(read));
            return value;
        }
        if (errno != ERANGE)
            return std::nullopt;
    }
    return std::nullopt;
}

bool writeExtendedAttribute(const std::filesystem::path& path, const std::string& name,
                            std::string_view value) {
    return setxattr(path.c_str(), name.c_str(), value.data(), value.size(), 0) == 0;
}

}  // namespace tarnel
