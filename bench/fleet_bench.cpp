// Tarnel's engine beside its peers, on the same local servers in the same run:
//   small-files  1,000 files of 10 KB, stable at once, 4 at a time, deleted after download,
//                from the first poll to the last file placed; beside lftp mirror -P4
//                --Remove-source-files and rclone move --transfers 4. On the Python test
//                servers, or (native-small-files) on a server as Debian ships it, over
//                several rounds with the median of each contender; the engine runs twice,
//                with checksum verification off and on; `only` names the contender to run
//                (tarnel, for both engine runs, lftp or rclone; "all" for every one), for
//                profiling it alone; `place` is the local folder the files land in (/dev/shm/... by
//                default), to measure on a disk that must write them.
//   large-file   one 1 GiB file through the engine, checksum verification off and on, beside
//                the curl tool.
//   idle-fleet   50 connections polling an empty folder every 2 s: CPU per minute, memory.
// Usage: fleet_bench small-files [ftp|sftp] [count] [folder]
//        | native-small-files vsftpd|proftpd|pure_ftpd|proftpd_sftp|openssh [count] [rounds]
//          [only] [place]
//        | large-file [ftp|sftp] [MiB] | idle-fleet - [seconds]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <functional>
#include <optional>
#include <iostream>
#include <random>
#include <thread>

#include <sys/resource.h>

#include <QCoreApplication>
#include <QTimer>

#include "bench_support.h"
#include "engine/ftp_remote_service.h"
#include "engine/sync_engine.h"
#include "connections/connection_config_json.h"
#include "fleet/connections_manager.h"
#include "platform/posix/group_file_syncer.h"
#include "platform/qt/qt_main_loop.h"
#include "platform/sleep_monitor.h"
#include "platform/sound_player.h"
#include "platform/testing/virtual_loop.h"
#include "records/app_settings.h"
#include "records/download_tracker.h"
#include "records/history_service.h"
#include "records/log_service.h"
#include "records/notification_service.h"
#include "records/partial_download_tracker.h"
#include "records/stats_service.h"
#include "servers/native_server.h"
#include "servers/test_server.h"
#include "transfer/curl_transfer_client.h"
#include "transfer/ftp_service.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;
using bench::Clock;
using bench::countFiles;
using bench::cpuSeconds;
using bench::residentKiB;
using bench::run;
using bench::secondsSince;
using bench::Silent;
using testing::ServerProtocol;
using testing::TestServer;

// Each small-file run leaves a socket in TIME_WAIT for every data connection, and the server's
// passive-mode binds slow down while thousands remain: each contender starts once they are gone.
void settleSockets() {
    auto timeWaits = [] {
        int n = 0;
        for (const char* table : {"/proc/net/tcp", "/proc/net/tcp6"}) {
            std::ifstream in(table);
            std::string sl, local, remote, state, line;
            std::getline(in, line);
            while (in >> sl >> local >> remote >> state && std::getline(in, line))
                if (state == "06") ++n;
        }
        return n;
    };
    const auto until = Clock::now() + std::chrono::seconds(75);
    while (timeWaits() > 50 && Clock::now() < until)
        std::this_thread::sleep_for(std::chrono::seconds(1));
}

void fill(const fs::path& root, int count, std::size_t size) {
    std::mt19937 random(42);
    std::string bytes(size, '\0');
    for (int i = 0; i < count; ++i) {
        for (auto& b : bytes)
            b = static_cast<char>(random());
        std::ofstream(root / ("file-" + std::to_string(i) + ".bin"), std::ios::binary) << bytes;
    }
}

// Everything an engine needs, on a loop that runs worker jobs for real.
struct Bench {
    // tmpfs by default: on this machine ext4 inode allocation slows with every create and
    // delete, which would measure the disk's history rather than the programs.
    explicit Bench(fs::path place = "/dev/shm/tarnel-bench") : services{loop, loop, workers, place} {}

    // One poll that fetches everything in the server's folder; its wall-clock seconds.
    double pollOnce(const ConnectionConfig& config) {
        auto engine = services.engine(config);
        const auto start = Clock::now();
        spawn(loop, engine->pollOnce());
        loop.runUntilIdle();
        return secondsSince(start);
    }

    WorkerPool workers;
    VirtualLoop loop{&workers};
    bench::Services services;
    const fs::path& dir = services.dir;
};

