#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string>

namespace tarnel {

// Makes one process the one that runs the fleet on a set of stores. The lock is an flock on
// `file`, which the kernel drops when its process dies however it dies, so a lock left by a
// killed instance never stops the next start. The holder writes its process id into the file.
class InstanceLock {
public:
    // Tries to take the lock, once. The folder of `file` is made private (0700) when it is made.
    explicit InstanceLock(std::filesystem::path file);
    ~InstanceLock();

    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    bool held() const { return held_; }
    // Why the lock file could not be opened at all, so that nobody can tell whether another
    // instance runs; nothing when it could.
    const std::optional<std::string>& error() const { return error_; }
    // The process that holds the lock when this one does not; nullopt if it cannot be read
    // (the holder is just starting, or the folder is not readable).
    std::optional<pid_t> holder() const;

private:
    std::filesystem::path file_;
    int fd_ = -1;
    bool held_ = false;
    std::optional<std::string> error_;
};

}  // namespace tarnel
