#include "bench_support.h"

#include <cstdio>
#include <fstream>
#include <system_error>

#include <fcntl.h>
#include <malloc.h>
#include <spawn.h>
#include <sys/wait.h>

#include "engine/ftp_remote_service.h"
#include "records/download_tracker.h"
#include "transfer/curl_transfer_client.h"
#include "transfer/ftp_service.h"

extern char** environ;

namespace tarnel::bench {

double cpuSeconds(int who) {
    rusage u{};
    getrusage(who, &u);
    return u.ru_utime.tv_sec + u.ru_utime.tv_usec / 1e6 + u.ru_stime.tv_sec +
           u.ru_stime.tv_usec / 1e6;
}

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

int run(std::vector<std::string> argv) {
    std::vector<char*> args;
    for (auto& a : argv)
        args.push_back(a.data());
    args.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/tmp/tarnel-bench-peer.err",
                                     O_WRONLY | O_CREAT | O_TRUNC, 0644);
    pid_t pid;
    if (posix_spawnp(&pid, args[0], &actions, nullptr, args.data(), environ) != 0)
        return -1;
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    waitpid(pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string capture(std::vector<std::string> argv) {
    std::string command;
    for (auto& a : argv)
        command += "'" + a + "' ";
    std::string out;
    if (FILE* p = popen(command.c_str(), "r")) {
        char buffer[256];
        while (fgets(buffer, sizeof buffer, p))
            out += buffer;
        pclose(p);
    }
    while (!out.empty() && (out.back() == '\n'))
        out.pop_back();
    return out;
}

std::size_t countFiles(const std::filesystem::path& root) {
    std::size_t n = 0;
    std::error_code ec;
    for (auto it = std::filesystem::recursive_directory_iterator(root, ec);
         !ec && it != std::filesystem::recursive_directory_iterator(); it.increment(ec))
        if (it->is_regular_file())
            ++n;
    return n;
}

long residentKiB() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:"))
            return std::stol(line.substr(6));
    return -1;
}

long liveHeapKiB() {
    const struct mallinfo2 heap = ::mallinfo2();
    return static_cast<long>((heap.uordblks + heap.hblkhd) / 1024);
}

Services::Services(MainLoop& loop, tarnel::Clock& clock, WorkerPool& workers,
                   std::filesystem::path folder)
    : dir(std::move(folder)),
      runtime{loop, clock, workers},
      settings{store, dir / "autostart.desktop"},
      log{loop, clock, dir / "Tarnel.log"},
      stats{store, clock},
      journal(Journal::open(dir / "journal.db")),
      history{loop, journal, dir / "history.json"},
      notifications{settings, silent},
      partials{journal, dir / "partials.json", &clock},
      syncer{runtime} {
    settings.setDiskSpaceWarningEnabled(false);
}

std::shared_ptr<SyncEngine> Services::engine(const ConnectionConfig& config) {
    auto client = std::make_unique<CurlTransferClient>(config, dir / "known_hosts");
    auto service = std::make_unique<FTPService>(config, log, std::move(client));
    return std::make_shared<SyncEngine>(
        config, std::make_unique<FtpRemoteService>(runtime, std::move(service)),
        std::make_shared<DownloadTracker>(journal, store, config.id.toString()),
        EngineServices{runtime, log, stats, history, settings, partials, notifications, sleep,
                       silent, syncer});
}

}  // namespace tarnel::bench
