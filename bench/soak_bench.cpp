// Tarnel headless for minutes on end against servers as Debian ships them (OpenSSH in move mode,
// vsftpd in copy mode), while files of many sizes keep arriving and faults strike on a drawn
// schedule: Tarnel killed or stopped and started again, a server restarted, connections cut or
// held by a relay, the destination file system full. Then a quiet phase, and every file is
// counted: arrived once and whole, none gone from the server without its copy, no temporary file
// left behind, and Tarnel never ended by itself. Exits 1 on any violation.
//
//     soak_bench [--minutes N] [--draw N] [--keep] [--only kill|term|server|cut|stall|full]
#include <signal.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <future>
#include <iostream>
#include <map>
#include <mutex>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "bench_support.h"
#include "connections/connection_config_json.h"
#include "engine/md5.h"
#include "platform/uuid.h"
#include "servers/native_server.h"
#include "tarnel_process.h"
#include "tcp_proxy.h"

namespace tarnel::bench {
namespace {

namespace fs = std::filesystem;
using std::chrono::seconds;
using testing::NativeServer;
using testing::NativeServerKind;
using testing::TarnelProcess;

// A fleet that takes longer than this to say how it is doing is caught in the act.
constexpr std::chrono::seconds lateAnswer{3};

// Regular files directly in `folder`, by name.
std::vector<std::string> filesIn(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(folder, ec))
        if (entry.is_regular_file()) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

// Seconds since the soak began, on every line it prints.
class Say {
public:
    std::ostream& operator()() const {
        char stamp[16];
        std::snprintf(stamp, sizeof stamp, "[%7.1f] ", secondsSince(start_));
        return std::cout << stamp;
    }

private:
    Clock::time_point start_ = Clock::now();
};

// What the feeder put on the server, and where Tarnel must place it.
struct Written {
    std::string md5;
    std::int64_t size = 0;
    bool moveMode = false;
};

// Writes files onto the server's folders until stopped: empty ones to tens of MB, most moved in
// whole from a staging folder, some written in place in chunks as a slow uploader does.
class Feeder {
public:
    Feeder(fs::path moveFolder, fs::path copyFolder, fs::path staging, std::uint64_t draw)
        : folders_{std::move(copyFolder), std::move(moveFolder)},
          staging_(std::move(staging)),
          random_(draw) {}

    void run(std::stop_token stop) {
        for (int n = 1; !stop.stop_requested(); ++n) {
            writeOne(n);
            std::this_thread::sleep_for(
                std::chrono::milliseconds(std::uniform_int_distribution<int>(200, 1500)(random_)));
        }
    }

    std::map<std::string, Written> manifest() const {
        std::lock_guard lock(mutex_);
        return manifest_;
    }

private:
    std::int64_t pickSize() {
        const double p = std::uniform_real_distribution<double>(0, 1)(random_);
        auto between = [&](std::int64_t low, std::int64_t high) {
            return std::uniform_int_distribution<std::int64_t>(low, high)(random_);
        };
        // No empty file: those are refused by design and stay on the server.
        if (p < 0.55) return between(1, 4096);
        if (p < 0.85) return between(4097, 1 << 20);
        if (p < 0.97) return between(1 << 20, 8 << 20);
        return between(10 << 20, 40 << 20);
    }

    void writeOne(int n) {
        const bool moveMode = random_() % 2 == 0;
        const std::int64_t size = pickSize();
        std::string bytes(static_cast<std::size_t>(size), '\0');
        for (std::size_t i = 0; i < bytes.size(); i += 8) {
            const std::uint64_t word = random_();
            std::memcpy(bytes.data() + i, &word, std::min<std::size_t>(8, bytes.size() - i));
        }
        char name[64];
        std::snprintf(name, sizeof name, "%s %05d-%lld.bin", moveMode ? "move" : "copy", n,
                      static_cast<long long>(size));
        const fs::path target = folders_[moveMode] / name;
        const bool inPlace = size > (64 << 10) && random_() % 3 == 0;
        const fs::path first = inPlace ? target : staging_ / name;
        std::ofstream out(first, std::ios::binary);
        constexpr std::size_t chunk = 256 << 10;
        for (std::size_t at = 0; at < bytes.size(); at += chunk) {
            out.write(bytes.data() + at, static_cast<std::streamsize>(std::min(chunk, bytes.size() - at)));
            if (inPlace) {
                out.flush();
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            }
        }
        out.close();
        // Read back before Tarnel can see it whole: the digest of what the server holds.
        const std::string md5 = computeMD5(first);
        {
            std::lock_guard lock(mutex_);
            manifest_[name] = {md5, size, moveMode};
        }
        if (!inPlace) fs::rename(first, target);
    }

