#include "servers/secret_service.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "servers/child_process.h"

namespace tarnel::testing {

namespace fs = std::filesystem;

namespace {

const fs::path keyringDaemon = "/usr/bin/gnome-keyring-daemon";

std::string readFile(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

bool waitFor(const std::function<bool()>& done) {
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!done()) {
        if (std::chrono::steady_clock::now() > until) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return true;
}

void terminate(pid_t pid) {
    if (pid <= 0) return;
    ::kill(pid, SIGTERM);
    int status = 0;
    for (int i = 0; i < 100 && ::waitpid(pid, &status, WNOHANG) == 0; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    if (::waitpid(pid, &status, WNOHANG) == 0) {
        ::kill(pid, SIGKILL);
        ::waitpid(pid, &status, 0);
    }
}

}  // namespace

std::optional<std::string> SecretService::unavailable() {
    if (::access(keyringDaemon.c_str(), X_OK) != 0)
        return keyringDaemon.string() + " is not installed (Debian package gnome-keyring)";
    return std::nullopt;
}

SecretService::SecretService(fs::path dir) : dir_(std::move(dir)) {
    fs::create_directories(dir_ / "home" / "data");
    fs::create_directories(dir_ / "run");
    fs::permissions(dir_ / "run", fs::perms::owner_all, fs::perm_options::replace);
    std::ofstream(dir_ / "password") << "\n";  // the login keyring's: empty

    bus_ = spawn("/usr/bin/dbus-daemon", {"--session", "--nofork", "--print-address=1"},
                 "/dev/null", dir_ / "bus-address");
    if (!waitFor([&] { return readFile(dir_ / "bus-address").find('\n') != std::string::npos; })) {
        stop();
        throw std::runtime_error("the session bus did not start");
    }
    busAddress_ = readFile(dir_ / "bus-address");
    busAddress_.erase(busAddress_.find('\n'));

    // Claims the name before anything asks for it: the bus would otherwise start a keyring of
    // its own, a locked one.
    keyring_ = spawn(keyringDaemon, {"--foreground", "--unlock", "--components=secrets"},
                     dir_ / "password", dir_ / "keyring.log");
    const bool ready =
        waitFor([&] {
            auto owned = onBus(
                "dbus-send --session --print-reply --dest=org.freedesktop.DBus /org/freedesktop/DBus "
                "org.freedesktop.DBus.NameHasOwner string:org.freedesktop.secrets");
            return owned && owned->find("boolean true") != std::string::npos;
        }) &&
        waitFor([&] {
            return onBus("printf probe | secret-tool store --label=probe tarnel-probe 1").has_value();
        });
    if (!ready) {
        stop();
        throw std::runtime_error("GNOME Keyring did not start: " + readFile(dir_ / "keyring.log"));
    }
    onBus("secret-tool clear tarnel-probe 1");
}

SecretService::~SecretService() {
    stop();
}

void SecretService::stop() {
    terminate(keyring_);
    terminate(bus_);
    keyring_ = bus_ = -1;
}

pid_t SecretService::spawn(const std::string& program, const std::vector<std::string>& args,
                           const fs::path& in, const fs::path& out) const {
    // The user's own bus, home and keyrings stay out of reach.
    auto env = environmentWithout({"XDG_", "HOME=", "DBUS_"});
    env.push_back("HOME=" + (dir_ / "home").string());
    env.push_back("XDG_DATA_HOME=" + (dir_ / "home" / "data").string());
    env.push_back("XDG_RUNTIME_DIR=" + (dir_ / "run").string());
    if (!busAddress_.empty()) env.push_back("DBUS_SESSION_BUS_ADDRESS=" + busAddress_);
    std::vector<std::string> argv{program};
    argv.insert(argv.end(), args.begin(), args.end());
    return spawnChild(argv, env, in, out, out);
}

std::optional<std::string> SecretService::onBus(const std::string& command) const {
    const std::string full =
        "export DBUS_SESSION_BUS_ADDRESS='" + busAddress_ + "'; " + command + " 2>/dev/null";
    FILE* pipe = ::popen(full.c_str(), "r");
    if (!pipe) return std::nullopt;
    std::string out;
    char buffer[4096];
    for (std::size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) out.append(buffer, n);
    if (::pclose(pipe) != 0) return std::nullopt;
    return out;
}

std::optional<std::string> SecretService::lookup(const std::string& key) const {
    return onBus("secret-tool lookup server Tarnel user " + key);
}

}  // namespace tarnel::testing
