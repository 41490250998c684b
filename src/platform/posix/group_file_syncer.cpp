#include "platform/posix/group_file_syncer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <map>
#include <system_error>
#include <utility>

namespace tarnel {

namespace {

std::exception_ptr diskFailure(const std::filesystem::path& path, int error) {
    return std::make_exception_ptr(std::system_error(
        error, std::generic_category(), "Could not write '" + path.string() + "' to disk"));
}

// One round: each file's failure, in the files' order. One syncfs for each file system the
// files' folders are on writes their data and folder entries in one journal commit: on ext4
// under load, a fdatasync for each file costs tens of times more (bench/README.md).
std::vector<std::exception_ptr> syncRound(const std::vector<std::filesystem::path>& files) {
    std::vector<std::exception_ptr> failures(files.size());
    std::map<dev_t, int> errors;  // by file system, 0 when it synced
    for (std::size_t i = 0; i < files.size(); ++i) {
        const auto folder = files[i].parent_path();
        struct stat info {};
        if (::stat(folder.c_str(), &info) != 0) {
            failures[i] = diskFailure(files[i], errno);
            continue;
        }
        auto [system, added] = errors.emplace(info.st_dev, 0);
        if (added) {
            const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
            if (fd < 0 || ::syncfs(fd) != 0) system->second = errno;
            if (fd >= 0) ::close(fd);
        }
        if (system->second != 0) failures[i] = diskFailure(files[i], system->second);
    }
    return failures;
}

}  // namespace

Task<void> GroupFileSyncer::makeDurable(std::filesystem::path file) {
    co_await whenComplete(runtime_, [this, &file](Completion done) {
        std::lock_guard lock(queue_->mutex);
        queue_->pending.push_back({std::move(file), std::move(done)});
        if (std::exchange(queue_->running, true)) return;
        runtime_.workers.submit([queue = queue_] { runRounds(queue); });
    });
}

void GroupFileSyncer::runRounds(const std::shared_ptr<Queue>& queue) {
    for (;;) {
        std::vector<Request> round;
        {
            std::lock_guard lock(queue->mutex);
            if (queue->pending.empty()) {
                queue->running = false;
                return;
            }
            round.swap(queue->pending);
        }
        std::vector<std::filesystem::path> files;
        for (const auto& request : round) files.push_back(request.file);
        const auto failures = syncRound(files);
        for (std::size_t i = 0; i < round.size(); ++i) round[i].done(failures[i]);
    }
}

}  // namespace tarnel
