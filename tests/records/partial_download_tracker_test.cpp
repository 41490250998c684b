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
    std::int64_t bytesOnDisk() const {
        return nlohmann::json::parse(readWholeFile(file).value())[0]["downloadedBytes"];
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

// A file cut short, or one record that lacks a key: an empty store; the next change replaces it.
TEST_F(PartialDownloadTrackerTest, UnreadableFilesGiveAnEmptyStore) {
    PartialDownloadTracker(file, &clock).record(sample("a.zip"));
    auto text = readWholeFile(file).value();
    auto lacking = nlohmann::json::parse(text);
    lacking[0].erase("resumeAttempts");
    for (const std::string& bad : {text.substr(0, text.size() / 2), lacking.dump()}) {
        ASSERT_TRUE(replaceFileAtomically(file, bad));
        PartialDownloadTracker tracker(file, &clock);
        EXPECT_FALSE(tracker.partial("a.zip"));
        tracker.record(sample("b.zip"));
        tracker.flush();
        EXPECT_TRUE(PartialDownloadTracker(file, &clock).partial("b.zip"));
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

// They hold what is the user's alone, also where an older version left them open to all.
TEST_F(PartialDownloadTrackerTest, TheStoreIsReadableByItsOwnerAloneInAFolderOfItsOwn) {
    namespace fs = std::filesystem;
    fs::create_directories(file.parent_path());
    std::ofstream(file) << "[]";
    fs::permissions(file.parent_path(), fs::perms(0755));
    fs::permissions(file, fs::perms(0644));
    PartialDownloadTracker(file, &clock).record(sample("a.zip"));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
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