ConnectionConfig engineConfig(ConnectionConfig c, const fs::path& into) {
    c.name = "Bench";
    c.localPath = into.string();
    c.requiredStableChecks = 0;
    c.maxConcurrentDownloads = 4;
    c.deleteAfterDownload = true;
    c.excludedExtensions = "";
    return c;
}

std::string peerUrl(const ConnectionConfig& c) {
    return std::string(c.transferProtocol == TransferProtocol::sftp ? "sftp" : "ftp") + "://" +
           c.username + ":" + c.password + "@127.0.0.1:" + std::to_string(c.port) + "/";
}

std::string rcloneRemote(const ConnectionConfig& c) {
    const std::string obscured = bench::capture({"rclone", "obscure", c.password});
    return std::string(c.transferProtocol == TransferProtocol::sftp ? ":sftp" : ":ftp") +
           ",host=127.0.0.1,port=" + std::to_string(c.port) + ",user=" + c.username +
           ",pass=" + obscured + ":";
}

// `cpu`: the contender's own CPU seconds, which a loaded machine stretches far less than the
// wall-clock time.
void report(const std::string& who, double seconds, std::size_t files, std::uint64_t bytes,
            double cpu) {
    std::printf("  %-34s %8.2f s  %8.1f files/s  %8.1f MB/s  %6.2f ms CPU/file\n", who.c_str(),
                seconds, files / seconds, bytes / seconds / 1e6, files ? cpu * 1e3 / files : 0.0);
}

// A server's folder that the contenders empty, named three ways.
struct Drop {
    ConnectionConfig server;   // protocol, address and login
    fs::path local;            // the folder on this machine
    std::string belowLogin;    // its path below the login folder ("" for the login folder)
    std::string engineRemote;  // its remotePath for the engine (absolute for SFTP)
    std::function<void()> handOver = [] {};  // gives new files to the server's user
};

// One contender's run: wall-clock seconds, files that arrived, its own CPU seconds.
struct Outcome {
    double seconds = 0;
    std::size_t files = 0;
    double cpu = 0;
};

struct Contender {
    std::string name;
    std::function<Outcome(const fs::path& target)> run;
    std::vector<Outcome> outcomes = {};
};

// A peer tool, run to its end: from its start to its exit, and the CPU it spent.
Outcome runPeer(const std::vector<std::string>& argv, const fs::path& target) {
    const auto start = Clock::now();
    const double cpu = cpuSeconds(RUSAGE_CHILDREN);
    run(argv);
    return {secondsSince(start), countFiles(target), cpuSeconds(RUSAGE_CHILDREN) - cpu};
}

Outcome median(std::vector<Outcome> outcomes) {
    std::sort(outcomes.begin(), outcomes.end(),
              [](const Outcome& a, const Outcome& b) { return a.seconds < b.seconds; });
    return outcomes[outcomes.size() / 2];
}

