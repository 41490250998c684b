#include "records/partial_download_tracker.h"

#include <fstream>
#include <future>
#include <nlohmann/json.hpp>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "platform/testing/virtual_loop.h"
#include "records/atomic_file.h"
#include "test_dir.h"

namespace tarnel {
namespace {

class PartialDownloadTrackerTest : public testing::Test {
protected:
    PartialDownload sample(const std::string& key) const {
        auto temp = (dir / (key + ".tarnel-partial")).string();
        return {key, temp, 1000, 0, id, clock.now(), clock.now(), 0, ""};
    }
    // What a restart would find: the journal's committed rows, through a connection of its own.
    std::int64_t bytesOnDisk() {
        return PartialDownloadTracker(file, &clock).partial(id, "a.zip")->downloadedBytes;
    }
    const std::string id = "C0FFEE";
    TestDir dir{"partials"};
    VirtualLoop clock;
    std::filesystem::path file = dir / "Tarnel/partials.json";
};

// Each change but the byte count and a removal is on disk when the call returns (a placed mark
// when it says so): a crash right after a download starts leaves the record that resumes it.
TEST_F(PartialDownloadTrackerTest, RecordsAreOnDiskAtOnceAndSurviveARestart) {
    auto a = sample("a.zip");
    const auto onDisk = [&](const std::string& key) {
        return PartialDownloadTracker(file, &clock).partial(id, key);
    };
    {
        PartialDownloadTracker tracker(file, &clock);
        tracker.record(a);
        tracker.record(sample("b.zip"));
        EXPECT_TRUE(onDisk("b.zip"));
        tracker.incrementResumeAttempts(id, "a.zip");
        EXPECT_EQ(onDisk("a.zip")->resumeAttempts, 1);
        // A placed file's mark, on disk by the time the file may go to its place.
        tracker.record(sample("c.zip"));
        std::promise<std::string> placed;
        tracker.markPlaced(id, "c.zip", "/in/c.zip",
                           [&] { placed.set_value(onDisk("c.zip")->placedPath); });
        EXPECT_EQ(placed.get_future().get(), "/in/c.zip");
        tracker.remove(id, "b.zip");
        tracker.flush();
        EXPECT_FALSE(onDisk("b.zip"));
    }
    PartialDownloadTracker tracker(file, &clock);
    a.resumeAttempts = 1;
    EXPECT_EQ(tracker.partial(id, "a.zip"), a);
    EXPECT_FALSE(tracker.partial(id, "b.zip"));
}

// The store of older versions moves into the journal; one cut short, or with a record that
// lacks a key, gives no records, as it always did, and is kept aside all the same.
TEST_F(PartialDownloadTrackerTest, OlderStoresMoveIntoTheJournalReadableOrNot) {
    const std::string record =
        R"({"remotePath":"a.zip","localTempPath":"/t/a.zip.tarnel-partial","expectedSize":1000,)"
        R"("downloadedBytes":10,"connectionId":"C0FFEE","startedAt":700000000.5,)"
        R"("lastResumedAt":700000001.5,"resumeAttempts":2})";
    auto lacking = nlohmann::json::parse(record);
    lacking.erase("resumeAttempts");
    for (const std::string& stored : {"[" + record + "]", "[" + record.substr(0, 50),
                                      "[" + lacking.dump() + "]"}) {
        std::filesystem::remove_all(file.parent_path());
        ASSERT_TRUE(replaceFileAtomically(file, stored));
        const bool readable = stored.size() > record.size() + 1;
        {
            PartialDownloadTracker tracker(file, &clock);
            EXPECT_EQ(tracker.partial(id, "a.zip").has_value(), readable) << stored;
        }
        EXPECT_FALSE(std::filesystem::exists(file));
        EXPECT_EQ(readWholeFile(file.string() + ".migrated"), stored);
        auto again = PartialDownloadTracker(file, &clock).partial(id, "a.zip");
        EXPECT_EQ(again.has_value(), readable);
        if (readable) {
            EXPECT_EQ(again->resumeAttempts, 2);
            EXPECT_EQ(again->downloadedBytes, 10);
            EXPECT_EQ(toReferenceSeconds(again->lastResumedAt), 700000001.5);
        }
    }
}

TEST_F(PartialDownloadTrackerTest, ProgressIsWrittenAtAPacedRate) {
    {
        PartialDownloadTracker tracker(file, &clock);
        tracker.record(sample("a.zip"));
        tracker.flush();
        for (int i = 1; i <= 500; ++i)
            tracker.updateProgress(id, "a.zip", i);
        EXPECT_EQ(tracker.partial(id, "a.zip")->downloadedBytes, 500);
        EXPECT_EQ(bytesOnDisk(), 0);
        clock.advance(PartialDownloadTracker::progressWriteInterval);
        tracker.updateProgress(id, "a.zip", 600);
        tracker.flush();
        EXPECT_EQ(bytesOnDisk(), 600);
        tracker.updateProgress(id, "a.zip", 700);
    }
    EXPECT_EQ(bytesOnDisk(), 700);  // what pacing held back is written at the end

    // A byte count still held back when the file is placed must not take the placed record with
    // it: a restart books the file from that record instead of fetching it again.
    {
        PartialDownloadTracker tracker(file, &clock);
        tracker.updateProgress(id, "a.zip", 1000);
        tracker.markPlaced(id, "a.zip", (dir / "a.zip").string());
        tracker.flush();
    }
    EXPECT_EQ(PartialDownloadTracker(file, &clock).takePlacedByEarlierRun("C0FFEE").size(), 1u);
}

TEST_F(PartialDownloadTrackerTest, OrphansAndDiscard) {
    for (auto name : {"a.zip.tarnel-partial", "x.tarnel-partial", ".h.tarnel-partial", "done.zip"})
        std::ofstream(dir / name) << "data";
    std::filesystem::create_directories(dir / "sub");
    std::ofstream(dir / "sub/deep.tarnel-partial") << "data";

    PartialDownloadTracker tracker(file, &clock);
    tracker.record(sample("a.zip"));
    EXPECT_EQ(tracker.orphanedFiles(dir.path()),
              std::vector<std::filesystem::path>{dir / "x.tarnel-partial"});
    tracker.discard(id, "a.zip");
    EXPECT_FALSE(std::filesystem::exists(dir / "a.zip.tarnel-partial"));
    EXPECT_FALSE(tracker.partial(id, "a.zip"));
}

// Two connections often fetch one remote path ("/scan.pdf" from two servers). Neither's record
// may stand for the other's file: a restart would book one's placed file as the other's.
TEST_F(PartialDownloadTrackerTest, EachConnectionHasARecordOfItsOwnForOneRemotePath) {
    auto mine = sample("scan.pdf"), theirs = sample("scan.pdf");
    theirs.connectionId = "BEEF";
    theirs.localTempPath = (dir / "scan.pdf.beef.tarnel-partial").string();
    {
        PartialDownloadTracker tracker(file, &clock);
        tracker.record(mine);
        tracker.record(theirs);
        tracker.markPlaced(id, "scan.pdf", (dir / "scan.pdf").string());
        EXPECT_EQ(tracker.partial("BEEF", "scan.pdf"), theirs);
    }  // the run ends while their download is under way
    PartialDownloadTracker tracker(file, &clock);
    EXPECT_TRUE(tracker.takePlacedByEarlierRun("BEEF").empty());
    ASSERT_EQ(tracker.takePlacedByEarlierRun(id).size(), 1u);
    EXPECT_EQ(tracker.partial("BEEF", "scan.pdf"), theirs);
    tracker.discard(id, "scan.pdf");
    EXPECT_EQ(tracker.partial("BEEF", "scan.pdf"), theirs);
}

// A journal written when a remote path had one record keeps its records.
TEST_F(PartialDownloadTrackerTest, RecordsOfTheFirstLayoutAreKept) {
    std::filesystem::create_directories(file.parent_path());
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open((file.parent_path() / "journal.db").c_str(), &db), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(db,
                           "CREATE TABLE partials(remote_path TEXT PRIMARY KEY, local_temp_path TEXT "
                           "NOT NULL, expected_size INTEGER NOT NULL, downloaded_bytes INTEGER NOT "
                           "NULL, connection_id TEXT NOT NULL, started_at REAL NOT NULL, "
                           "last_resumed_at REAL NOT NULL, resume_attempts INTEGER NOT NULL, "
                           "placed_path TEXT NOT NULL) WITHOUT ROWID;"
                           "INSERT INTO partials VALUES('a.zip', '/in/a.zip.tarnel-partial', 1000, "
                           "400, 'C0FFEE', 1.0, 2.0, 1, '')",
                           nullptr, nullptr, nullptr),
              SQLITE_OK);
    sqlite3_close(db);
    for (int start = 0; start < 2; ++start) {  // upgraded once, then left as it is
        PartialDownloadTracker tracker(file, &clock);
        auto theirs = sample("a.zip");
        theirs.connectionId = "BEEF";
        tracker.record(theirs);
        ASSERT_TRUE(tracker.partial(id, "a.zip"));
        EXPECT_EQ(tracker.partial(id, "a.zip")->downloadedBytes, 400);
    }
}

// They hold what is the user's alone, also where an older version left the folder open to all.
TEST_F(PartialDownloadTrackerTest, TheJournalIsReadableByItsOwnerAloneInAFolderOfItsOwn) {
    namespace fs = std::filesystem;
    fs::create_directories(file.parent_path());
    fs::permissions(file.parent_path(), fs::perms(0755));
    PartialDownloadTracker(file, &clock).record(sample("a.zip"));
    for (const char* name : {"journal.db", "journal.db-wal", "journal.db-shm"}) {
        if (fs::exists(file.parent_path() / name)) {
            EXPECT_EQ(fs::status(file.parent_path() / name).permissions(), fs::perms(0600)) << name;
        }
    }
    EXPECT_EQ(fs::status(file.parent_path()).permissions(), fs::perms(0700));

    // A shared folder, like /tmp, stays open to all.
    const auto shared = file.parent_path() / "shared";
    fs::create_directories(shared);
    fs::permissions(shared, fs::perms(01777));
    PartialDownloadTracker(shared / "partials.json", &clock).record(sample("a.zip"));
    EXPECT_EQ(fs::status(shared).permissions(), fs::perms(01777));
}

}  // namespace
}  // namespace tarnel
