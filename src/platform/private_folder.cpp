#include "platform/private_folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <system_error>

namespace tarnel {

void makePrivateFolder(const std::filesystem::path& folder) {
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    struct stat info {};
    if (::stat(folder.c_str(), &info) != 0 || (info.st_mode & S_ISVTX) != 0 ||
        info.st_uid != ::geteuid())
        return;
    ::chmod(folder.c_str(), 0700);
}

}  // namespace tarnel