    const fs::path folders_[2];  // copy mode, move mode
    const fs::path staging_;
    std::mt19937_64 random_;
    mutable std::mutex mutex_;
    std::map<std::string, Written> manifest_;
};

// A destination that can run full: a small tmpfs, filled but for a few KiB by one file.
class SmallDisk {
public:
    SmallDisk(fs::path where, int mebibytes, bool keep) : where_(std::move(where)), keep_(keep) {
        fs::create_directories(where_);
        mounted_ = run({"mount", "-t", "tmpfs", "-o", "size=" + std::to_string(mebibytes) + "m",
                        "tarnel-soak", where_.string()}) == 0;
    }
    ~SmallDisk() {
        if (mounted_ && !keep_) run({"umount", "-l", where_.string()});
    }
    bool mounted() const { return mounted_; }

    // Grows the filler in steps until the disk refuses: one call for all the free space fails
    // whole on tmpfs when a download takes a few bytes meanwhile. The bytes left free.
    std::int64_t fill() {
        const int fd = open(filler().c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        constexpr off_t step = 64 << 10;
        off_t size = 0;
        while (fd >= 0 && posix_fallocate(fd, size, step) == 0) size += step;
        if (fd >= 0) close(fd);
        struct statvfs fs {};
        statvfs(where_.c_str(), &fs);
        return static_cast<std::int64_t>(fs.f_bavail * fs.f_frsize);
    }
    void empty() {
        std::error_code ignored;
        fs::remove(filler(), ignored);
    }

private:
    fs::path filler() const { return where_ / "filler"; }

    fs::path where_;
    bool keep_;
    bool mounted_ = false;
};

enum class Fault { killTarnel, stopTarnel, restartServer, dropConnections, stallConnections, fillDisk };

const char* faultName(Fault f) {
    switch (f) {
        case Fault::killTarnel: return "SIGKILL Tarnel, start it again";
        case Fault::stopTarnel: return "SIGTERM Tarnel, start it again";
        case Fault::restartServer: return "restart a server";
        case Fault::dropConnections: return "cut every connection";
        case Fault::stallConnections: return "stall every connection";
        case Fault::fillDisk: return "fill the destination";
    }
    return "";
}

constexpr Fault allFaults[] = {Fault::killTarnel,      Fault::stopTarnel,       Fault::restartServer,
                               Fault::dropConnections, Fault::stallConnections, Fault::fillDisk};
// The word that picks one kind alone on the command line.
const char* faultKey(Fault f) {
    constexpr const char* keys[] = {"kill", "term", "server", "cut", "stall", "full"};
    return keys[static_cast<int>(f)];
}

std::optional<Fault> faultNamed(const std::string& key) {
    for (Fault f : allFaults)
        if (key == faultKey(f)) return f;
    return std::nullopt;
}

struct Options {
    double minutes = 5;
    std::uint64_t draw = static_cast<std::uint64_t>(time(nullptr));
    bool keep = false;
    std::vector<Fault> faults{std::begin(allFaults), std::end(allFaults)};
};

class Soak {
public:
    explicit Soak(const Options& options)
        : options_(options),
          random_(options.draw),
          dir_(fs::temp_directory_path() / ("tarnel-soak-" + Uuid::random().toString())),
          // Room for everything the run brings, about 100 MB a minute, and then some: only the
          // filler may fill it.
          disk_(dir_ / "destination", 512 + static_cast<int>(options.minutes * 200), options.keep),
          sftpProxy_(sftp_.connectionConfig().port),
          ftpProxy_(ftp_.connectionConfig().port),
          tarnel_(dir_ / "home") {
        const std::string tag = Uuid::random().toString().substr(0, 8);
        moveFolder_ = sftp_.makeFolder("soak-move-" + tag);
        copyFolder_ = ftp_.makeFolder("soak-copy-" + tag);
        staging_ = ftp_.makeFolder("soak-staging-" + tag);
    }

    ~Soak() {
        if (options_.keep) return;
        std::error_code ignored;
        for (const auto& folder : {moveFolder_, copyFolder_, staging_}) fs::remove_all(folder, ignored);
    }

    int run() {
        say_() << "draw " << options_.draw << ", " << options_.minutes << " minutes of faults, work in "
               << dir_ << "\n";
        if (!disk_.mounted())
            say_() << "no tmpfs could be mounted here: the destination never fills\n";
        configure();
        startTarnel();

        Feeder feeder(moveFolder_, copyFolder_, staging_, options_.draw + 1);
        std::jthread feeding([&](std::stop_token stop) { feeder.run(stop); });
        strike(Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                  std::chrono::duration<double>(options_.minutes * 60)));
        feeding.request_stop();
        feeding.join();
        endOngoingFaults();

