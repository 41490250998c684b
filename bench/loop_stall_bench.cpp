// How long the main loop stands still while an engine downloads a large gzip file, hashes it
// (checksum verification) and inflates it, beside the same loop idle for as long. A 1 ms timer on
// the loop notes the gaps between its ticks; a gap past the interval is time the loop could not
// answer the tray, the popover, the instance channel or any other engine.
// The archive holds random bytes in stored deflate blocks, so that it is as large as what it
// inflates to and both the digest and the inflation read the whole size.
// Usage: loop_stall_bench [MiB, default 2048] [folder, default /tmp: a disk, not a tmpfs]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include <QCoreApplication>
#include <QTimer>
#include <zlib.h>

#include "bench_support.h"
#include "engine/sync_engine.h"
#include "platform/qt/qt_main_loop.h"
#include "records/log_service.h"
#include "servers/test_server.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;
using Steady = std::chrono::steady_clock;
using testing::ServerProtocol;
using testing::TestServer;

constexpr Duration tickInterval{1};

// Writes `mib` MiB of random bytes as one gzip member of stored blocks.
void writeArchive(const fs::path& file, std::size_t mib) {
    z_stream stream{};
    deflateInit2(&stream, 0, Z_DEFLATED, MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY);
    std::vector<unsigned char> plain(1 << 20), packed(deflateBound(&stream, plain.size()));
    std::ofstream out(file, std::ios::binary);
    std::uint64_t state = 0x9E3779B97F4A7C15ULL;
    for (std::size_t i = 0; i < mib; ++i) {
        for (std::size_t at = 0; at < plain.size(); at += 8) {
            state ^= state << 13, state ^= state >> 7, state ^= state << 17;
            std::copy_n(reinterpret_cast<const unsigned char*>(&state), 8, plain.data() + at);
        }
        stream.next_in = plain.data();
        stream.avail_in = static_cast<uInt>(plain.size());
        do {
            stream.next_out = packed.data();
            stream.avail_out = static_cast<uInt>(packed.size());
            deflate(&stream, i + 1 == mib ? Z_FINISH : Z_NO_FLUSH);
            out.write(reinterpret_cast<const char*>(packed.data()),
                      static_cast<std::streamsize>(packed.size() - stream.avail_out));
        } while (stream.avail_out == 0);
    }
    deflateEnd(&stream);
}

// Nanoseconds the calling thread has spent waiting for a CPU while runnable, from the
// scheduler's own count: on a loaded machine a loop waits for its turn even when nothing holds it.
std::uint64_t runQueueWaitNs() {
    std::uint64_t running = 0, waiting = 0;
    if (std::FILE* f = std::fopen("/proc/thread-self/schedstat", "re")) {
        if (std::fscanf(f, "%lu %lu", &running, &waiting) != 2) waiting = 0;
        std::fclose(f);
    }
    return waiting;
}

// The gaps between the ticks of a 1 ms timer on the loop, while it runs: as the wall clock has
// them, and without the time the loop thread waited for a CPU, which is what the loop's own work
// (or a blocking call on it) accounts for. With the last log line before the longest: where the
// loop stood still.
class StallMeter {
public:
    StallMeter(MainLoop& loop, const LogService& log)
        : logged_(log.entries().subscribe([this](const std::vector<LogEntry>& entries) {
              if (!entries.empty()) lastLine_ = entries.back().message;
          })),
          timer_(loop.startTimer(tickInterval, true, [this] {
              const auto now = Steady::now();
              const std::uint64_t waited = runQueueWaitNs();
              const double gap = std::chrono::duration<double, std::milli>(now - last_).count();
              const double own = std::max(0.0, gap - (waited - lastWaited_) / 1e6);
              if (own > longestOwn_) longestOwn_ = own, longestAfter_ = lineAtLastTick_;
              lineAtLastTick_ = lastLine_;
              gaps_.push_back(gap);
              ownGaps_.push_back(own);
              last_ = now;
              lastWaited_ = waited;
          })) {
        gaps_.reserve(1 << 20);
        ownGaps_.reserve(1 << 20);
    }

