#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include <sys/types.h>

#include "connections/connection_config.h"

namespace tarnel::testing {

enum class ServerProtocol { ftp, ftps, sftp };

// "ftp", "ftps" or "sftp": the server script's argument, and a name for parameterised tests.
const char* serverProtocolName(ServerProtocol protocol);

struct ServerOptions {
    ServerProtocol protocol = ServerProtocol::ftp;
    std::filesystem::path root;  // served folder; created if missing
    std::string user = "tarnel";
    std::string password = "secret";
};

// A real FTP, FTPS or SFTP server on 127.0.0.1, run as a child Python process that serves
// `root`. Faults are switched through a control file the server reads before each operation.
class TestServer {
public:
    // Starts the server and waits until it accepts connections; throws std::runtime_error with
    // the server's standard error if it cannot.
    explicit TestServer(ServerOptions options);
    ~TestServer();  // stops it (SIGTERM, then SIGKILL)

    TestServer(const TestServer&) = delete;
    TestServer& operator=(const TestServer&) = delete;

    int port() const { return listeningPort; }
    const std::filesystem::path& root() const { return options.root; }
    const std::string& user() const { return options.user; }
    const std::string& password() const { return options.password; }
    ServerProtocol protocol() const { return options.protocol; }
    // SFTP: the Ed25519 private key accepted for user() (its public half sits beside it).
    std::filesystem::path clientKeyPath() const;
    // FTPS: the server's self-signed certificate (PEM).
    std::filesystem::path certificatePath() const;
    // protocol, host "127.0.0.1", port, user, password, remotePath "/",
    // allowSelfSignedCerts for FTPS, pollInterval 1.
    ConnectionConfig connectionConfig() const;
    // Points `config` at this server (protocol, host, port, login, certificate trust); the rest
    // of the record stays as it is.
    void pointAt(ConnectionConfig& config) const;
    // The next start() presents a new SFTP host key and FTPS certificate, as a server whose
    // identity changed would.
    void replaceHostIdentity();

    void stop();   // the server goes away (outage)
    void start();  // back on the same port, with the same keys and certificate
    void restart() {
        stop();
        start();
    }

    // Faults, in effect from the next operation on.
    void cutTransfersAfter(std::optional<std::int64_t> bytes);
    // Downloads send `bytes` and then nothing, with the connection left open.
    void stallTransfersAfter(std::optional<std::int64_t> bytes);
    void refuseDeletes(bool on);
    // FTP: a delete removes the file at once and answers `seconds` later.
    void delayDeleteReplies(std::optional<std::int64_t> seconds);
    void refuseLogins(bool on);
    // Appends `bytes` to the file `name` (relative to root) right before its next download.
    void growOnNextDownload(const std::string& name, const std::string& bytes);
    void throttleDownloads(std::optional<std::int64_t> bytesPerSecond);
    // FTP: XSHA256 answers the digest of other bytes than the file's.
    void corruptChecksums(bool on);
    // FTP: XSHA256 answers `seconds` late.
    void delayChecksumReplies(std::optional<std::int64_t> seconds);
    // FTP: MLSD is refused, though FEAT lists MLST.
    void refuseMachineListings(bool on);

private:
    ServerOptions options;
    std::filesystem::path stateDir;  // keys, certificate, fault control file, port file, stderr
    int listeningPort = 0;
    pid_t pid = -1;
};

}  // namespace tarnel::testing