        const auto manifest = feeder.manifest();
        say_() << "faults over; " << manifest.size() << " files written; quiet phase\n";
        settle(manifest);
        stopTarnel("the end");
        return verify(manifest);
    }

private:
    void configure() {
        auto move = sftp_.connectionConfig();
        move.name = "Move";
        move.port = sftpProxy_.port();
        move.remotePath = moveFolder_.string();
        move.localPath = (dir_ / "destination" / "move").string();
        move.deleteAfterDownload = true;
        move.pollInterval = 2;
        auto copy = ftp_.connectionConfig();
        copy.name = "Copy";
        copy.port = ftpProxy_.port();
        copy.remotePath = fs::relative(copyFolder_, NativeServer::home()).string();
        copy.localPath = (dir_ / "destination" / "copy").string();
        copy.deleteAfterDownload = false;
        copy.pollInterval = 2;
        fs::create_directories(dir_ / "home" / "config" / "Tarnel");
        // The destination is small on purpose: no free-space limit, so the disk really fills.
        std::ofstream(tarnel_.settingsFile()) << "[General]\ndisk_space_threshold_gb=0\n";
        std::ofstream(dir_ / "connections.json") << encodeConnectionList({move, copy});
        const auto imported = tarnel_.run({"--import", (dir_ / "connections.json").string()});
        if (imported.exitCode != 0)
            throw std::runtime_error("the import failed: " + imported.out + imported.err);
    }

    void startTarnel() {
        tarnel_.start({"--headless"});
        startedAt_ = Clock::now();
        ++starts_;
    }

    // Ends Tarnel with SIGTERM: it must leave with status 0 within a minute.
    void stopTarnel(const char* why) {
        tarnel_.signal(SIGTERM);
        const auto until = Clock::now() + seconds(60);
        std::optional<int> code;
        while (!(code = tarnel_.exited()) && Clock::now() < until)
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        if (!code) {
            violation("Tarnel was still running a minute after SIGTERM (" + std::string(why) + ")");
            tarnel_.signal(SIGKILL);
            tarnel_.wait();
        } else if (*code != 0) {
            violation("Tarnel ended with status " + std::to_string(*code) + " on SIGTERM (" + why +
                      "): " + errorTail());
        }
    }

    std::string errorTail() const {
        std::ifstream in(dir_ / "home" / "headless.err");
        std::string text((std::istreambuf_iterator<char>(in)), {});
        return text.size() > 2000 ? text.substr(text.size() - 2000) : text;
    }

    void violation(const std::string& what) {
        say_() << "VIOLATION: " << what << "\n";
        violations_.push_back(what);
    }

    // Tarnel must neither end by itself nor stop answering.
    void watch() {
        if (const auto code = tarnel_.exited()) {
            violation("Tarnel ended by itself with status " + std::to_string(*code) + ": " +
                      errorTail());
            startTarnel();
            return;
        }
        if (Clock::now() - startedAt_ < seconds(3) || Clock::now() - lastStatus_ < seconds(5))
            return;
        lastStatus_ = Clock::now();
        ++statusAsked_;
        // Asked aside, so that a late answer is caught while the process still stands still.
        auto asking = std::async(std::launch::async,
                                 [home = dir_ / "home"] { return TarnelProcess(home).run({"--status"}); });
        std::optional<fs::path> stacks;
        if (asking.wait_for(lateAnswer) == std::future_status::timeout) {
            // Where every thread of the silent process stands, for whoever looks into it.
            stacks = dir_ / ("stacks-" + std::to_string(statusAsked_) + ".txt");
            std::ofstream(*stacks) << capture({"gdb", "-p", std::to_string(tarnel_.pid()), "-batch",
                                               "-ex", "thread apply all bt"});
        }
        const auto status = asking.get();
        const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - lastStatus_);
        slowestAnswer_ = std::max(slowestAnswer_, took);
        if (status.exitCode != 0 && status.exitCode != 1)
            violation("tarnel --status answered " + std::to_string(status.exitCode) + ": " +
                      status.out + status.err);
        else if (stacks)
            say_() << "tarnel --status took " << took.count() << " ms\n";
        if (stacks) say_() << "its threads' stacks while it was silent: " << *stacks << "\n";
    }

    std::chrono::milliseconds between(int lowMs, int highMs) {
        return std::chrono::milliseconds(std::uniform_int_distribution<int>(lowMs, highMs)(random_));
    }

