#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <memory>

#include "connections/connection_config.h"
#include "engine/engine_services.h"
#include "engine/sync_engine.h"
#include "memory_remote.h"
#include "platform/runtime.h"
#include "platform/settings_store.h"
#include "platform/sleep_monitor.h"
#include "platform/testing/virtual_loop.h"
#include "records/app_settings.h"
#include "records/download_tracker.h"
#include "records/history_service.h"
#include "records/log_service.h"
#include "records/notification_service.h"
#include "records/partial_download_tracker.h"
#include "records/stats_service.h"
#include "recording_notifier.h"
#include "recording_syncer.h"

namespace tarnel::testing {

// The whole content of a file; empty if it cannot be read.
inline std::string readFile(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// Everything an engine or the manager is built from, on virtual time, with stores in a fresh
// folder and a server in memory.
struct EngineFixture : ::testing::Test {
    std::filesystem::path dir = makeTempDir();
    VirtualLoop loop{&workers};
    WorkerPool workers;
    Runtime runtime{loop, loop, workers};
    MemorySettingsStore settingsStore;
    AppSettings settings{settingsStore, dir / "autostart" / "tarnel.desktop"};
    LogService logService{loop, loop, dir / "Tarnel.log"};
    StatsService stats{settingsStore, loop};
    // One connection to the journal for every store, as the application has.
    std::shared_ptr<Journal> journal = Journal::open(dir / "journal.db");
    HistoryService history{loop, journal, dir / "history.json"};
    RecordingNotifier notifier;
    NotificationService notifications{settings, notifier};
    ManualSleepMonitor sleepMonitor;
    RecordingSoundPlayer soundPlayer;
    PartialDownloadTracker partials{journal, dir / "partials.json", &loop};
    RecordingSyncer syncer{loop};
    std::shared_ptr<MemoryServer> server = std::make_shared<MemoryServer>();
    ConnectionConfig config = defaultConfig();

    ~EngineFixture() override {
        std::error_code ignored;
        std::filesystem::remove_all(dir, ignored);
    }

    static std::filesystem::path makeTempDir() {
        auto d = std::filesystem::temp_directory_path() /
                 ("tarnel-test-" + Uuid::random().toString());
        std::filesystem::create_directories(d);
        return d;
    }

    ConnectionConfig defaultConfig() const {
        ConnectionConfig c;
        c.name = "Test";
        c.host = "memory";
        c.localPath = (dir / "inbox").string();
        return c;
    }

    // With the fixture's syncer, or `fileSyncer`.
    EngineServices engineServices(FileSyncer* fileSyncer = nullptr) {
        return {runtime,  logService,    stats,        history,     settings,
                partials, notifications, sleepMonitor, soundPlayer,
                fileSyncer ? *fileSyncer : syncer};
    }

    // An engine of `c` on the in-memory server `s`, beside the fixture's stores.
    std::shared_ptr<SyncEngine> makeEngine(const ConnectionConfig& c,
                                           std::shared_ptr<MemoryServer> s) {
        return std::make_shared<SyncEngine>(
            c, std::make_unique<MemoryRemote>(loop, std::move(s)),
            std::make_unique<DownloadTracker>(partials.journal(), settingsStore, c.id.toString()),
            engineServices());
    }
    std::shared_ptr<SyncEngine> makeEngine() { return makeEngine(config, server); }

    void markDownloaded(const std::string& key, std::int64_t size) {
        DownloadTracker(partials.journal(), settingsStore, config.id.toString()).markDownloaded(key, size);
    }

    // Log lines are checked in their formatted form, "[time] LEVEL message", by substring.
    int countLogLines(const std::string& text) {
        loop.runUntilIdle();
        int n = 0;
        for (const auto& e : logService.entries()())
            if (logService.formattedLine(e).find(text) != std::string::npos) ++n;
        return n;
    }
    bool hasLogLine(const std::string& text) { return countLogLines(text) > 0; }
};

}  // namespace tarnel::testing
