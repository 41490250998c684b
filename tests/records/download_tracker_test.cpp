#include "records/download_tracker.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

TEST(DownloadTracker, EntriesByKeyAndSizePerConnectionAcrossRestarts) {
    MemorySettingsStore store;
    {
        DownloadTracker tracker(store, "AAAA");
        EXPECT_TRUE(tracker.downloaded().empty());
        EXPECT_FALSE(store.contains("downloaded_files_AAAA"));  // nothing stored before a file
        tracker.markDownloaded("in/a|b.txt", 10);
        tracker.markDownloaded("in/a|b.txt", 10);
        tracker.markDownloaded("in/a|b.txt", 11);
        DownloadTracker(store, "BBBB").markDownloaded("c.txt", 1);
    }
    DownloadTracker tracker(store, "AAAA");
    EXPECT_EQ(tracker.downloaded().size(), 2u);
    EXPECT_TRUE(tracker.isDownloaded("in/a|b.txt", 11));
    EXPECT_FALSE(tracker.isDownloaded("in/a", 0));
    EXPECT_FALSE(tracker.isDownloaded("c.txt", 1));
}

}  // namespace
}  // namespace tarnel
