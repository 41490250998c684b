// Copy mode at scale: one connection that keeps its files on the server (vsftpd as Debian ships
// it), COUNT files of 11 bytes in one folder, 4 at a time, stable at once. In the same run:
//   - lftp mirror -P4 of the same folder;
//   - the engine's one poll that fetches them all, with the rate over the first and the last
//     tenth of the files, and the resident memory after it;
//   - the first poll after the batch, then a minute of polls at a 30 s interval over the listing
//     whose files are now all known: its CPU (the polls' CPU seconds over the 60 s).
// Usage: copy_mode_bench [count] [tarnel|both] [place]   (tarnel: the engine alone, for profiling
// it; place: the folder that takes the copies and the stores, /dev/shm by default)
#include <cstdio>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <vector>

#include <malloc.h>
#include <unistd.h>

#include "bench_support.h"
#include "engine/sync_engine.h"
#include "platform/testing/virtual_loop.h"
#include "servers/native_server.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;
using namespace bench;
using testing::NativeServer;
using testing::NativeServerKind;

std::string fileName(int i) {
    std::ostringstream name;
    name << "scan-" << std::setw(6) << std::setfill('0') << i << ".dat";
    return name.str();
}

// Files per second between the placing of file `from` and of file `to` (counted from 1).
double rate(const std::vector<bench::Clock::time_point>& placed, std::size_t from, std::size_t to) {
    return double(to - from) / std::chrono::duration<double>(placed[to - 1] - placed[from - 1]).count();
}

int copyMode(int count, bool withPeer, const fs::path& place) {
    if (const auto why = NativeServer::unavailable(NativeServerKind::vsftpd)) {
        std::fprintf(stderr, "copy_mode_bench: %s\n", why->c_str());
        return 2;
    }
    NativeServer server(NativeServerKind::vsftpd);
    const fs::path folder = server.makeFolder("copy-bench") / "drop";
    fs::create_directories(folder);
    for (int i = 0; i < count; ++i)
        std::ofstream(folder / fileName(i)) << "eleven byte";
    NativeServer::handOver(folder.parent_path());
    const std::string below = fs::relative(folder, NativeServer::home()).string();
    const fs::path scratch = place / ("tarnel-copy-bench-" + std::to_string(::getpid()));
    fs::remove_all(scratch);
    std::printf("%d files of 11 bytes from vsftpd in copy mode, 4 at a time, into %s\n", count,
                place.c_str());

    auto config = server.connectionConfig();
    if (withPeer) {
        const auto lftpStart = bench::Clock::now();
        const double lftpCpu = cpuSeconds(RUSAGE_CHILDREN);
        run({"lftp", "-c",
             "open ftp://" + config.username + ":" + config.password + "@127.0.0.1:" +
                 std::to_string(config.port) + "/; mirror -P4 '" + below + "' " +
                 (scratch / "lftp").string()});
        const double lftpSeconds = secondsSince(lftpStart);
        std::printf("  lftp mirror -P4            %8.2f s  %8.1f files/s  (%zu files, %.2f s CPU)\n",
                    lftpSeconds, countFiles(scratch / "lftp") / lftpSeconds,
                    countFiles(scratch / "lftp"), cpuSeconds(RUSAGE_CHILDREN) - lftpCpu);
        fs::remove_all(scratch / "lftp");
    }

    WorkerPool workers;
    VirtualLoop loop{&workers};
    Services services{loop, loop, workers, scratch};

    config.name = "Copy";
    config.remotePath = below;
    config.localPath = (scratch / "tarnel").string();
    config.requiredStableChecks = 0;
    config.maxConcurrentDownloads = 4;
    config.deleteAfterDownload = false;
    config.excludedExtensions = "";
    config.pollInterval = 30;
    fs::create_directories(config.localPath);
    auto engine = services.engine(config);

    std::vector<bench::Clock::time_point> placed;
    placed.reserve(count);
    auto booked = engine->totalTransferred().subscribe(
        [&](int) { placed.push_back(bench::Clock::now()); }, false);
    const auto start = bench::Clock::now();
    const double cpu = cpuSeconds();
    spawn(loop, engine->pollOnce());
    loop.runUntilIdle();
    const double seconds = secondsSince(start);
    const std::size_t n = placed.size();
    std::printf("  tarnel engine, one poll    %8.2f s  %8.1f files/s  (%zu files, %.2f s CPU)\n",
                seconds, n / seconds, n, cpuSeconds() - cpu);
    if (n >= 20) {
        const double first = rate(placed, 1, n / 10), last = rate(placed, n - n / 10 + 1, n);
        std::printf("  rate over the first / last tenth: %.0f / %.0f files/s (flatness %.2f)\n",
                    first, last, last / first);
        std::printf("  rate over each tenth:");
        for (std::size_t tenth = 0; tenth < 10; ++tenth)
            std::printf(" %.0f", rate(placed, tenth * n / 10 + 1, (tenth + 1) * n / 10));
        std::printf("\n");
    }
    services.history.flush();
    const long afterRun = residentKiB();
    ::malloc_trim(0);  // what the heap keeps of freed memory, apart from what is still in use
    std::printf("  resident memory after the run: %.1f MiB (%.1f MiB once the heap gives back what "
                "is free, %.1f MiB of heap in use); journal %.1f MiB\n",
                afterRun / 1024.0, residentKiB() / 1024.0, liveHeapKiB() / 1024.0,
                fs::file_size(scratch / "journal.db") / 1048576.0);

    const auto pollCpu = [&] {
        const double before = cpuSeconds();
        spawn(loop, engine->pollOnce());
        loop.runUntilIdle();
        return cpuSeconds() - before;
    };
    // The first poll after the batch finds every file known, for the first time.
    std::printf("  first poll after the batch: %.2f s CPU\n", pollCpu());
    // A minute of polls at 30 s over files all known: nothing is fetched.
    const double first = pollCpu(), second = pollCpu();
    std::printf("  idle minute (2 polls of %d known files): %.2f s CPU (%.2f + %.2f), %.2f%% of a "
                "core; %zu fetched again\n",
                count, first + second, first, second, (first + second) / 60 * 100,
                placed.size() - n);
    std::printf("  resident memory after the idle minute: %.1f MiB (%.1f MiB of heap in use)\n",
                residentKiB() / 1024.0, liveHeapKiB() / 1024.0);

    services.log.flush();
    fs::remove_all(folder.parent_path());
    fs::remove_all(scratch);
    return 0;
}

}  // namespace
}  // namespace tarnel

int main(int argc, char** argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const int count = argc > 1 ? std::atoi(argv[1]) : 20000;
    return tarnel::copyMode(count > 0 ? count : 20000, argc < 3 || std::string(argv[2]) != "tarnel",
                            argc > 3 ? argv[3] : "/dev/shm");
}
