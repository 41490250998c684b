#include "tarnel_process.h"

#include <signal.h>
#include <sys/wait.h>

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "servers/child_process.h"

namespace tarnel::testing {

namespace {
std::string readAll(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}
}  // namespace

TarnelProcess::~TarnelProcess() {
    if (pid_ > 0) {
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
    }
}

pid_t TarnelProcess::spawn(const std::vector<std::string>& args, const std::filesystem::path& out,
                           const std::filesystem::path& err) {
    auto env = environmentWithout({"XDG_", "DBUS_SESSION_BUS_ADDRESS="});
    env.push_back("DBUS_SESSION_BUS_ADDRESS=" +
                  sessionBus_.value_or("unix:path=" + (home_ / "no-session-bus").string()));
    env.push_back("XDG_CONFIG_HOME=" + (home_ / "config").string());
    env.push_back("XDG_DATA_HOME=" + (home_ / "data").string());
    env.push_back("XDG_STATE_HOME=" + (home_ / "state").string());
    env.insert(env.end(), extraEnvironment_.begin(), extraEnvironment_.end());
    std::vector<std::string> argv{TARNEL_BINARY};
    argv.insert(argv.end(), args.begin(), args.end());
    return spawnChild(argv, env, "/dev/null", out, err);
}

TarnelProcess::Finished TarnelProcess::run(const std::vector<std::string>& args) {
    std::filesystem::create_directories(home_);
    pid_ = spawn(args, home_ / "run.out", home_ / "run.err");
    Finished f;
    f.exitCode = wait();
    f.out = readAll(home_ / "run.out");
    f.err = readAll(home_ / "run.err");
    return f;
}

void TarnelProcess::start(const std::vector<std::string>& args) {
    std::filesystem::create_directories(home_);
    pid_ = spawn(args, home_ / "headless.out", home_ / "headless.err");
}

void TarnelProcess::signal(int signo) {
    if (pid_ > 0) ::kill(pid_, signo);
}

namespace {
int exitCodeOf(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}
}  // namespace

int TarnelProcess::wait() {
    int status = 0;
    ::waitpid(pid_, &status, 0);
    pid_ = -1;
    return exitCodeOf(status);
}

std::optional<int> TarnelProcess::exited() {
    int status = 0;
    if (pid_ <= 0 || ::waitpid(pid_, &status, WNOHANG) != pid_) return std::nullopt;
    pid_ = -1;
    return exitCodeOf(status);
}

std::string TarnelProcess::logText() const {
    return readAll(home_ / "state" / "Tarnel" / "Tarnel.log");
}

std::filesystem::path TarnelProcess::settingsFile() const {
    return home_ / "config" / "Tarnel" / "Tarnel.conf";
}

bool TarnelProcess::waitFor(const std::function<bool()>& done, std::chrono::seconds limit) {
    const auto until = std::chrono::steady_clock::now() + limit;
    while (std::chrono::steady_clock::now() < until) {
        if (done()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return done();
}

}  // namespace tarnel::testing
