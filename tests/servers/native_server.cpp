#include "servers/native_server.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <pwd.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <vector>

#include "platform/uuid.h"

extern char** environ;

namespace tarnel::testing {

namespace fs = std::filesystem;

namespace {

const fs::path unpacked = TARNEL_NATIVE_SERVERS;

fs::path binaryOf(NativeServerKind kind) {
    switch (kind) {
        case NativeServerKind::vsftpd:
            return unpacked / "vsftpd/usr/sbin/vsftpd";
        case NativeServerKind::proftpd:
        case NativeServerKind::proftpdFtps:
        case NativeServerKind::proftpdSftp:
            return unpacked / "proftpd/usr/sbin/proftpd";
        case NativeServerKind::pureFtpd:
            return unpacked / "pure-ftpd/usr/sbin/pure-ftpd";
        case NativeServerKind::openssh:
            return "/usr/sbin/sshd";
    }
    return {};
}

bool isProftpd(NativeServerKind kind) {
    return kind == NativeServerKind::proftpd || kind == NativeServerKind::proftpdFtps ||
           kind == NativeServerKind::proftpdSftp;
}

void run(const std::string& command) {
    if (std::system(command.c_str()) != 0) throw std::runtime_error("failed: " + command);
}

std::string readFile(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

int freePort() {
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    ::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address);
    ::getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length);
    ::close(fd);
    return ntohs(address.sin_port);
}

bool accepts(int port) {
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    const bool ok = ::connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    ::close(fd);
    return ok;
}

}  // namespace

const char* nativeServerName(NativeServerKind kind) {
    switch (kind) {
        case NativeServerKind::vsftpd:
            return "vsftpd";
        case NativeServerKind::proftpd:
            return "proftpd";
        case NativeServerKind::proftpdFtps:
            return "proftpd_ftps";
        case NativeServerKind::proftpdSftp:
            return "proftpd_sftp";
        case NativeServerKind::pureFtpd:
            return "pure_ftpd";
        case NativeServerKind::openssh:
            return "openssh";
    }
    return "";
}

std::optional<std::string> NativeServer::unavailable(NativeServerKind kind) {
    if (::geteuid() != 0) return "servers that log users in need root";
    if (!fs::exists(binaryOf(kind)))
        return binaryOf(kind).string() + " is missing; run tests/servers/native/install";
    if (::getpwnam(user) == nullptr)
        return std::string("no user ") + user + "; run tests/servers/native/install";
    return std::nullopt;
}

fs::path NativeServer::home() {
    const passwd* entry = ::getpwnam(user);
    return entry ? fs::path(entry->pw_dir) : fs::path();
}

void NativeServer::handOver(const fs::path& path) {
    const passwd* entry = ::getpwnam(user);
    if (!entry) return;
    [[maybe_unused]] int rc = ::chown(path.c_str(), entry->pw_uid, entry->pw_gid);
    if (!fs::is_directory(path)) return;
    for (const auto& item : fs::recursive_directory_iterator(path))
        rc = ::lchown(item.path().c_str(), entry->pw_uid, entry->pw_gid);
}

fs::path NativeServer::makeFolder(const std::string& name) const {
    const fs::path folder = home() / name;
    fs::create_directories(folder);
    handOver(folder);
    return folder;
}

NativeServer::NativeServer(NativeServerKind kind, int sessionsPerAddress)
    : kind_(kind),
      sessionsPerAddress_(sessionsPerAddress),
      stateDir_(fs::temp_directory_path() / ("tarnel-native-" + Uuid::random().toString())) {
    if (const auto why = unavailable(kind)) throw std::runtime_error(*why);
    fs::create_directories(stateDir_ / "empty");
    port_ = freePort();
    writeConfig();
    start();
}

