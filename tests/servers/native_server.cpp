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
        case NativeServerKind::openssh:
            return "/usr/sbin/sshd";
    }
    return {};
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

NativeServer::NativeServer(NativeServerKind kind)
    : kind_(kind),
      stateDir_(fs::temp_directory_path() / ("tarnel-native-" + Uuid::random().toString())) {
    if (const auto why = unavailable(kind)) throw std::runtime_error(*why);
    fs::create_directories(stateDir_ / "empty");
    port_ = freePort();
    writeConfig();

    std::vector<std::string> args{binaryOf(kind).string()};
    if (kind == NativeServerKind::vsftpd) {
        args.push_back((stateDir_ / "server.conf").string());
    } else {
        args.insert(args.end(), {"-D", "-e", "-f", (stateDir_ / "server.conf").string()});
    }
    std::vector<char*> argv;
    for (auto& a : args) argv.push_back(a.data());
    argv.push_back(nullptr);
    const fs::path out = stateDir_ / "output.log";
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    posix_spawn_file_actions_adddup2(&actions, 1, 2);
    const int rc = posix_spawn(&pid_, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (rc != 0) throw std::runtime_error("cannot start " + args[0]);

    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!accepts(port_)) {
        int status = 0;
        if (::waitpid(pid_, &status, WNOHANG) == pid_ || std::chrono::steady_clock::now() > until) {
            pid_ = -1;
            throw std::runtime_error(std::string(nativeServerName(kind)) +
                                     " did not start: " + readFile(out));
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

NativeServer::~NativeServer() {
    if (pid_ > 0) {
        ::kill(pid_, SIGTERM);
        ::waitpid(pid_, nullptr, 0);
    }
    std::error_code ignored;
    fs::remove_all(stateDir_, ignored);
}

void NativeServer::writeConfig() {
    std::ofstream conf(stateDir_ / "server.conf");
    const std::string state = stateDir_.string();
    if (kind_ == NativeServerKind::vsftpd) {
        // Debian's defaults for a local user, in the foreground: no chroot, writes allowed.
        // PAM falls back to the "other" service (pam_unix), as no service of its own is installed.
        conf << "listen=YES\nlisten_address=127.0.0.1\nlisten_port=" << port_
             << "\nbackground=NO\nseccomp_sandbox=NO\nisolate=NO\nisolate_network=NO\n"
                "anonymous_enable=NO\nlocal_enable=YES\nwrite_enable=YES\nchroot_local_user=NO\n"
                "local_umask=022\nutf8_filesystem=YES\npam_service_name=tarnel-native\n"
                "max_clients=0\nmax_per_ip=0\n"
                "secure_chroot_dir="
             << state << "/empty\nlog_ftp_protocol=YES\nxferlog_enable=YES\nxferlog_std_format=NO\n"
             << "vsftpd_log_file=" << state << "/protocol.log\n";
        return;
    }
    // OpenSSH's sshd with Debian's SFTP server; an Ed25519 host key of its own.
    const auto key = stateDir_ / "host_ed25519";
    const std::string keygen = "ssh-keygen -q -t ed25519 -N '' -f " + key.string();
    if (std::system(keygen.c_str()) != 0) throw std::runtime_error("ssh-keygen failed");
    fs::create_directories("/run/sshd");
    conf << "Port " << port_ << "\nListenAddress 127.0.0.1\nHostKey " << key.string()
         << "\nPidFile " << state << "/sshd.pid\nUsePAM no\nPasswordAuthentication yes\n"
            "KbdInteractiveAuthentication no\nStrictModes no\nMaxStartups 100:30:200\n"
            "MaxSessions 100\nSubsystem sftp /usr/lib/openssh/sftp-server\n"
            "LogLevel VERBOSE\n";
}

ConnectionConfig NativeServer::connectionConfig() const {
    ConnectionConfig config;
    config.name = nativeServerName(kind_);
    config.transferProtocol =
        kind_ == NativeServerKind::openssh ? TransferProtocol::sftp : TransferProtocol::ftp;
    config.host = "127.0.0.1";
    config.port = port_;
    config.username = user;
    config.password = password;
    config.remotePath = "/";
    config.pollInterval = 1;
    return config;
}

std::string NativeServer::protocolLog() const {
    return readFile(stateDir_ / (kind_ == NativeServerKind::vsftpd ? "protocol.log" : "output.log"));
}

}  // namespace tarnel::testing
