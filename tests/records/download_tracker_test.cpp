#include "records/download_tracker.h"

#include <gtest/gtest.h>

#include "test_dir.h"

namespace tarnel {
namespace {

TEST(DownloadTracker, EntriesByKeyAndSizePerConnectionAcrossRestarts) {
    TestDir dir("downloaded");
    MemorySettingsStore store;
    {
        auto journal = Journal::open(dir / "journal.db");
        DownloadTracker tracker(journal, store, "AAAA");
        tracker.markDownloaded("in/a|b.txt", 10);
        tracker.markDownloaded("in/a|b.txt", 10);
        tracker.markDownloaded("in/a|b.txt", 11);
        tracker.markDownloaded("gone.txt", 3);
        EXPECT_TRUE(tracker.isDownloaded("gone.txt", 3));
        tracker.newListing();
        tracker.forget("gone.txt", 3);  // also out of what the last listing found known
        EXPECT_FALSE(tracker.isDownloaded("gone.txt", 3));
        DownloadTracker(journal, store, "BBBB").markDownloaded("c.txt", 1);
        DownloadTracker(journal, store, "CCCC").markDownloaded("d.txt", 1);
        DownloadTracker::forgetConnection(*journal, "CCCC");
    }
    auto journal = Journal::open(dir / "journal.db");
    DownloadTracker tracker(journal, store, "AAAA");
    EXPECT_TRUE(tracker.isDownloaded("in/a|b.txt", 11));
    EXPECT_TRUE(tracker.isDownloaded("in/a|b.txt", 10));
    EXPECT_FALSE(tracker.isDownloaded("in/a", 0));
    EXPECT_FALSE(tracker.isDownloaded("c.txt", 1));
    EXPECT_FALSE(tracker.isDownloaded("gone.txt", 3));
    EXPECT_TRUE(DownloadTracker(journal, store, "BBBB").isDownloaded("c.txt", 1));
    EXPECT_FALSE(DownloadTracker(journal, store, "CCCC").isDownloaded("d.txt", 1));
}

}  // namespace
}  // namespace tarnel
