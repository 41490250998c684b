// The headless fleet under a service manager: what systemd hears on its notify socket, and the
// level of each line it reads from standard output. (A real `systemd --user` needs a system
// booted with systemd, which a test machine's container is not.)
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <fstream>

#include "platform/uuid.h"
#include "tarnel_process.h"

namespace tarnel::testing {
namespace {

namespace fs = std::filesystem;

// A datagram socket where systemd would listen for sd_notify().
class NotifySocket {
public:
    explicit NotifySocket(const fs::path& path) : path_(path) {
        fd_ = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::snprintf(address.sun_path, sizeof address.sun_path, "%s", path.c_str());
        EXPECT_EQ(::bind(fd_, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    }
    ~NotifySocket() { ::close(fd_); }

    // Messages that came since the last call. Never waits: with pings every 100 ms, reading until
    // a quiet moment could go on for ever.
    std::vector<std::string> take() {
        std::vector<std::string> messages;
        char buffer[4096];
        for (ssize_t n; (n = ::recv(fd_, buffer, sizeof buffer, MSG_DONTWAIT)) > 0;)
            messages.emplace_back(buffer, n);
        return messages;
    }

private:
    fs::path path_;
    int fd_ = -1;
};

bool has(const std::vector<std::string>& messages, const std::string& part) {
    for (const auto& m : messages)
        if (m.find(part) != std::string::npos) return true;
    return false;
}

TEST(ServiceManagerTest, ReadyStatusWatchdogFromTheLoopStoppingAndJournalLevels) {
    const fs::path dir = fs::temp_directory_path() / ("tarnel-unit-" + Uuid::random().toString());
    fs::create_directories(dir / "home");
    NotifySocket systemd(dir / "notify");
    TarnelProcess tarnel(dir / "home");
    std::ofstream(dir / "home" / "headless.out").flush();  // the journal's stream: known before
    struct stat out {};
    ASSERT_EQ(::stat((dir / "home" / "headless.out").c_str(), &out), 0);
    tarnel.addEnvironment("NOTIFY_SOCKET=" + (dir / "notify").string());
    tarnel.addEnvironment("WATCHDOG_USEC=400000");
    tarnel.addEnvironment("JOURNAL_STREAM=" + std::to_string(out.st_dev) + ":" +
                          std::to_string(out.st_ino));
    tarnel.start({"--headless"});

    std::vector<std::string> heard;
    ASSERT_TRUE(TarnelProcess::waitFor([&] {
        for (auto& m : systemd.take()) heard.push_back(std::move(m));
        return has(heard, "WATCHDOG=1");
    }, std::chrono::seconds(30)));
    EXPECT_TRUE(has(heard, "READY=1\nSTATUS=0 connection(s); today 0 files")) << heard.front();

    // A loop that stands still sends nothing; once it goes on, the pings do too.
    tarnel.signal(SIGSTOP);
    ::usleep(200'000);  // a ping already under way when it stopped arrives meanwhile
    systemd.take();
    ::usleep(600'000);
    EXPECT_FALSE(has(systemd.take(), "WATCHDOG=1"));
    tarnel.signal(SIGCONT);
    EXPECT_TRUE(TarnelProcess::waitFor([&] { return has(systemd.take(), "WATCHDOG=1"); },
                                       std::chrono::seconds(5)));

    tarnel.signal(SIGTERM);
    EXPECT_EQ(tarnel.wait(), 0);
    EXPECT_TRUE(has(systemd.take(), "STOPPING=1"));

    std::ifstream in(dir / "home" / "headless.out");
    const std::string lines{std::istreambuf_iterator<char>(in), {}};
    EXPECT_NE(lines.find("<4>["), std::string::npos) << lines;  // "No enabled connection", a warning
    EXPECT_NE(lines.find("<6>["), std::string::npos) << lines;
    EXPECT_EQ(lines.find("\n["), std::string::npos) << lines;  // every line has its level
    fs::remove_all(dir);
}

}  // namespace
}  // namespace tarnel::testing