// `belowLogin` empty: the files lie in the login folder itself. Each round runs every contender
// once, each round in another order, so that none always runs first or right after another.
// 2 when `only` names no contender.
int smallFiles(const Drop& drop, int count, int rounds, const fs::path& scratch,
               const std::string& only = "") {
    fs::create_directories(drop.local);
    const std::size_t size = 10 * 1024;
    const std::uint64_t bytes = std::uint64_t(count) * size;
    const bool sftp = drop.server.transferProtocol == TransferProtocol::sftp;
    std::printf("%d files of 10 KB over %s in %s (delete after download, 4 at a time), %d round(s)\n",
                count, sftp ? "SFTP" : "FTP", ("/" + drop.belowLogin).c_str(), rounds);

    const std::string sftpSetup =
        "set sftp:auto-confirm yes; set sftp:connect-program 'ssh -a -x -o "
        "StrictHostKeyChecking=no -o UserKnownHostsFile=/dev/null';";
    // lftp starts an SFTP session in "/", an FTP one in the login folder.
    const std::string lftpFolder = sftp                     ? drop.engineRemote
                                   : drop.belowLogin.empty() ? "."
                                                             : drop.belowLogin;
    // With checksums, each file is also digested as it is written and compared with the
    // server's own checksum where the server offers one.
    const auto engine = [&](bool checksums) {
        return [&, checksums](const fs::path& target) {
            Bench bench{scratch / "engine"};
            auto config = engineConfig(drop.server, target);
            config.remotePath = drop.engineRemote;
            config.checksumVerification = checksums;
            const double cpu = cpuSeconds();
            const double t = bench.pollOnce(config);
            return Outcome{t, countFiles(target), cpuSeconds() - cpu};
        };
    };
    std::vector<Contender> contenders{
        {"tarnel engine", engine(false)},
        {"tarnel engine, checksums verified", engine(true)},
        {"lftp mirror -P4 --Remove-source-files",
         [&](const fs::path& target) {
             return runPeer({"lftp", "-c",
                             sftpSetup + " open " + peerUrl(drop.server) +
                                 "; mirror -P4 --Remove-source-files '" + lftpFolder + "' " +
                                 target.string()},
                            target);
         }},
        {"rclone move --transfers 4", [&](const fs::path& target) {
             return runPeer({"rclone", "move", "--transfers", "4",
                             rcloneRemote(drop.server) + drop.belowLogin, target.string()},
                            target);
         }}};

    if (!only.empty() && only != "all")
        std::erase_if(contenders, [&](const Contender& c) { return !c.name.starts_with(only); });
    if (contenders.empty()) {
        std::fprintf(stderr, "fleet_bench: no contender named %s (tarnel, lftp or rclone)\n",
                     only.c_str());
        return 2;
    }
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < contenders.size(); ++i) {
            Contender& c = contenders[(i + round) % contenders.size()];
            const fs::path target = scratch / "target";
            fs::remove_all(target);
            // What a contender left behind, or an interrupted run, would be counted again.
            for (const auto& left : fs::directory_iterator(drop.local))
                fs::remove_all(left.path());
            fill(drop.local, count, size);
            drop.handOver();
            settleSockets();
            const Outcome o = c.run(target);
            c.outcomes.push_back(o);
            report(c.name, o.seconds, o.files, bytes, o.cpu);
        }
    }
    if (rounds > 1) {
        std::printf("median of %d rounds:\n", rounds);
        for (const Contender& c : contenders) {
            const Outcome m = median(c.outcomes);
            report(c.name, m.seconds, m.files, bytes, m.cpu);
        }
    }
    fs::remove_all(scratch);
    return 0;
}

// The Python test servers; `folder` below their root, or the root itself.
int smallFilesOnTestServer(ServerProtocol protocol, int count, const std::string& folder) {
    const fs::path scratch = "/dev/shm/tarnel-bench";
    TestServer server({protocol, scratch / "server"});
    return smallFiles({server.connectionConfig(), server.root() / folder, folder, "/" + folder},
                      count, 1, scratch);
}

// vsftpd, OpenSSH, ... as Debian ships them, not chrooted, from a sub-folder of the user's home.
int smallFilesOnNativeServer(const std::string& name, int count, int rounds,
                             const std::string& only, const fs::path& place) {
    using testing::NativeServer;
    using testing::NativeServerKind;
    std::optional<NativeServerKind> kind;
    for (auto k : {NativeServerKind::vsftpd, NativeServerKind::proftpd, NativeServerKind::pureFtpd,
                   NativeServerKind::proftpdSftp, NativeServerKind::openssh})
        if (name == testing::nativeServerName(k)) kind = k;
    if (!kind) {
        std::fprintf(stderr, "fleet_bench: no native server named %s\n", name.c_str());
        return 2;
    }
    if (const auto why = NativeServer::unavailable(*kind)) {
        std::fprintf(stderr, "fleet_bench: %s\n", why->c_str());
        return 2;
    }
    NativeServer server(*kind);
    const fs::path folder = server.makeFolder("bench") / "drop";
    const auto config = server.connectionConfig();
    const std::string below = fs::relative(folder, NativeServer::home()).string();
    const int status =
        smallFiles({config, folder, below,
                    config.transferProtocol == TransferProtocol::sftp ? folder.string() : below,
                    [folder] { NativeServer::handOver(folder.parent_path()); }},
                   count, rounds, place, only);
    fs::remove_all(folder.parent_path());
    return status;
}

