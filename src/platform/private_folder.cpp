#include "platform/private_folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <system_error>

namespace tarnel {

void makePrivateFolder(const std::filesystem::path& folder) {
    // Called before each store write: a folder already as it should be costs one stat.
    struct stat info {};
    if (::stat(folder.c_str(), &info) != 0) {
        std::error_code ec;
        std::filesystem::create_directories(folder, ec);
        if (::stat(folder.c_str(), &info) != 0) return;
    }
    if ((info.st_mode & 07777) == 0700 || (info.st_mode & S_ISVTX) != 0 ||
        info.st_uid != ::geteuid())
        return;
    ::chmod(folder.c_str(), 0700);
}

}  // namespace tarnel
