// Children must be stoppable and hold nothing of ours: the program blocks SIGTERM and SIGINT
// for its signal descriptor, ignores SIGPIPE, and keeps files and sockets open.
#include "platform/posix/process_launcher.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>
#include <vector>

#include "platform/uuid.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;

// The value of `field` ("SigBlk") in the status of the process that wrote `status`.
std::uint64_t signalMask(const std::string& status, const std::string& field) {
    std::istringstream lines(status);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind(field + ":", 0) == 0) return std::stoull(line.substr(field.size() + 1), nullptr, 16);
    ADD_FAILURE() << field << " missing in\n" << status;
    return ~0ull;
}

std::uint64_t bit(int signo) { return 1ull << (signo - 1); }

std::string readAll(const fs::path& file) {
    std::ifstream in(file);
    return {std::istreambuf_iterator<char>(in), {}};
}

// Our child running `program`, found by its parent; -1 if none.
pid_t childRunning(const std::string& program) {
    for (const auto& entry : fs::directory_iterator("/proc")) {
        const auto status = readAll(entry.path() / "status");
        if (status.find("\nPPid:\t" + std::to_string(::getpid()) + "\n") != std::string::npos &&
            status.rfind("Name:\t" + program + "\n", 0) == 0)
            return std::stoi(entry.path().filename().string());
    }
    return -1;
}

TEST(ProcessLauncherTest, AChildStartsWithDefaultSignalsAndNoDescriptorOfOursAndStopsOnKill) {
    const fs::path dir = fs::temp_directory_path() / ("tarnel-launch-" + Uuid::random().toString());
    fs::create_directories(dir);
    // As the program stands when a post-action runs.
    sigset_t stops;
    sigemptyset(&stops);
    sigaddset(&stops, SIGTERM);
    sigaddset(&stops, SIGINT);
    sigset_t before;
    pthread_sigmask(SIG_BLOCK, &stops, &before);
    const auto oldPipe = std::signal(SIGPIPE, SIG_IGN);
    const int leaked = ::open((dir / "held").c_str(), O_WRONLY | O_CREAT, 0600);  // no O_CLOEXEC
    ASSERT_GE(leaked, 0);
    const auto error = launchProcess("/bin/sleep", {"60"});
    ::close(leaked);
    std::signal(SIGPIPE, oldPipe);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    fs::remove_all(dir);
    ASSERT_FALSE(error) << *error;

    const pid_t child = childRunning("sleep");
    ASSERT_GT(child, 0);
    const auto proc = fs::path("/proc") / std::to_string(child);
    const auto status = readAll(proc / "status");
    EXPECT_EQ(signalMask(status, "SigBlk") & (bit(SIGTERM) | bit(SIGINT)), 0u) << status;
    EXPECT_EQ(signalMask(status, "SigIgn") & bit(SIGPIPE), 0u) << status;
    // Just after exec the dynamic loader holds a library open for a moment; one of ours stays.
    std::vector<std::string> fds;
    for (int attempt = 0; attempt < 100; ++attempt) {
        fds.clear();
        for (const auto& fd : fs::directory_iterator(proc / "fd")) fds.push_back(fd.path().filename());
        std::sort(fds.begin(), fds.end());
        if (fds.size() == 3) break;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    EXPECT_EQ(fds, (std::vector<std::string>{"0", "1", "2"}));

    // A plain kill ends it (the launcher reaps it).
    ::kill(child, SIGTERM);
    bool gone = false;
    for (int i = 0; i < 100 && !gone; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        gone = !fs::exists(proc);
    }
    if (!gone) ::kill(child, SIGKILL);
    EXPECT_TRUE(gone) << "the child ignored SIGTERM";
}

}  // namespace
}  // namespace tarnel