int largeFile(ServerProtocol protocol, std::size_t mib) {
    Bench bench;
    TestServer server({protocol, bench.dir / "server"});
    const std::uint64_t bytes = std::uint64_t(mib) << 20;
    std::printf("one file of %zu MiB over %s\n", mib,
                protocol == ServerProtocol::sftp ? "SFTP" : "FTP");
    // Written without holding it in memory; again for each run that moves it off the server.
    const auto serve = [&] {
        std::ofstream out(server.root() / "file-0.bin", std::ios::binary | std::ios::trunc);
        std::string block(1 << 20, '\0');
        std::mt19937 random(7);
        for (auto& b : block)
            b = static_cast<char>(random());
        for (std::size_t i = 0; i < mib; ++i)
            out << block;
    };
    serve();
    auto start = Clock::now();
    double cpu = cpuSeconds(RUSAGE_CHILDREN);
    run({"curl", "-s", "-k", "-o", (bench.dir / "curl.bin").string(),
         peerUrl(server.connectionConfig()) + "file-0.bin"});
    report("curl", secondsSince(start), 1, bytes, cpuSeconds(RUSAGE_CHILDREN) - cpu);
    fs::remove(bench.dir / "curl.bin");

    // With checksums the engine digests the bytes as they are written and, over FTP, the
    // server computes its own SHA-256 of the file after the transfer.
    for (const bool checksums : {false, true}) {
        if (checksums) serve();
        auto config = engineConfig(server.connectionConfig(), bench.dir / "tarnel");
        config.checksumVerification = checksums;
        cpu = cpuSeconds();
        const double t = bench.pollOnce(config);
        report(checksums ? "tarnel engine, checksum verified"
                         : "tarnel engine (list, fetch, verify, move, delete)",
               t, countFiles(bench.dir / "tarnel"), bytes, cpuSeconds() - cpu);
        fs::remove_all(bench.dir / "tarnel");
    }
    fs::remove_all(bench.dir);
    return 0;
}

int idleFleet(int connections, int seconds) {
    int argc = 0;
    QCoreApplication app(argc, nullptr);
    const fs::path dir = "/dev/shm/tarnel-bench-idle";
    TestServer server({ServerProtocol::ftp, dir / "server"});
    QtMainLoop loop;
    SystemClock clock;
    WorkerPool workers;
    bench::Services s{loop, clock, workers, dir};

    std::vector<ConnectionConfig> list;
    for (int i = 0; i < connections; ++i) {
        auto c = server.connectionConfig();
        c.name = "Idle " + std::to_string(i);
        c.localPath = (dir / "downloads").string();
        c.pollInterval = 2;
        list.push_back(c);
    }
    // The manager as the program builds it, engines and all.
    s.store.setValue(ConnectionsManager::storageKey, encodeConnectionList(list));
    FleetServices fleet{s.runtime, s.store,  s.settings, s.log,    s.stats,
                        s.history, s.notifications, s.sleep, s.silent,  dir / "partials.json",
                        dir / "known_hosts"};
    fleet.journal = s.journal;
    auto manager = std::make_shared<ConnectionsManager>(fleet);
    manager->startAll();
    const double cpuBefore = cpuSeconds();
    QTimer::singleShot(seconds * 1000, &app, [] { QCoreApplication::quit(); });
    app.exec();
    const double cpu = cpuSeconds() - cpuBefore;
    std::printf("%d connections polling an empty FTP folder every 2 s for %d s:\n", connections,
                seconds);
    std::printf("  CPU %.2f s per minute (%.1f%% of one core), resident memory %.1f MiB\n",
                cpu * 60 / seconds, cpu / seconds * 100, residentKiB() / 1024.0);
    manager->stopAll();
    s.log.flush();
    std::_Exit(0);  // transfers in flight are not waited for, as in the program
}

}  // namespace
}  // namespace tarnel

int main(int argc, char** argv) {
    using namespace tarnel;
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const std::string mode = argc > 1 ? argv[1] : "";
    const auto protocol =
        argc > 2 && std::string(argv[2]) == "sftp" ? ServerProtocol::sftp : ServerProtocol::ftp;
    const int number = argc > 3 ? std::atoi(argv[3]) : 0;
    if (mode == "small-files")
        return smallFilesOnTestServer(protocol, number > 0 ? number : 1000, argc > 4 ? argv[4] : "");
    if (mode == "native-small-files")
        return smallFilesOnNativeServer(argc > 2 ? argv[2] : "", number > 0 ? number : 1000,
                                        argc > 4 ? std::max(1, std::atoi(argv[4])) : 1,
                                        argc > 5 ? argv[5] : "",
                                        argc > 6 ? argv[6] : "/dev/shm/tarnel-bench");
    if (mode == "large-file")
        return largeFile(protocol, number > 0 ? number : 1024);
    if (mode == "idle-fleet")
        return idleFleet(50, number > 0 ? number : 60);
    std::fprintf(
        stderr,
        "usage: fleet_bench small-files [ftp|sftp] [count] [folder] | native-small-files "
        "vsftpd|proftpd|pure_ftpd|proftpd_sftp|openssh [count] [rounds] [only] [place] | large-file [ftp|sftp] [MiB] | "
        "idle-fleet - [seconds]\n");
    return 2;
}
