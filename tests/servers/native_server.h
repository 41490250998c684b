#pragma once

#include <sys/types.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "connections/connection_config.h"

namespace tarnel::testing {

// Servers as Debian ships them, run from their unpacked packages (their packages conflict, so
// tests/servers/native/install unpacks each into its own folder) on 127.0.0.1 with a free port,
// and never chrooted: the test user logs in to a home folder deep below "/". proftpd over plain
// FTP also refuses to enter any folder outside that home, "/" included.
enum class NativeServerKind { vsftpd, proftpd, proftpdFtps, proftpdSftp, pureFtpd, openssh };

const char* nativeServerName(NativeServerKind kind);

class NativeServer {
public:
    static constexpr const char* user = "tarnel-ftp";
    static constexpr const char* password = "tarnel-test";

    // Why `kind` cannot run here (not unpacked, no test user), or nullopt when it can.
    static std::optional<std::string> unavailable(NativeServerKind kind);

    // Starts the server and waits until it accepts connections; throws std::runtime_error with
    // its output if it does not. `sessionsPerAddress` above 0 refuses the logins of a client
    // address beyond that many at once (vsftpd, pure-ftpd, proftpd), as many hosted servers do.
    explicit NativeServer(NativeServerKind kind, int sessionsPerAddress = 0);
    ~NativeServer();

    NativeServer(const NativeServer&) = delete;
    NativeServer& operator=(const NativeServer&) = delete;

    // The test user's home, where the server logs in to.
    static std::filesystem::path home();
    // A new empty folder in home() for one test, owned by the test user.
    std::filesystem::path makeFolder(const std::string& name) const;
    // Gives everything below `path` to the test user, so the server may delete it.
    static void handOver(const std::filesystem::path& path);

    // The listener goes away (sessions already open live on, as each runs in its own process)
    // and comes back on the same port with the same keys and certificate.
    void stop();
    void start();

    // protocol, host, port, user, password (self-signed certificates allowed); remotePath "/",
    // pollInterval 1.
    ConnectionConfig connectionConfig() const;
    // What the server wrote of its dialogue (vsftpd: every command and reply; proftpd: every
    // command with its reply code).
    std::string protocolLog() const;

private:
    void writeConfig();
    void writeProftpdConfig(std::ofstream& conf);

    NativeServerKind kind_;
    int sessionsPerAddress_;
    std::filesystem::path stateDir_;
    int port_ = 0;
    pid_t pid_ = -1;
};

}  // namespace tarnel::testing
