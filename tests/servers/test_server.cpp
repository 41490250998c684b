#include "servers/test_server.h"

#include <chrono>
#include <cstring>
#include <fstream>
#include <functional>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace tarnel::testing {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto startTimeout = 15s;
constexpr auto stopGrace = 2s;
constexpr auto pollStep = 5ms;

fs::path serverScript() {
    const char* sourceDir = std::getenv("TARNEL_SOURCE_DIR");
    fs::path root = sourceDir && *sourceDir ? fs::path(sourceDir) : fs::path(TARNEL_SOURCE_DIR);
    return root / "tests" / "servers" / "tarnel_test_server.py";
}

std::string python() {
    const char* configured = std::getenv("TARNEL_PYTHON");
    return configured && *configured ? configured : "/usr/bin/python3";
}

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

fs::path makeStateDir() {
    std::string pattern = (fs::temp_directory_path() / "tarnel-server-XXXXXX").string();
    if (!mkdtemp(pattern.data())) {
        throw std::runtime_error("cannot create a state folder for the test server: " +
                                 std::string(std::strerror(errno)));
    }
    return pattern;
}

// Each code point below 256 stands for one byte, which the server turns back into bytes.
std::string bytesAsJsonText(const std::string& bytes) {
    std::string text;
    for (unsigned char byte : bytes) {
        if (byte < 0x80) {
            text += static_cast<char>(byte);
        } else {
            text += static_cast<char>(0xC0 | (byte >> 6));
            text += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return text;
}

// Read, change and atomically replace the fault file under the lock the server also takes.
void updateFaults(const fs::path& stateDir, const std::function<void(nlohmann::json&)>& change) {
    const fs::path file = stateDir / "faults.json";
    const int lock = ::open((stateDir / "faults.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (lock < 0) {
        throw std::runtime_error("cannot lock the test server's fault file: " +
                                 std::string(std::strerror(errno)));
    }
    ::flock(lock, LOCK_EX);
    nlohmann::json faults = nlohmann::json::object();
    if (fs::exists(file)) {
        faults = nlohmann::json::parse(readFile(file));
    }
    change(faults);
    const fs::path temporary = stateDir / "faults.json.new";
    std::ofstream(temporary) << faults.dump();
    fs::rename(temporary, file);
    ::close(lock);
}

void setOrErase(nlohmann::json& faults, const char* key, std::optional<std::int64_t> value) {
    if (value) {
        faults[key] = *value;
    } else {
        faults.erase(key);
    }
}

}  // namespace

const char* serverProtocolName(ServerProtocol protocol) {
    switch (protocol) {
        case ServerProtocol::ftp:
            return "ftp";
        case ServerProtocol::ftps:
            return "ftps";
        case ServerProtocol::sftp:
            return "sftp";
    }
    return "ftp";
}


TestServer::TestServer(ServerOptions options) : options(std::move(options)) {
    fs::create_directories(this->options.root);
    stateDir = makeStateDir();
    try {
        start();
    } catch (...) {
        fs::remove_all(stateDir);
        throw;
    }
}

TestServer::~TestServer() {
    stop();
    std::error_code ignored;
    fs::remove_all(stateDir, ignored);
}

fs::path TestServer::clientKeyPath() const {
    return stateDir / "client_ed25519";
}

fs::path TestServer::certificatePath() const {
    return stateDir / "server_cert.pem";
}

void TestServer::replaceHostIdentity() {
    for (const char* name :
         {"host_ed25519", "host_ed25519.pub", "server_cert.pem", "server_key.pem"}) {
        fs::remove(stateDir / name);
    }
}

void TestServer::pointAt(ConnectionConfig& config) const {
    switch (options.protocol) {
        case ServerProtocol::ftp:
            config.transferProtocol = TransferProtocol::ftp;
            break;
        case ServerProtocol::ftps:
            config.transferProtocol = TransferProtocol::ftps;
            config.allowSelfSignedCerts = true;
            break;
        case ServerProtocol::sftp:
            config.transferProtocol = TransferProtocol::sftp;
            break;
    }
    config.host = "127.0.0.1";
    config.port = listeningPort;
    config.username = options.user;
    config.password = options.password;
}

ConnectionConfig TestServer::connectionConfig() const {
    ConnectionConfig config;
    pointAt(config);
    config.name = std::string("Test ") + protocolName(config.transferProtocol);
    config.remotePath = "/";
    config.pollInterval = 1;
    return config;
}

void TestServer::start() {
    if (pid > 0) {
        return;
    }
    const fs::path portFile = stateDir / "port";
    const fs::path errorFile = stateDir / "stderr.log";
    fs::remove(portFile);

    std::vector<std::string> args = {python(),       serverScript().string(),
                                     "--protocol",   serverProtocolName(options.protocol),
                                     "--root",       options.root.string(),
                                     "--state-dir",  stateDir.string(),
                                     "--user",       options.user,
                                     "--password",   options.password,
                                     "--port",       std::to_string(listeningPort),
                                     "--port-file",  portFile.string(),
                                     "--parent-pid", std::to_string(::getpid())};
    std::vector<char*> argv;
    for (auto& arg : args) {
        argv.push_back(arg.data());
    }
    argv.push_back(nullptr);

    // Compiled modules go to a cache outside the source tree.
    std::vector<std::string> environment = {
        "PYTHONPYCACHEPREFIX=" + (fs::temp_directory_path() / "tarnel-pycache").string()};
    for (char** entry = environ; *entry; ++entry) {
        if (std::strncmp(*entry, "PYTHONPYCACHEPREFIX=", 20) != 0) {
            environment.emplace_back(*entry);
        }
    }
    std::vector<char*> envp;
    for (auto& entry : environment) {
        envp.push_back(entry.data());
    }
    envp.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errorFile.c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC, 0644);
    posix_spawn_file_actions_adddup2(&actions, STDERR_FILENO, STDOUT_FILENO);
    const int spawned = posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), envp.data());
    posix_spawn_file_actions_destroy(&actions);
    if (spawned != 0) {
        pid = -1;
        throw std::runtime_error("cannot start " + args[0] + ": " + std::strerror(spawned));
    }

    const auto deadline = std::chrono::steady_clock::now() + startTimeout;
    while (!fs::exists(portFile)) {
        int status = 0;
        const bool exited = ::waitpid(pid, &status, WNOHANG) == pid;
        const bool late = std::chrono::steady_clock::now() > deadline;
        if (exited || late) {
            if (exited) {
                pid = -1;
            } else {
                stop();
            }
            throw std::runtime_error(std::string("test ") + serverProtocolName(options.protocol) +
                                     " server did not start" + (late ? " in time" : "") + ": " +
                                     readFile(errorFile));
        }
        std::this_thread::sleep_for(pollStep);
    }
    listeningPort = std::stoi(readFile(portFile));
}

