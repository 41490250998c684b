#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "servers/test_server.h"

extern char** environ;

namespace tarnel::testing {
namespace {

namespace fs = std::filesystem;

struct CurlResult {
    int exitCode = -1;
    std::string output;
};

// The curl command-line tool, an independent client, against `server`; its standard output.
CurlResult curl(const TestServer& server, std::vector<std::string> args, bool withKey = false) {
    std::vector<std::string> command = {"curl", "-sS", "--max-time", "20"};
    if (withKey) {
        command.insert(command.end(),
                       {"-u", server.user() + ":", "--key", server.clientKeyPath().string(),
                        "--pubkey", server.clientKeyPath().string() + ".pub"});
    } else {
        command.insert(command.end(), {"-u", server.user() + ":" + server.password()});
    }
    if (server.protocol() == ServerProtocol::ftps) {
        command.insert(command.end(), {"--ssl-reqd", "-k"});
    } else if (server.protocol() == ServerProtocol::sftp) {
        command.push_back("-k");  // no known-hosts file for a server made a moment ago
    }
    command.insert(command.end(), args.begin(), args.end());
    std::vector<char*> argv;
    for (auto& arg : command) {
        argv.push_back(arg.data());
    }
    argv.push_back(nullptr);

    int out[2];
    EXPECT_EQ(::pipe(out), 0);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, out[0]);
    pid_t pid = -1;
    const int spawned = posix_spawnp(&pid, "curl", &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(out[1]);
    CurlResult result;
    char buffer[4096];
    for (ssize_t n; spawned == 0 && (n = ::read(out[0], buffer, sizeof buffer)) > 0;) {
        result.output.append(buffer, n);
    }
    ::close(out[0]);
    int status = 0;
    if (spawned == 0 && ::waitpid(pid, &status, 0) == pid && WIFEXITED(status)) {
        result.exitCode = WEXITSTATUS(status);
    }
    return result;
}

std::string url(const TestServer& server, const std::string& path) {
    const char* scheme = server.protocol() == ServerProtocol::sftp ? "sftp" : "ftp";
    return std::string(scheme) + "://127.0.0.1:" + std::to_string(server.port()) + "/" + path;
}

std::vector<std::string> deleteCommand(const TestServer& server, const std::string& name) {
    const bool sftp = server.protocol() == ServerProtocol::sftp;
    return {"-Q", sftp ? "rm \"/" + name + "\"" : "DELE " + name, url(server, ""), "-o",
            "/dev/null"};
}

void writeFile(const fs::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

class ServerTest : public ::testing::TestWithParam<ServerProtocol> {
protected:
    fs::path root = fs::path(::testing::TempDir()) / ("served-" + std::to_string(::getpid()));
    TestServer server{ServerOptions{.protocol = GetParam(), .root = root}};

    void TearDown() override { fs::remove_all(root); }
};

TEST_P(ServerTest, ListsDownloadsAndDeletes) {
    writeFile(root / "report one.csv", "a,b\n1,2\n");

    const CurlResult listing = curl(server, {url(server, "")});
    EXPECT_EQ(listing.exitCode, 0);
    EXPECT_NE(listing.output.find("report one.csv"), std::string::npos) << listing.output;

    const CurlResult download = curl(server, {url(server, "report%20one.csv")});
    EXPECT_EQ(download.exitCode, 0);
    EXPECT_EQ(download.output, "a,b\n1,2\n");

    EXPECT_EQ(curl(server, deleteCommand(server, "report one.csv")).exitCode, 0);
    EXPECT_FALSE(fs::exists(root / "report one.csv"));

    const ConnectionConfig config = server.connectionConfig();
    EXPECT_EQ(config.port, server.port());
    EXPECT_EQ(config.allowSelfSignedCerts, GetParam() == ServerProtocol::ftps);
}

// The faults are exercised where they matter, through the client, the engine and the program.
TEST_P(ServerTest, ComesBackOnTheSamePortAfterAnOutage) {
    const int port = server.port();
    server.stop();
    EXPECT_EQ(curl(server, {url(server, "")}).exitCode, 7);  // could not connect
    server.start();
    EXPECT_EQ(server.port(), port);
    EXPECT_EQ(curl(server, {url(server, "")}).exitCode, 0);
}

INSTANTIATE_TEST_SUITE_P(Protocols, ServerTest,
                         ::testing::Values(ServerProtocol::ftp, ServerProtocol::ftps,
                                           ServerProtocol::sftp),
                         [](const auto& info) { return std::string(serverProtocolName(info.param)); });

bool accepts(int port) {
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const bool connected =
        ::connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    ::close(fd);
    return connected;
}

TEST(TestServerLifetime, ServerEndsWithTheProcessThatStartedIt) {
    int channel[2];
    ASSERT_EQ(::pipe(channel), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        // Dies without running any destructor, as a crashed test would.
        TestServer server({.root = fs::path(::testing::TempDir()) / "served-orphan"});
        const int port = server.port();
        (void)!::write(channel[1], &port, sizeof port);
        ::_exit(0);
    }
    ::close(channel[1]);
    int port = 0;
    ASSERT_EQ(::read(channel[0], &port, sizeof port), static_cast<ssize_t>(sizeof port));
    ::close(channel[0]);
    ::waitpid(child, nullptr, 0);

    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (accepts(port) && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    EXPECT_FALSE(accepts(port));
    fs::remove_all(fs::path(::testing::TempDir()) / "served-orphan");
}

}  // namespace
}  // namespace tarnel::testing
