#pragma once

#include <filesystem>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/completion.h"
#include "platform/file_syncer.h"
#include "platform/runtime.h"

namespace tarnel {

// Group commits: the files asked for while a round runs go to disk together in the next round,
// on a worker thread, by one syncfs for each file system they are on. While files arrive fast
// the cost per file stays near nothing, and a lone file waits for no timer.
class GroupFileSyncer final : public FileSyncer {
public:
    explicit GroupFileSyncer(Runtime& runtime) : runtime_(runtime) {}

    Task<void> makeDurable(std::filesystem::path file) override;

private:
    struct Request {
        std::filesystem::path file;
        Completion done;
    };
    // Shared with the round under way, which may outlive the syncer at shutdown.
    struct Queue {
        std::mutex mutex;
        std::vector<Request> pending;
        bool running = false;
    };
    static void runRounds(const std::shared_ptr<Queue>& queue);

    Runtime& runtime_;
    std::shared_ptr<Queue> queue_ = std::make_shared<Queue>();
};

}  // namespace tarnel