    void stop() { timer_.reset(); }
    void print(const char* label, double seconds) {
        std::printf("  %-5s %5.1f s, %zu ticks\n", label, seconds, gaps_.size());
        printGaps("wall clock", gaps_);
        printGaps("own", ownGaps_);
        std::printf("    the longest own gap came after \"%s\"\n", longestAfter_.c_str());
    }

private:
    static void printGaps(const char* label, std::vector<double>& gaps) {
        std::sort(gaps.begin(), gaps.end());
        const auto at = [&](double share) {
            return gaps[std::min(gaps.size() - 1, static_cast<std::size_t>(share * gaps.size()))];
        };
        const auto over = gaps.end() - std::upper_bound(gaps.begin(), gaps.end(), 50.0);
        std::printf("    %-10s gap median %5.2f ms  99.9%% %6.2f ms  longest %8.1f ms  "
                    "over 50 ms: %td\n",
                    label, at(0.5), at(0.999), gaps.back(), over);
    }

    Steady::time_point last_ = Steady::now();
    std::uint64_t lastWaited_ = runQueueWaitNs();
    std::vector<double> gaps_, ownGaps_;
    double longestOwn_ = 0;
    std::string lastLine_, lineAtLastTick_, longestAfter_;
    Subscription logged_;
    std::unique_ptr<Timer> timer_;
};

Task<void> pollThenQuit(std::shared_ptr<SyncEngine> engine) {
    co_await engine->pollOnce();
    QCoreApplication::quit();
}

int run(std::size_t mib, const fs::path& dir) {
    int argc = 0;
    QCoreApplication app(argc, nullptr);
    TestServer server({ServerProtocol::ftp, dir / "server"});
    writeArchive(server.root() / "big.bin.gz", mib);
    const auto archiveSize = fs::file_size(server.root() / "big.bin.gz");
    std::printf("%zu MiB of random bytes, stored as gzip (%.0f MiB), over FTP into %s\n", mib,
                archiveSize / 1048576.0, dir.c_str());

    QtMainLoop loop;
    SystemClock clock;
    WorkerPool workers;
    bench::Services services{loop, clock, workers, dir};
    const LogService& log = services.log;

    ConnectionConfig config = server.connectionConfig();
    config.name = "Stall";
    config.localPath = (dir / "local").string();
    config.requiredStableChecks = 0;
    config.deleteAfterDownload = false;
    config.checksumVerification = true;
    config.autoDecompress = true;
    auto engine = services.engine(config);

    auto start = Steady::now();
    auto busy = std::make_unique<StallMeter>(loop, log);
    spawn(loop, pollThenQuit(engine));
    app.exec();
    busy->stop();
    const double seconds = std::chrono::duration<double>(Steady::now() - start).count();

    std::error_code ec;
    const auto inflated = fs::file_size(dir / "local" / "big.bin", ec);
    if (inflated != (std::uint64_t{mib} << 20)) {
        std::printf("the file did not arrive inflated (%s); see %s\n", ec.message().c_str(),
                    (dir / "Tarnel.log").c_str());
        return 1;
    }
    start = Steady::now();
    auto idle = std::make_unique<StallMeter>(loop, log);
    QTimer::singleShot(static_cast<int>(seconds * 1000), &app, [] { QCoreApplication::quit(); });
    app.exec();
    idle->stop();

    std::printf("the loop's 1 ms timer, busy (list, download, MD5, inflate, place) and idle:\n");
    busy->print("busy", seconds);
    idle->print("idle", std::chrono::duration<double>(Steady::now() - start).count());
    services.log.flush();
    return 0;
}

}  // namespace
}  // namespace tarnel

int main(int argc, char** argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const std::size_t mib = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 2048;
    const std::filesystem::path dir =
        std::filesystem::path(argc > 2 ? argv[2] : "/tmp") / "tarnel-loop-stall-bench";
    std::filesystem::remove_all(dir);
    const int status = tarnel::run(mib, dir);
    // Once every service is gone: the stores write their files as they end.
    if (status == 0) std::filesystem::remove_all(dir);
    return status;
}