void NativeServer::start() {
    const std::string conf = (stateDir_ / "server.conf").string();
    std::vector<std::string> args{binaryOf(kind_).string()};
    if (kind_ == NativeServerKind::vsftpd) {
        args.push_back(conf);
    } else if (isProftpd(kind_)) {
        args.insert(args.end(), {"-n", "-c", conf});
    } else if (kind_ == NativeServerKind::pureFtpd) {
        // Unix accounts, no anonymous login, no chroot (that takes -A), in the foreground.
        const std::string perAddress =
            std::to_string(sessionsPerAddress_ > 0 ? sessionsPerAddress_ : 50);
        args.insert(args.end(), {"-S", "127.0.0.1," + std::to_string(port_), "-l", "unix", "-E",
                                 "-H", "-c", "50", "-C", perAddress});
    } else {
        args.insert(args.end(), {"-D", "-e", "-f", conf});
    }
    std::vector<char*> argv;
    for (auto& a : args) argv.push_back(a.data());
    argv.push_back(nullptr);
    const fs::path out = stateDir_ / "output.log";
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
    posix_spawn_file_actions_adddup2(&actions, 1, 2);
    const int rc = posix_spawn(&pid_, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (rc != 0) throw std::runtime_error("cannot start " + args[0]);

    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!accepts(port_)) {
        int status = 0;
        if (::waitpid(pid_, &status, WNOHANG) == pid_ || std::chrono::steady_clock::now() > until) {
            pid_ = -1;
            throw std::runtime_error(std::string(nativeServerName(kind_)) +
                                     " did not start: " + readFile(out));
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

void NativeServer::stop() {
    if (pid_ > 0) {
        ::kill(pid_, SIGTERM);
        ::waitpid(pid_, nullptr, 0);
        pid_ = -1;
    }
}

NativeServer::~NativeServer() {
    stop();
    std::error_code ignored;
    fs::remove_all(stateDir_, ignored);
}

void NativeServer::writeConfig() {
    std::ofstream conf(stateDir_ / "server.conf");
    const std::string state = stateDir_.string();
    if (isProftpd(kind_)) {
        writeProftpdConfig(conf);
        return;
    }
    if (kind_ == NativeServerKind::pureFtpd) return;  // all on its command line
    if (kind_ == NativeServerKind::vsftpd) {
        // Debian's defaults for a local user, in the foreground: no chroot, writes allowed.
        // PAM falls back to the "other" service (pam_unix), as no service of its own is installed.
        conf << "listen=YES\nlisten_address=127.0.0.1\nlisten_port=" << port_
             << "\nbackground=NO\nseccomp_sandbox=NO\nisolate=NO\nisolate_network=NO\n"
                "anonymous_enable=NO\nlocal_enable=YES\nwrite_enable=YES\nchroot_local_user=NO\n"
                "local_umask=022\nutf8_filesystem=YES\npam_service_name=tarnel-native\n"
                "max_clients=0\nmax_per_ip="
             << sessionsPerAddress_ << "\nsecure_chroot_dir="
             << state << "/empty\nlog_ftp_protocol=YES\nxferlog_enable=YES\nxferlog_std_format=NO\n"
             << "vsftpd_log_file=" << state << "/protocol.log\n";
        return;
    }
    // OpenSSH's sshd with Debian's SFTP server; an Ed25519 host key of its own.
    const auto key = stateDir_ / "host_ed25519";
    run("ssh-keygen -q -t ed25519 -N '' -f " + key.string());
    fs::create_directories("/run/sshd");
    conf << "Port " << port_ << "\nListenAddress 127.0.0.1\nHostKey " << key.string()
         << "\nPidFile " << state << "/sshd.pid\nUsePAM no\nPasswordAuthentication yes\n"
            "KbdInteractiveAuthentication no\nStrictModes no\nMaxStartups 100:30:200\n"
            "MaxSessions 100\nSubsystem sftp /usr/lib/openssh/sftp-server\n"
            "LogLevel VERBOSE\n";
}

// Debian's defaults, in the foreground, with the modules of proftpd-mod-crypto from beside it.
void NativeServer::writeProftpdConfig(std::ofstream& conf) {
    const std::string state = stateDir_.string();
    const std::string home = NativeServer::home().string();
    conf << "ServerType standalone\nPort " << port_
         << "\nDefaultAddress 127.0.0.1\nSocketBindTight on\nUseIPv6 off\n"
            "User nobody\nGroup nogroup\nScoreboardFile "
         << state << "/scoreboard\nPidFile " << state
         << "/proftpd.pid\nDelayTable none\nWtmpLog off\nUseReverseDNS off\n"
            "AuthPAM off\nAuthOrder mod_auth_unix.c\nAllowOverwrite on\nMaxInstances 100\n";
    if (sessionsPerAddress_ > 0) conf << "MaxClientsPerHost " << sessionsPerAddress_ << "\n";
    conf << 
            "ModulePath "
         << (unpacked / "proftpd/usr/lib/proftpd").string() << "\nSystemLog " << state
         << "/system.log\nExtendedLog " << state << "/protocol.log ALL default\n"
         // The server's own checksums: HASH, XSHA256, XSHA1, XMD5, XCRC.
            "LoadModule mod_digest.c\nDigestEngine on\n";
    switch (kind_) {
        case NativeServerKind::proftpd:
            // Only the home can be entered: no CWD to "/" may be needed by anything.
            conf << "<Directory />\n<Limit CWD XCWD>\nDenyAll\n</Limit>\n</Directory>\n";
            for (const std::string& open : {home, home + "/*"})
                conf << "<Directory " << open
                     << ">\n<Limit CWD XCWD>\nAllowAll\n</Limit>\n</Directory>\n";
            break;
        case NativeServerKind::proftpdFtps:
            run("openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=127.0.0.1 -keyout " +
                state + "/key.pem -out " + state + "/cert.pem 2>/dev/null");
            conf << "LoadModule mod_tls.c\nTLSEngine on\nTLSRequired on\nTLSRSACertificateFile "
                 << state << "/cert.pem\nTLSRSACertificateKeyFile " << state
                 << "/key.pem\nTLSProtocol TLSv1.2 TLSv1.3\nTLSOptions NoSessionReuseRequired\n";
            break;
        case NativeServerKind::proftpdSftp:
            run("ssh-keygen -q -t ed25519 -N '' -f " + state + "/host_ed25519");
            conf << "LoadModule mod_sftp.c\nSFTPEngine on\nSFTPHostKey " << state
                 << "/host_ed25519\nSFTPAuthMethods password\nSFTPLog " << state
                 << "/protocol.log\n";
            break;
        default:
            break;
    }
}

ConnectionConfig NativeServer::connectionConfig() const {
    ConnectionConfig config;
    config.name = nativeServerName(kind_);
    config.transferProtocol =
        kind_ == NativeServerKind::openssh || kind_ == NativeServerKind::proftpdSftp
            ? TransferProtocol::sftp
        : kind_ == NativeServerKind::proftpdFtps ? TransferProtocol::ftps
                                                 : TransferProtocol::ftp;
    config.allowSelfSignedCerts = true;
    config.host = "127.0.0.1";
    config.port = port_;
    config.username = user;
    config.password = password;
    config.remotePath = "/";
    config.pollInterval = 1;
    return config;
}

std::string NativeServer::protocolLog() const {
    const bool ownLog = kind_ == NativeServerKind::vsftpd || isProftpd(kind_);
    return readFile(stateDir_ / (ownLog ? "protocol.log" : "output.log"));
}

}  // namespace tarnel::testing