void TestServer::stop() {
    if (pid <= 0) {
        return;
    }
    ::kill(pid, SIGTERM);
    const auto deadline = std::chrono::steady_clock::now() + stopGrace;
    int status = 0;
    while (::waitpid(pid, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > deadline) {
            ::kill(pid, SIGKILL);
            ::waitpid(pid, &status, 0);
            break;
        }
        std::this_thread::sleep_for(pollStep);
    }
    pid = -1;
}

void TestServer::cutTransfersAfter(std::optional<std::int64_t> bytes) {
    updateFaults(stateDir, [&](nlohmann::json& f) { setOrErase(f, "cut_after_bytes", bytes); });
}

void TestServer::stallTransfersAfter(std::optional<std::int64_t> bytes) {
    updateFaults(stateDir, [&](nlohmann::json& f) { setOrErase(f, "stall_after_bytes", bytes); });
}

void TestServer::refuseDeletes(bool on) {
    updateFaults(stateDir, [&](nlohmann::json& f) { f["refuse_delete"] = on; });
}

void TestServer::delayDeleteReplies(std::optional<std::int64_t> seconds) {
    updateFaults(stateDir,
                 [&](nlohmann::json& f) { setOrErase(f, "delete_reply_pause_seconds", seconds); });
}

void TestServer::refuseLogins(bool on) {
    updateFaults(stateDir, [&](nlohmann::json& f) { f["refuse_login"] = on; });
}

void TestServer::growOnNextDownload(const std::string& name, const std::string& bytes) {
    updateFaults(stateDir,
                 [&](nlohmann::json& f) { f["grow_on_download"][name] = bytesAsJsonText(bytes); });
}

void TestServer::throttleDownloads(std::optional<std::int64_t> bytesPerSecond) {
    updateFaults(stateDir, [&](nlohmann::json& f) {
        setOrErase(f, "slow_bytes_per_second", bytesPerSecond);
    });
}

void TestServer::corruptChecksums(bool on) {
    updateFaults(stateDir, [&](nlohmann::json& f) { f["corrupt_checksums"] = on; });
}

void TestServer::delayChecksumReplies(std::optional<std::int64_t> seconds) {
    updateFaults(stateDir, [&](nlohmann::json& f) {
        setOrErase(f, "checksum_reply_pause_seconds", seconds);
    });
}

void TestServer::refuseMachineListings(bool on) {
    updateFaults(stateDir, [&](nlohmann::json& f) { f["refuse_mlsd"] = on; });
}

}  // namespace tarnel::testing
