#include "app/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <string>

namespace tarnel {

InstanceLock::InstanceLock(std::filesystem::path file) : file_(std::move(file)) {
    namespace fs = std::filesystem;
    std::error_code ec;
    const fs::path folder = file_.parent_path();
    if (!fs::exists(folder, ec)) {
        fs::create_directories(folder, ec);
        fs::permissions(folder, fs::perms::owner_all, ec);
    }
    // Close-on-exec: a post-action launched by the fleet must not keep the lock alive.
    fd_ = ::open(file_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (fd_ < 0) {
        error_ = "cannot open the lock file " + file_.string() + ": " + std::strerror(errno);
        return;
    }
    if (::flock(fd_, LOCK_EX | LOCK_NB) != 0) return;
    held_ = true;
    const std::string pid = std::to_string(::getpid()) + "\n";
    if (::ftruncate(fd_, 0) == 0) [[maybe_unused]] auto n = ::pwrite(fd_, pid.data(), pid.size(), 0);
}

InstanceLock::~InstanceLock() {
    if (fd_ >= 0) ::close(fd_);  // drops the flock
}

std::optional<pid_t> InstanceLock::holder() const {
    if (held_) return ::getpid();
    std::ifstream in(file_);
    long pid = 0;
    if (in >> pid && pid > 0) return static_cast<pid_t>(pid);
    return std::nullopt;
}

}  // namespace tarnel
