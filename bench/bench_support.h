#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <sys/resource.h>

#include "connections/connection_config.h"
#include "engine/sync_engine.h"
#include "platform/notifier.h"
#include "platform/posix/group_file_syncer.h"
#include "platform/runtime.h"
#include "platform/sleep_monitor.h"
#include "platform/sound_player.h"
#include "records/app_settings.h"
#include "records/history_service.h"
#include "records/journal.h"
#include "records/log_service.h"
#include "records/notification_service.h"
#include "records/partial_download_tracker.h"
#include "records/stats_service.h"

// What the benchmark programs share: timing, CPU and memory of this process, peer tools run to
// their end, services that stay quiet, and the services an engine is built on.
namespace tarnel::bench {

using Clock = std::chrono::steady_clock;

class Silent final : public Notifier, public SoundPlayer {
public:
    void post(const std::string&, const std::string&, const std::string&, bool) override {}
    void play(const std::string&) override {}
};

// CPU seconds, user and system, of this process (`who` RUSAGE_SELF) or of the peers it has
// waited for (RUSAGE_CHILDREN).
double cpuSeconds(int who = RUSAGE_SELF);
double secondsSince(Clock::time_point start);
// Resident memory of this process, in KiB.
long residentKiB();
// What the heap holds in use (all arenas, mapped blocks included), in KiB: resident memory less
// this is what the allocator keeps of freed memory, the program's code and its libraries.
long liveHeapKiB();

// Runs a peer tool to its end, quietly; its exit code.
int run(std::vector<std::string> argv);
// A peer tool's standard output, without its last line break.
std::string capture(std::vector<std::string> argv);

// Files that arrived below `root`; none when a contender failed to make it.
std::size_t countFiles(const std::filesystem::path& root);

// The services of the program, with their files in `dir`, on the given loop and clock; nothing
// is shown or played and the disk-space warning is off.
struct Services {
    Services(MainLoop& loop, tarnel::Clock& clock, WorkerPool& workers, std::filesystem::path dir);

    // One engine of `config` on these services, reaching its server through libcurl.
    std::shared_ptr<SyncEngine> engine(const ConnectionConfig& config);

    std::filesystem::path dir;
    Runtime runtime;
    MemorySettingsStore store;
    AppSettings settings;
    LogService log;
    StatsService stats;
    std::shared_ptr<Journal> journal;
    HistoryService history;
    Silent silent;
    NotificationService notifications;
    ManualSleepMonitor sleep;
    PartialDownloadTracker partials;
    GroupFileSyncer syncer;
};

}  // namespace tarnel::bench
