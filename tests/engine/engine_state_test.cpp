#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <stdexcept>

#include "engine_fixture.h"

namespace tarnel::testing {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

struct EngineStateTest : EngineFixture {};

TEST_F(EngineStateTest, StartWaitsOneIntervalAndAPollLongerThanTheIntervalNeverOverlaps) {
    server->listingDelay = 45s;
    auto engine = makeEngine();
    engine->start();
    EXPECT_EQ(engine->statusText()(), "Waiting...");
    EXPECT_TRUE(hasLogLine("[Test] Started (interval: 30s, protocol: FTP)"));

    loop.advance(29s);
    EXPECT_EQ(server->listings, 0);
    loop.advance(1s);  // 30 s: the first poll, its listing runs until 75 s
    EXPECT_EQ(server->listings, 1);
    EXPECT_EQ(engine->connectionState()(), ConnectionState::syncing);
    EXPECT_EQ(engine->statusText()(), "Syncing...");
    EXPECT_TRUE(engine->isSyncing()());

    loop.advance(45s);  // 60 s fire dropped by the running poll; it ends at 75 s
    EXPECT_EQ(server->listings, 1);
    EXPECT_EQ(engine->connectionState()(), ConnectionState::connected);
    EXPECT_EQ(engine->statusText()(), "Connected");
    EXPECT_FALSE(engine->syncInProgress());
    EXPECT_FALSE(engine->isSyncing()());

    loop.advance(15s);  // 90 s: the next fire polls again
    EXPECT_EQ(server->listings, 2);
    EXPECT_EQ(server->maxListingsInFlight, 1);
}

TEST_F(EngineStateTest, PauseDuringAPollLetsItFinishAndStopsTheNextOnes) {
    server->listingDelay = 10s;
    auto engine = makeEngine();
    engine->start();
    loop.advance(30s);
    ASSERT_EQ(server->listings, 1);

    engine->togglePause();
    EXPECT_TRUE(engine->isPaused()());
    EXPECT_EQ(engine->statusText()(), "Paused");
    EXPECT_EQ(engine->connectionState()(), ConnectionState::idle);

    loop.advance(10s);  // the running poll goes on and writes over "Paused"
    EXPECT_EQ(engine->statusText()(), "Connected");
    EXPECT_TRUE(engine->isPaused()());
    loop.advance(300s);
    EXPECT_EQ(server->listings, 1);

    // Resuming polls at once, then on the timer again.
    engine->togglePause();
    loop.runUntilIdle();
    EXPECT_EQ(server->listings, 2);
    EXPECT_TRUE(hasLogLine("[Test] Resumed"));
    loop.advance(40s);
    EXPECT_EQ(server->listings, 3);
}

TEST_F(EngineStateTest, SleepStopsTheTimerAndWakeResumesAfterThreeSecondsUnlessPaused) {
    auto engine = makeEngine();
    engine->start();
    sleepMonitor.fireSleep();
    EXPECT_TRUE(hasLogLine("[Test] System going to sleep \u2014 pausing sync timer"));
    loop.advance(120s);
    EXPECT_EQ(server->listings, 0);
    EXPECT_FALSE(engine->isPaused()());  // sleep leaves the user's pause alone

    sleepMonitor.fireWake();
    EXPECT_TRUE(hasLogLine("[Test] System woke up \u2014 resuming sync"));
    loop.advance(2999ms);
    EXPECT_EQ(server->listings, 0);
    loop.advance(1ms);
    EXPECT_EQ(server->listings, 1);
    loop.advance(30s);  // the timer is back
    EXPECT_EQ(server->listings, 2);

    // The wake of a paused engine only logs.
    engine->togglePause();
    sleepMonitor.fireSleep();
    sleepMonitor.fireWake();
    loop.advance(120s);
    EXPECT_EQ(countLogLines("[Test] System woke up \u2014 resuming sync"), 2);
    EXPECT_EQ(server->listings, 2);
}

TEST_F(EngineStateTest, WithoutPauseResumeOnWakeSleepAndWakeChangeNothing) {
    settings.setPauseResumeOnWake(false);
    auto engine = makeEngine();
    engine->start();
    sleepMonitor.fireSleep();
    loop.advance(30s);
    EXPECT_EQ(server->listings, 1);  // the timer stayed
    sleepMonitor.fireWake();
    loop.advance(5s);
    EXPECT_EQ(server->listings, 1);  // no extra poll
    EXPECT_FALSE(hasLogLine("[Test] System woke up \u2014 resuming sync"));
    EXPECT_FALSE(hasLogLine("[Test] System going to sleep \u2014 pausing sync timer"));
}

TEST_F(EngineStateTest, OutsideTheScheduleAPollOnlyShowsTheWindow) {
    config.scheduleEnabled = true;
    config.scheduleStartHour = 22;
    config.scheduleEndHour = 6;
    loop.setLocalTime(2024, 3, 7, 21, 30);  // a Thursday
    auto engine = makeEngine();
    engine->start();
    loop.advance(30s);
    EXPECT_EQ(server->listings, 0);
    EXPECT_EQ(engine->connectionState()(), ConnectionState::idle);
    EXPECT_EQ(engine->statusText()(), "Scheduled 22:00\u20136:00");
    EXPECT_FALSE(engine->syncInProgress());
    loop.advance(30min);  // 22:00 and after: inside, polls list again
    EXPECT_GT(server->listings, 0);
}

TEST_F(EngineStateTest, AFolderThatCannotBeMadeFailsThePollBeforeListing) {
    config.localPath = "/proc/version/inbox";  // a file stands where the folder would go
    settings.setNotificationsEnabled(true);
    auto engine = makeEngine();
    engine->start();
    loop.advance(30s);
    EXPECT_EQ(server->listings, 0);
    EXPECT_EQ(engine->connectionState()(), ConnectionState::error);
    EXPECT_EQ(engine->statusText()(), "Folder error");
    EXPECT_TRUE(hasLogLine("ERR [Test] Cannot write to '/proc/version/inbox'. Check the "
                           "folder's permissions in the file manager."));
    ASSERT_EQ(notifier.posted.size(), 1u);
    EXPECT_EQ(notifier.posted[0].identifier, "folder-Test");
    EXPECT_FALSE(engine->syncInProgress());
    loop.advance(30s);  // the timer goes on: the next fire tries again
    EXPECT_EQ(notifier.posted.size(), 2u);
}

TEST_F(EngineStateTest, TooLittleFreeSpaceFailsEvenWithTheWarningOff) {
    settings.setDiskSpaceThresholdGB(1 << 30);  // more than any disk here
    auto engine = makeEngine();
    EXPECT_EQ(engine->checkLocalFolder()->kind(), FTPError::Kind::insufficientDiskSpace);
    settings.setDiskSpaceWarningEnabled(false);  // a 1 GB floor stays, which this disk has
    EXPECT_FALSE(engine->checkLocalFolder().has_value());
    config.localPath.clear();  // no folder: no test at all
    EXPECT_FALSE(makeEngine()->checkLocalFolder().has_value());
}

TEST_F(EngineStateTest, FilesSettleOverPollsAndFilteredOnesAreNeverTracked) {
    config.requiredStableChecks = 2;
    config.minFileSize = 10;
    server->files = {{"a.jpg", std::string(100, 'a')},
                     {"tiny.jpg", "123"},
                     {"empty.jpg", ""},
                     {"b.jpg.tarnel-partial", std::string(50, 'b')},
                     {"c.jpg.filepart", std::string(50, 'c')},  // another client's upload
                     {"x.tmp", std::string(50, 'x')}};
    auto engine = makeEngine();

    // Sizes 100, 200, 200, 200: the count goes 0, 0, 1, 2 and the fourth pass returns it.
    EXPECT_TRUE(engine->updateStability({{"a.jpg", 100, false, ""}}).empty());
    EXPECT_TRUE(engine->updateStability({{"a.jpg", 200, false, ""}}).empty());
    EXPECT_TRUE(engine->updateStability({{"a.jpg", 200, false, ""}}).empty());
    auto stable = engine->updateStability({{"a.jpg", 200, false, ""}});
    ASSERT_EQ(stable.size(), 1u);
    EXPECT_EQ(stable[0].stableCount, 2);
    EXPECT_EQ(engine->trackedSnapshots()().at(0).isGrowing, false);

    // Vanishing for one pass forgets it: it comes back new.
    engine->updateStability({});
    EXPECT_EQ(engine->trackedFileCount()(), 0);
    engine->updateStability({{"a.jpg", 200, false, ""}});
    EXPECT_EQ(countLogLines("[Test] New: a.jpg ("), 2);  // at 100 bytes, then again at 200

    // Through a poll: the filters keep a.jpg and empty.jpg (size 0 passes every minimum).
    engine->start();
    loop.advance(30s);
    const auto tracked = [&] {
        std::vector<std::string> names;
        for (auto& s : engine->trackedSnapshots()()) names.push_back(s.name);
        return names;
    };
    EXPECT_EQ(tracked(), (std::vector<std::string>{"a.jpg", "empty.jpg"}));

    // a.jpg settles and is fetched within two more polls: the snapshots name it no longer.
    loop.advance(60s);
    EXPECT_EQ(engine->totalTransferred()(), 1);
    EXPECT_EQ(tracked(), (std::vector<std::string>{"empty.jpg"}));
}

TEST_F(EngineStateTest, TwoFoldersWithOneNameGiveTwoKeysAndDownloadedFilesAreSkipped) {
    config.requiredStableChecks = 0;
    config.deleteAfterDownload = false;
    markDownloaded("x/a.txt", 10);
    auto engine = makeEngine();
    auto stable = engine->updateStability(
        {{"a.txt", 10, false, "x/a.txt"}, {"a.txt", 10, false, "y/a.txt"}});
    ASSERT_EQ(stable.size(), 1u);  // x/a.txt|10 was fetched before
    EXPECT_EQ(stable[0].relativePath, "y/a.txt");
    // Another size is another file.
    stable = engine->updateStability({{"a.txt", 11, false, "x/a.txt"}, {"a.txt", 10, false, "y/a.txt"}});
    EXPECT_EQ(stable.size(), 2u);
}

TEST_F(EngineStateTest, EachDownloadIsOnRecordBeforeItStartsAndAMoveLeavesNoRecords) {
    // More files than the records written in one go, and one resumed from an earlier run.
    config.requiredStableChecks = 0;
    config.deleteAfterDownload = true;
    for (int i = 0; i < 70; ++i) server->files["f" + std::to_string(i) + ".bin"] = "content";
    const auto cut = dir / "inbox" / "f40.bin.tarnel-partial";
    fs::create_directories(cut.parent_path());
    std::ofstream(cut) << "con";
    partials.record({"f40.bin", cut.string(), 7, 3, config.id.toString(), {}, {}, 0, ""});
    std::vector<std::string> unrecorded;
    server->beforeDownload = [&](const std::string& name) {
        // What a restart would read now.
        if (!PartialDownloadTracker(dir / "partials.json", &loop).partial(config.id.toString(), name))
            unrecorded.push_back(name);
    };
    auto engine = makeEngine();
    engine->start();
    loop.advance(30s);
    EXPECT_TRUE(unrecorded.empty()) << unrecorded.front();
    EXPECT_TRUE(server->files.empty());
    EXPECT_TRUE(hasLogLine("Resuming: f40.bin from 3 bytes (attempt 1/"));
    EXPECT_EQ(readFile(dir / "inbox" / "f40.bin"), "content");
    partials.flush();
    for (int i = 0; i < 70; ++i)
        EXPECT_FALSE(PartialDownloadTracker(dir / "partials.json", &loop)
                         .partial(config.id.toString(), "f" + std::to_string(i) + ".bin"));
}

// Copy mode: a file is in its folder only once a restart would know it, by its booking or by
// its placed record, and so would not fetch it again.
TEST_F(EngineStateTest, EveryPlacedFileIsKnownToARestartAtEveryMoment) {
    config.requiredStableChecks = 0;
    config.deleteAfterDownload = false;
    for (int i = 0; i < 40; ++i) server->files["f" + std::to_string(i) + ".bin"] = "content";
    std::vector<std::string> unknown;
    server->beforeDownload = [&](const std::string&) {
        PartialDownloadTracker restart(dir / "partials.json", &loop);
        DownloadTracker booked(restart.journal(), settingsStore, config.id.toString());
        std::error_code ec;
        for (fs::directory_iterator it(dir / "inbox", ec), end; !ec && it != end; ++it) {
            const auto name = it->path().filename().string();
            const auto record = restart.partial(config.id.toString(), name);
            if (!name.ends_with(".tarnel-partial") && !booked.isDownloaded(name, 7) &&
                !(record && record->placedPath == it->path().string()))
                unknown.push_back(name);
        }
    };
    auto engine = makeEngine();
    engine->start();
    loop.advance(30s);
    EXPECT_TRUE(unknown.empty()) << unknown.front();
    EXPECT_EQ(engine->totalTransferred()(), 40);
}

TEST_F(EngineStateTest, FailuresOfAnyKindFailOneFileOrOnePollAndTheEngineGoesOn) {
    config.requiredStableChecks = 0;
    config.maxRetries = 10;
    server->files = {{"a.bin", "aaaa"}, {"b.bin", "bbbb"}};
    int aFaults = 1, bFaults = 2;
    server->beforeDownload = [&](const std::string& name) {
        if (name == "a.bin" && aFaults-- > 0) throw std::bad_alloc();
        if (name == "b.bin" && bFaults-- > 0) throw std::runtime_error("disk on fire");
    };
    // A destination that cannot be a folder: a file stands where it would be made.
    fs::create_directories(dir / "inbox");
    std::ofstream(dir / "inbox" / "2024");
    config.organizeByDate = true;
    auto engine = makeEngine();
    engine->start();
    loop.advance(30s);
    EXPECT_TRUE(hasLogLine("ERR [Test] Failed: a.bin \u2014 Could not create the folder"));
    EXPECT_TRUE(hasLogLine("WARN [Test] Will retry b.bin in 5s (attempt 1/10)"));

    fs::remove(dir / "inbox" / "2024");
    loop.advance(30s);
    EXPECT_TRUE(hasLogLine("ERR [Test] Failed: a.bin \u2014 std::bad_alloc"));
    EXPECT_TRUE(hasLogLine("ERR [Test] Failed: b.bin \u2014 disk on fire"));
    EXPECT_EQ(engine->connectionState()(), ConnectionState::connected);

    server->beforeListing = [] { throw std::length_error("listing too long"); };
    loop.advance(30s);
    EXPECT_TRUE(hasLogLine("ERR [Test] Sync failed (1/3): listing too long"));
    EXPECT_EQ(engine->connectionState()(), ConnectionState::error);

    server->beforeListing = nullptr;
    loop.advance(30s);
    loop.advance(30s);
    EXPECT_TRUE(fs::exists(dir / "inbox" / "2024" / "03" / "07" / "a.bin"));
    EXPECT_TRUE(fs::exists(dir / "inbox" / "2024" / "03" / "07" / "b.bin"));
    EXPECT_EQ(engine->totalTransferred()(), 2);
}

// Once verified and in its folder a file is downloaded: a rename that cannot be made (a name
// past 255 bytes) leaves it there under its first name, booked once and deleted on the server.
TEST_F(EngineStateTest, AStepAfterPlacingThatFailsLeavesTheFileOnceUnderTheNameItHas) {
    config.requiredStableChecks = 0;
    config.deleteAfterDownload = true;
    config.renamePattern = std::string(300, 'x') + "_{original}";
    server->files = {{"report.csv", "data"}};
    auto engine = makeEngine();
    engine->start();
    for (int poll = 0; poll < 4; ++poll) loop.advance(30s);

    std::vector<std::string> arrived;
    for (const auto& entry : fs::directory_iterator(dir / "inbox"))
        arrived.push_back(entry.path().filename().string());
    std::sort(arrived.begin(), arrived.end());
    EXPECT_EQ(arrived, std::vector<std::string>{"report.csv"});
    EXPECT_TRUE(server->files.empty());
    EXPECT_TRUE(hasLogLine("WARN [Test] Renaming failed for report.csv, it stays as report.csv: "));
    EXPECT_TRUE(hasLogLine("File name too long"));
    EXPECT_FALSE(hasLogLine("ERR "));
    ASSERT_EQ(history.entries()().size(), 1u);
    EXPECT_EQ(history.entries()()[0].finalFilename, "report.csv");
    EXPECT_EQ(engine->totalTransferred()(), 1);
}

// Two connections place one name into one folder: neither resumes the other's temporary file,
// even one named as before names carried the connection.
TEST_F(EngineStateTest, TwoConnectionsWithOneNameInOneFolderKeepTheirOwnBytes) {
    config.requiredStableChecks = 0;
    server->files = {{"report.csv", "AAAAAAAAAA"}};
    ConnectionConfig other = config;
    other.id = Uuid::random();
    other.name = "Other";
    auto otherServer = std::make_shared<MemoryServer>();
    otherServer->files = {{"report.csv", "BBBBBBBBBB"}};
    // What a cut download of the first connection left: four bytes and their record.
    const auto inbox = dir / "inbox";
    const auto cut = inbox / "report.csv.tarnel-partial";
    fs::create_directories(inbox);
    std::ofstream(cut) << "AAAA";
    partials.record({"report.csv", cut.string(), 10, 4, config.id.toString(), {}, {}, 0, ""});

    auto second = makeEngine(other, otherServer);
    second->start();
    loop.advance(30s);
    auto first = makeEngine();
    first->start();
    loop.advance(30s);

    EXPECT_EQ(readFile(inbox / "report.csv"), "BBBBBBBBBB");
    EXPECT_EQ(readFile(inbox / "report (1).csv"), "AAAAAAAAAA");
    // Its record untouched by the other connection's download, the cut file was resumed.
    EXPECT_TRUE(hasLogLine("[Test] Resuming: report.csv from 4 bytes"));
    EXPECT_FALSE(fs::exists(cut));
}

// Two connections keeping their files on the server place one name into one folder at the same
// moment: each file gets a name of its own, and each record names its own file, so that a restart
// never books one connection's file for the other.
TEST_F(EngineStateTest, FilesPlacedTogetherUnderOneNameEachKeepTheirOwnPlace) {
    config.requiredStableChecks = 0;
    config.deleteAfterDownload = false;
    server->files = {{"report.csv", "AAAAAAAAAA"}};
    ConnectionConfig other = config;
    other.id = Uuid::random();
    auto otherServer = std::make_shared<MemoryServer>();
    otherServer->files = {{"report.csv", "BBBBBBBBBB"}};
    auto first = makeEngine();
    auto second = makeEngine(other, otherServer);
    spawn(loop, first->pollOnce());
    spawn(loop, second->pollOnce());
    // Both wait for their marks; a crash once these are on disk leaves them to the next start.
    partials.journal()->commit();
    std::map<std::string, std::string> marked;  // content, place
    {
        PartialDownloadTracker restart(dir / "partials.json", &loop);
        for (const auto& [id, content] : {std::pair{config.id, "AAAAAAAAAA"}, {other.id, "BBBBBBBBBB"}}) {
            const auto record = restart.partial(id.toString(), "report.csv");
            ASSERT_TRUE(record && !record->placedPath.empty());
            marked[content] = record->placedPath;
        }
    }
    loop.runUntilIdle();
    for (const auto& [content, place] : marked) EXPECT_EQ(readFile(place), content);
}

// A file moved off the server is on disk, under its final name, before its delete is sent; one
// that cannot be made so stays on the server, and is not fetched again.
TEST_F(EngineStateTest, TheSourceIsDeletedOnlyOnceThePlacedFileIsOnDisk) {
    config.requiredStableChecks = 0;
    config.deleteAfterDownload = true;
    config.renamePattern = "done_{original}";
    server->files = {{"a.bin", "alpha"}, {"b.bin", "bravo"}};
    syncer.hold = true;
    auto engine = makeEngine();
    engine->start();
    loop.advance(30s);
    EXPECT_EQ(syncer.heldCount(), 2u);
    EXPECT_EQ(server->files.size(), 2u);
    std::sort(syncer.files.begin(), syncer.files.end());
    EXPECT_EQ(syncer.files, (std::vector<fs::path>{dir / "inbox" / "done_a.bin",
                                                   dir / "inbox" / "done_b.bin"}));
    syncer.release();
    loop.runUntilIdle();
    EXPECT_TRUE(server->files.empty());

    syncer.hold = false;
    syncer.failure = "disk gone";
    server->files = {{"c.bin", "charlie"}};
    for (int poll = 0; poll < 3; ++poll) loop.advance(30s);
    EXPECT_TRUE(hasLogLine("WARN [Test] Downloaded OK but delete failed: c.bin \u2014 disk gone"));
    EXPECT_EQ(server->files.size(), 1u);
    EXPECT_EQ(countLogLines("Verified: c.bin"), 1);
}

TEST_F(EngineStateTest, RetryWaitsPastTheTwentiethAttemptAreToldWhole) {
    config.requiredStableChecks = 0;
    config.maxRetries = 50;  // beyond what a stored record may hold
    server->files = {{"bad.bin", "x"}};
    server->beforeDownload = [](const std::string&) { throw FTPError::curlExitCode(56, ""); };
    auto engine = makeEngine();
    engine->start();
    for (int poll = 0; poll < 30; ++poll) loop.advance(30s);
    EXPECT_TRUE(hasLogLine("[Test] Will retry bad.bin in 343151886824415s (attempt 30/50)"));
    for (int poll = 30; poll < 45; ++poll) loop.advance(30s);
    EXPECT_TRUE(hasLogLine("[Test] Will retry bad.bin in 4923854510918056"));  // attempt 45
    EXPECT_TRUE(hasLogLine("(attempt 45/50)"));
    EXPECT_FALSE(hasLogLine("in -"));
}

// Copy mode: a placed file's record stays, marked placed, until its booking is surely on disk.
// A run that ended in between books the file at the next start instead of fetching it again,
// and writes the history entry that did not reach the disk even when the downloaded set did.
TEST_F(EngineStateTest, AFilePlacedByARunThatDiedIsBookedNotFetchedAgain) {
    config.requiredStableChecks = 0;
    config.deleteAfterDownload = false;
    server->files = {{"a.txt", "alpha"}, {"b.txt", "bravo"}, {"c.txt", "charlie"}, {"d.txt", "delta"}};
    fs::create_directories(dir / "inbox");
    std::ofstream(dir / "inbox" / "a.txt") << "alpha";
    std::ofstream(dir / "inbox" / "d.txt") << "delta";
    markDownloaded("d.txt", 5);
    {
        const auto then = loop.now();
        PartialDownloadTracker earlierRun{dir / "earlier.json", &loop};
        const auto placed = [&](const std::string& key, int size, const std::string& at) {
            earlierRun.record({key, (dir / "inbox" / (key + ".tarnel-partial")).string(), size,
                               size, config.id.toString(), then, then, 0, ""});
            earlierRun.markPlaced(config.id.toString(), key, (dir / "inbox" / at).string());
        };
        placed("a.txt", 5, "a.txt");
        placed("c.txt", 7, "gone.txt");  // its placed file has gone since: fetched as usual
        placed("d.txt", 5, "d.txt");
    }
    PartialDownloadTracker reloaded{dir / "earlier.json", &loop};
    auto engine = std::make_shared<SyncEngine>(
        config, std::make_unique<MemoryRemote>(loop, server),
        std::make_unique<DownloadTracker>(reloaded.journal(), settingsStore, config.id.toString()),
        EngineServices{runtime, logService, stats, history, settings, reloaded, notifications,
                       sleepMonitor, soundPlayer, syncer});
    engine->start();
    loop.advance(30s);
    EXPECT_TRUE(hasLogLine("[Test] Placed before the last stop, booked now: a.txt \u2192 a.txt"));
    EXPECT_TRUE(hasLogLine("[Test] Placed before the last stop, booked now: d.txt \u2192 d.txt"));
    EXPECT_FALSE(fs::exists(dir / "inbox" / "a (1).txt"));
    EXPECT_FALSE(fs::exists(dir / "inbox" / "d (1).txt"));
    EXPECT_EQ(readFile(dir / "inbox" / "c.txt"), "charlie");
    EXPECT_EQ(history.entries()().size(), 4u);
    EXPECT_EQ(engine->totalTransferred()(), 3);  // d.txt was counted by the run that placed it
    EXPECT_FALSE(reloaded.partial(config.id.toString(), "b.txt"));  // went with its booking

    // Booked once: another start of the connection finds nothing left to book.
    engine->start();
    loop.advance(30s);
    for (const char* key : {"a.txt", "b.txt", "c.txt", "d.txt"})
        EXPECT_FALSE(reloaded.partial(config.id.toString(), key)) << key;
    EXPECT_EQ(history.entries()().size(), 4u);
}

}  // namespace
}  // namespace tarnel::testing