    // Faults in rounds: each kind once a round, in an order drawn from --draw, 8 to 25 seconds apart.
    void strike(Clock::time_point until) {
        std::vector<Fault> round;
        auto next = Clock::now() + between(8000, 25000);
        while (Clock::now() < until) {
            watch();
            if (ongoingUntil_ && Clock::now() >= *ongoingUntil_) endOngoingFaults();
            if (Clock::now() >= next && !ongoingUntil_) {
                if (round.empty()) {
                    for (Fault f : options_.faults)
                        if (f != Fault::fillDisk || disk_.mounted()) round.push_back(f);
                    std::shuffle(round.begin(), round.end(), random_);
                }
                inject(round.back());
                round.pop_back();
                next = Clock::now() + between(8000, 25000);
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
        }
    }

    void inject(Fault fault) {
        ++injected_[fault];
        const bool sftp = random_() % 2 == 0;
        std::ostringstream detail;
        switch (fault) {
            case Fault::killTarnel:
                tarnel_.signal(SIGKILL);
                tarnel_.wait();
                std::this_thread::sleep_for(between(0, 2000));
                startTarnel();
                break;
            case Fault::stopTarnel:
                stopTarnel("a fault");
                std::this_thread::sleep_for(between(0, 2000));
                startTarnel();
                break;
            case Fault::restartServer: {
                NativeServer& server = sftp ? sftp_ : ftp_;
                const auto away = between(1000, 10000);
                detail << (sftp ? "OpenSSH" : "vsftpd") << ", away " << away.count() << " ms";
                server.stop();
                std::this_thread::sleep_for(away);
                server.start();
                break;
            }
            case Fault::dropConnections: {
                // A burst of cuts, so that some land in mid-transfer rather than between files.
                const int cuts = 3 + static_cast<int>(random_() % 5);
                detail << cuts << " times in a row";
                for (int i = 0; i < cuts; ++i) {
                    sftpProxy_.dropAll();
                    ftpProxy_.dropAll();
                    std::this_thread::sleep_for(between(300, 3000));
                }
                break;
            }
            case Fault::stallConnections: {
                // Past a minute, a download that hears nothing gives up and resumes later.
                const auto stall = between(5000, 80000);
                detail << (sftp ? "SFTP" : "FTP control") << " for " << stall.count() << " ms";
                (sftp ? sftpProxy_ : ftpProxy_).stall(true);
                ongoingUntil_ = Clock::now() + stall;
                break;
            }
            case Fault::fillDisk: {
                const auto full = between(15000, 45000);
                detail << "for " << full.count() << " ms, " << disk_.fill() << " bytes left";
                ongoingUntil_ = Clock::now() + full;
                break;
            }
        }
        say_() << "fault: " << faultName(fault) << (detail.str().empty() ? "" : ": ")
               << detail.str() << "\n";
    }

    void endOngoingFaults() {
        sftpProxy_.stall(false);
        ftpProxy_.stall(false);
        disk_.empty();
        ongoingUntil_.reset();
    }

    // A file whose delete failed stays on the server by design, counted as downloaded.
    static bool keptAfterFailedDelete(const std::string& log, const std::string& name) {
        return log.find("delete failed: " + name + " ") != std::string::npos;
    }

    bool allArrived(const std::map<std::string, Written>& manifest) const {
        const std::string log = tarnel_.logText();
        for (const auto& name : filesIn(moveFolder_))
            if (!keptAfterFailedDelete(log, name)) return false;
        for (const auto& [name, written] : manifest)
            if (!fs::exists(localFolder(written) / name)) return false;
        return true;
    }

    // Waits for the last files (a stalled download gives up after a minute, a failed file
    // waits its retry), then some more polls in which nothing may arrive twice.
    void settle(const std::map<std::string, Written>& manifest) {
        const auto until = Clock::now() + seconds(300);
        while (!allArrived(manifest) && Clock::now() < until) {
            watch();
            std::this_thread::sleep_for(seconds(1));
        }
        say_() << (allArrived(manifest) ? "everything arrived" : "not everything arrived in 5 minutes")
               << "; ten more seconds of polls\n";
        const auto after = Clock::now() + seconds(10);
        while (Clock::now() < after) {
            watch();
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
        }
    }

    fs::path localFolder(const Written& written) const {
        return dir_ / "destination" / (written.moveMode ? "move" : "copy");
    }

    int verify(const std::map<std::string, Written>& manifest) {
        std::int64_t bytes = 0;
        std::size_t whole = 0, moved = 0, leftAfterFailedDelete = 0;
        const std::string log = tarnel_.logText();
        for (const auto& [name, written] : manifest) {
            bytes += written.size;
            const fs::path local = localFolder(written) / name;
            const fs::path remote = (written.moveMode ? moveFolder_ : copyFolder_) / name;
            const bool onServer = fs::exists(remote);
            moved += written.moveMode;
            if (!fs::exists(local)) {
                violation(name + (onServer ? ": never fetched" : ": LOST, gone from the server with no local copy"));
            } else if (fs::file_size(local) != static_cast<std::uintmax_t>(written.size) ||
                       computeMD5(local) != written.md5) {
                violation(name + ": local copy differs (" + std::to_string(fs::file_size(local)) +
                          " bytes of " + std::to_string(written.size) + ")");
            } else {
                ++whole;
            }
            if (written.moveMode && onServer) {
                if (!keptAfterFailedDelete(log, name))
                    violation(name + ": still on the server in move mode");
                else
                    ++leftAfterFailedDelete;
            }
            if (!written.moveMode && !onServer) violation(name + ": deleted from the server in copy mode");
        }
        for (const char* mode : {"move", "copy"})
            for (const auto& name : filesIn(dir_ / "destination" / mode))
                if (name.ends_with(".tarnel-partial")) {
                    // "<name>[.<tag>].tarnel-partial": an orphan once its file has arrived.
                    const auto of = std::find_if(manifest.begin(), manifest.end(), [&](const auto& m) {
                        return name.starts_with(m.first + ".");
                    });
                    if (of == manifest.end() || fs::exists(localFolder(of->second) / of->first))
                        violation(std::string(mode) + "/" + name + ": temporary file left behind");
                } else if (!manifest.contains(name)) {
                    violation(std::string(mode) + "/" + name + ": arrived twice or unknown");
                }

        std::cout << "\ndraw " << options_.draw << "; faults injected:\n";
        for (const auto& [fault, count] : injected_)
            std::cout << "  " << count << " x " << faultName(fault) << "\n";
        std::cout << "Tarnel started " << starts_ << " times; asked --status " << statusAsked_
                  << " times, slowest answer " << slowestAnswer_.count() << " ms\nfiles written " << manifest.size() << " (" << moved << " move mode, "
                  << manifest.size() - moved << " copy mode), " << bytes / 1e6 << " MB\n"
                  << "files checked whole and once: " << whole
                  << "\nmove-mode files left on the server after a failed delete: "
                  << leftAfterFailedDelete << "\nviolations: "
                  << violations_.size() << "\n";
        for (const auto& v : violations_) std::cout << "  " << v << "\n";
        if (options_.keep) std::cout << "kept: " << dir_ << "\n";
        return violations_.empty() ? 0 : 1;
    }

    Options options_;
    Say say_;
    std::mt19937_64 random_;
    fs::path dir_;
    SmallDisk disk_;
    NativeServer sftp_{NativeServerKind::openssh};
    NativeServer ftp_{NativeServerKind::vsftpd};
    TcpProxy sftpProxy_;
    TcpProxy ftpProxy_;
    TarnelProcess tarnel_;
    fs::path moveFolder_, copyFolder_, staging_;
    Clock::time_point startedAt_, lastStatus_;
    std::optional<Clock::time_point> ongoingUntil_;
    std::map<Fault, int> injected_;
    std::vector<std::string> violations_;
    int starts_ = 0;
    int statusAsked_ = 0;
    std::chrono::milliseconds slowestAnswer_{0};
};

}  // namespace
}  // namespace tarnel::bench

int main(int argc, char** argv) {
    using namespace tarnel;
    bench::Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--minutes" && i + 1 < argc) options.minutes = std::stod(argv[++i]);
        else if (arg == "--draw" && i + 1 < argc) options.draw = std::stoull(argv[++i]);
        else if (arg == "--keep") options.keep = true;
        else if (const auto f = arg == "--only" && i + 1 < argc ? bench::faultNamed(argv[++i]) : std::nullopt)
            options.faults = {*f};
        else {
            std::cerr << "usage: soak_bench [--minutes N] [--draw N] [--keep] "
                         "[--only kill|term|server|cut|stall|full]\n";
            return 2;
        }
    }
    for (auto kind : {testing::NativeServerKind::openssh, testing::NativeServerKind::vsftpd})
        if (const auto why = testing::NativeServer::unavailable(kind)) {
            std::cerr << "cannot soak: " << *why << "\n";
            return 2;
        }
    signal(SIGPIPE, SIG_IGN);
    std::cout << std::unitbuf;  // each line as it happens, also into a file
    try {
        return bench::Soak(options).run();
    } catch (const std::exception& e) {
        std::cerr << "soak_bench: " << e.what() << "\n";
        return 2;
    }
}
