#include "records/partial_download_tracker.h"

#include <fstream>
#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include "platform/testing/virtual_loop.h"
#include "records/atomic_file.h"
#include "test_dir.h"

namespace tarnel {
namespace {

class PartialDownloadTrackerTest : public testing::Test {
protected:
    PartialDownload sample(const std::string& key) const {
        auto temp = (dir / (key + ".tarnel-partial")).string();
        return {key, temp, 1000, 0, "C0FFEE", clock.now(), clock.now(), 0, ""};
    }
    // What a restart would find: the journal's committed rows, through a connection of its own.
    std::int64_t bytesOnDisk() {
        return PartialDownloadTracker(file, &clock).partial("a.zip")->downloadedBytes;
    }
    TestDir dir{"partials"};
    VirtualLoop clock;
    std::filesystem::path file = dir / "Tarnel/partials.json";
};

// Each change but the byte count and a removal is on disk when the call returns: a crash right
// after a download starts leaves the record that resumes it.
TEST_F(PartialDownloadTrackerTest, RecordsAreOnDiskAtOnceAndSurviveARestart) {
    auto a = sample("a.zip");
    const auto onDisk = [&](const std::string& key) {
        return PartialDownloadTracker(file, &clock).partial(key);
    };
    {
        PartialDownloadTracker tracker(file, &clock);
        tracker.record(a);
        tracker.record(sample("b.zip"));
        EXPECT_TRUE(onDisk("b.zip"));
        tracker.incrementResumeAttempts("a.zip");
        EXPECT_EQ(onDisk("a.zip")->resumeAttempts, 1);
        tracker.remove("b.zip");
        tracker.flush();
        EXPECT_FALSE(onDisk("b.zip"));
    }
    PartialDownloadTracker tracker(file, &clock);
    a.resumeAttempts = 1;
    EXPECT_EQ(tracker.partial("a.zip"), a);
    EXPECT_FALSE(tracker.partial("b.zip"));
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
            EXPECT_EQ(tracker.partial("a.zip").has_value(), readable) << stored;
        }
        EXPECT_FALSE(std::filesystem::exists(file));
        EXPECT_EQ(readWholeFile(file.string() + ".migrated"), stored);
        auto again = PartialDownloadTracker(file, &clock).partial("a.zip");
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
            tracker.updateProgress("a.zip", i);
        EXPECT_EQ(tracker.partial("a.zip")->downloadedBytes, 500);
        EXPECT_EQ(bytesOnDisk(), 0);
        clock.advance(PartialDownloadTracker::progressWriteInterval);
        tracker.updateProgress("a.zip", 600);
        tracker.flush();
        EXPECT_EQ(bytesOnDisk(), 600);
        tracker.updateProgress("a.zip", 700);
    }
    EXPECT_EQ(bytesOnDisk(), 700);  // what pacing held back is written at the end

    // A byte count still held back when the file is placed must not take the placed record with
    // it: a restart books the file from that record instead of fetching it again.
    {
        PartialDownloadTracker tracker(file, &clock);
        tracker.updateProgress("a.zip", 1000);
        tracker.markPlaced("a.zip", (dir / "a.zip").string());
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
    tracker.discard("a.zip");
    EXPECT_FALSE(std::filesystem::exists(dir / "a.zip.tarnel-partial"));
    EXPECT_FALSE(tracker.partial("a.zip"));
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
