#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

// Makes one process the one that runs the fleet on a set of stores. The lock is a file beside
// each folder of stores, so that every process that would use those stores meets it, whatever
// its environment (a tray application with XDG_RUNTIME_DIR, a run from cron or sudo without).
// Each is held by an open-file-description lock, which the kernel drops when its process dies
// however it dies, so a lock left by a killed instance never stops the next start. The holder
// writes its process id and the socket it serves later launches on into each file.
class InstanceLock {
public:
    // Tries to take the lock of every file, once; the folders are made private when made.
    InstanceLock(std::vector<std::filesystem::path> files, std::filesystem::path channel);
    ~InstanceLock();

    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    bool held() const { return held_; }
    // Why a lock file could not be opened at all, so that nobody can tell whether another
    // instance runs; nothing when it could.
    const std::optional<std::string>& error() const { return error_; }
    // The process that holds the lock when this one does not; nullopt if it cannot be read
    // (the holder is just starting, or the folder is not readable).
    std::optional<pid_t> holder() const;
    // The socket the holder serves, as it wrote it; waits up to `limit` for a holder that has
    // just taken the lock.
    std::optional<std::filesystem::path> holderChannel(std::chrono::milliseconds limit) const;

    // Whether a process holds the lock of any of `files`. Takes nothing, so that asking never
    // turns away an instance that starts at the same moment.
    static bool taken(const std::vector<std::filesystem::path>& files);
    // holderChannel() for a process that does not try to take the lock: the socket named in
    // the first of `files` that is taken; nullopt when none is, or it names none in time.
    static std::optional<std::filesystem::path> channelOfHolder(
        const std::vector<std::filesystem::path>& files, std::chrono::milliseconds limit);

private:
    void release();
    // The holder's lines in `file`: process id, then socket. Empty while it has not written them.
    static std::vector<std::string> holderLines(const std::filesystem::path& file);
    static std::optional<std::filesystem::path> channelIn(const std::filesystem::path& file,
                                                          std::chrono::milliseconds limit);
    static bool taken(const std::filesystem::path& file);

    std::vector<int> fds_;
    std::filesystem::path refusedBy_;  // the file whose lock another process holds
    bool held_ = false;
    std::optional<std::string> error_;
};

}  // namespace tarnel
