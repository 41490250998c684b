#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarnel::testing {

// The tarnel program run as a user would, with its stores kept under one folder.
class TarnelProcess {
public:
    explicit TarnelProcess(std::filesystem::path home) : home_(std::move(home)) {}
    ~TarnelProcess();

    struct Finished {
        int exitCode = -1;
        std::string out, err;
    };
    // Runs to the end.
    Finished run(const std::vector<std::string>& args);
    // Starts in the background; its output collects in files under the home folder.
    void start(const std::vector<std::string>& args);
    void signal(int signo);
    int wait();  // exit code, or 128 + signal
    // As wait(), without waiting: nullopt while it runs.
    std::optional<int> exited();
    bool running() const { return pid_ > 0; }
    pid_t pid() const { return pid_; }

    std::string logText() const;  // the log file
    std::filesystem::path settingsFile() const;
    const std::filesystem::path& home() const { return home_; }
    // The session bus the program finds from its next start: none unless a test gives one, so
    // that a run never reaches the desktop's keyring or notifications.
    void useSessionBus(std::optional<std::string> address) { sessionBus_ = std::move(address); }
    // A variable ("NAME=value") the program finds from its next start, beside the stores'.
    void addEnvironment(std::string entry) { extraEnvironment_.push_back(std::move(entry)); }

    // Waits (for real: this is another process) until `done` holds, at most `limit`.
    static bool waitFor(const std::function<bool()>& done,
                        std::chrono::seconds limit = std::chrono::seconds(60));

private:
    pid_t spawn(const std::vector<std::string>& args, const std::filesystem::path& out,
                const std::filesystem::path& err);

    std::filesystem::path home_;
    std::optional<std::string> sessionBus_;
    std::vector<std::string> extraEnvironment_;
    pid_t pid_ = -1;
};

}  // namespace tarnel::testing
