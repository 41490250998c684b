#pragma once

#include <coroutine>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/file_syncer.h"
#include "platform/main_loop.h"

namespace tarnel::testing {

// Records the files it is asked to make durable. Answers at once, or, while `hold` is set,
// only when release() is called, so that a test can look at what happens meanwhile; fails
// with `failure` while that is set.
class RecordingSyncer final : public FileSyncer {
public:
    explicit RecordingSyncer(MainLoop& loop) : loop_(loop) {}

    std::vector<std::filesystem::path> files;
    bool hold = false;
    std::string failure;

    Task<void> makeDurable(std::filesystem::path file) override {
        files.push_back(file);
        if (hold) co_await Held{this};
        if (!failure.empty()) throw std::runtime_error(failure);
    }
    // Lets every held request go on, through the loop.
    void release() {
        for (auto h : std::exchange(held_, {})) loop_.post([h] { h.resume(); });
    }
    std::size_t heldCount() const { return held_.size(); }

private:
    struct Held {
        RecordingSyncer* syncer;
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> h) { syncer->held_.push_back(h); }
        void await_resume() const noexcept {}
    };
    MainLoop& loop_;
    std::vector<std::coroutine_handle<>> held_;
};

}  // namespace tarnel::testing
