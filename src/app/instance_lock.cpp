#include "app/instance_lock.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <thread>

#include "platform/private_folder.h"

namespace tarnel {

namespace {

// A lock of `type` over the whole file.
flock wholeFile(short type) {
    flock range{};
    range.l_type = type;
    range.l_whence = SEEK_SET;
    return range;
}

bool sameFile(int a, int b) {
    struct stat sa {}, sb {};
    return ::fstat(a, &sa) == 0 && ::fstat(b, &sb) == 0 && sa.st_dev == sb.st_dev &&
           sa.st_ino == sb.st_ino;
}

}  // namespace

InstanceLock::InstanceLock(std::vector<std::filesystem::path> files, std::filesystem::path channel) {
    const std::string lines = std::to_string(::getpid()) + "\n" + channel.string() + "\n";
    for (const auto& file : files) {
        makePrivateFolder(file.parent_path());
        // Close-on-exec: a post-action launched by the fleet must not keep the lock alive.
        const int fd = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        if (fd < 0) {
            error_ = "cannot open the lock file " + file.string() + ": " + std::strerror(errno);
            release();
            return;
        }
        // Two names for one folder (XDG_CONFIG_HOME and XDG_DATA_HOME alike) take one lock.
        bool seen = false;
        for (int held : fds_) seen = seen || sameFile(held, fd);
        if (seen) {
            ::close(fd);
            continue;
        }
        fds_.push_back(fd);
        flock range = wholeFile(F_WRLCK);
        if (::fcntl(fd, F_OFD_SETLK, &range) != 0) {
            // Nothing stays held: an instance starting beside this one must find the way free.
            refusedBy_ = file;
            release();
            return;
        }
    }
    held_ = true;
    for (int fd : fds_)
        if (::ftruncate(fd, 0) == 0)
            [[maybe_unused]] auto n = ::pwrite(fd, lines.data(), lines.size(), 0);
}

InstanceLock::~InstanceLock() {
    release();
}

void InstanceLock::release() {
    for (int fd : fds_) ::close(fd);  // drops the locks
    fds_.clear();
}

bool InstanceLock::taken(const std::filesystem::path& file) {
    const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return false;  // never made: nobody has run on these stores
    flock range = wholeFile(F_WRLCK);
    const bool locked = ::fcntl(fd, F_OFD_GETLK, &range) == 0 && range.l_type != F_UNLCK;
    ::close(fd);
    return locked;
}

bool InstanceLock::taken(const std::vector<std::filesystem::path>& files) {
    for (const auto& file : files)
        if (taken(file)) return true;
    return false;
}

std::vector<std::string> InstanceLock::holderLines(const std::filesystem::path& file) {
    std::vector<std::string> lines;
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

std::optional<pid_t> InstanceLock::holder() const {
    if (held_) return ::getpid();
    const auto lines = holderLines(refusedBy_);
    if (lines.empty()) return std::nullopt;
    try {
        const long pid = std::stol(lines[0]);
        if (pid > 0) return static_cast<pid_t>(pid);
    } catch (const std::exception&) {
    }
    return std::nullopt;
}

std::optional<std::filesystem::path> InstanceLock::channelIn(const std::filesystem::path& file,
                                                             std::chrono::milliseconds limit) {
    const auto until = std::chrono::steady_clock::now() + limit;
    for (;;) {
        if (const auto lines = holderLines(file); lines.size() >= 2 && !lines[1].empty()) return lines[1];
        if (std::chrono::steady_clock::now() >= until) return std::nullopt;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

std::optional<std::filesystem::path> InstanceLock::holderChannel(std::chrono::milliseconds limit) const {
    return channelIn(refusedBy_, limit);
}

std::optional<std::filesystem::path> InstanceLock::channelOfHolder(
    const std::vector<std::filesystem::path>& files, std::chrono::milliseconds limit) {
    for (const auto& file : files)
        if (taken(file)) return channelIn(file, limit);
    return std::nullopt;
}

}  // namespace tarnel
