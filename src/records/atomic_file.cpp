#include "records/atomic_file.h"

#include "platform/private_folder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <iterator>
#include <system_error>

namespace tarnel {

bool replaceFileAtomically(const std::filesystem::path& file, std::string_view contents) {
    namespace fs = std::filesystem;
    std::error_code ec;
    auto temporary = file;
    temporary += ".tmp";
    const auto openTemporary = [&] {
        return ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    };
    int fd = openTemporary();
    if (fd < 0 && errno == ENOENT) {
        // The folder is made (or made again, if it was deleted meanwhile) for the user alone.
        makePrivateFolder(file.parent_path());
        fd = openTemporary();
    }
    if (fd < 0)
        return false;
    // A leftover temporary file keeps its old mode.
    bool written = ::fchmod(fd, 0600) == 0 && writeAll(fd, contents) == contents.size();
    written = ::close(fd) == 0 && written;
    if (written)
        fs::rename(temporary, file, ec);
    if (!written || ec) {
        std::error_code ignored;
        fs::remove(temporary, ignored);
        return false;
    }
    return true;
}

std::size_t writeAll(int fd, std::string_view text) {
    std::size_t done = 0;
    while (done < text.size()) {
        const auto n = ::write(fd, text.data() + done, text.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        done += static_cast<std::size_t>(n);
    }
    return done;
}

std::optional<std::string> readWholeFile(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::string contents{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad())
        return std::nullopt;
    return contents;
}

}  // namespace tarnel
