#include "records/history_service.h"

#include <nlohmann/json.hpp>

#include <gtest/gtest.h>

#include "platform/testing/virtual_loop.h"
#include "records/atomic_file.h"
#include "test_dir.h"

namespace tarnel {
namespace {

HistoryEntry entry(const std::string& name, TransferStatus status = TransferStatus::success) {
    return {Uuid::random(),
            fromReferenceSeconds(731'500'000.25),
            name,
            "final-" + name,
            42,
            "ftp.example.com",
            "/in/" + name,
            "/home/u/" + name,
            "shop",
            status,
            std::nullopt};
}

void settle(VirtualLoop& loop, HistoryService& history) {
    loop.runUntilIdle();
    history.flush();
}

TEST(HistoryService, EntriesSurviveARestartNewestFirst) {
    TestDir dir("history");
    const auto file = dir / "Tarnel/history.json";
    VirtualLoop loop;
    auto failed = entry("b.zip", TransferStatus::retryExhausted);
    failed.errorMessage = "";
    {
        HistoryService history(loop, file);
        history.add(entry("a.zip"));
        history.add(failed);
        settle(loop, history);
        history.clear();
        history.add(entry("c.zip"));
        history.add(failed);
        history.add(entry("d.zip"));
        loop.runUntilIdle();  // no flush: the journal commits what it holds when it goes
    }
    HistoryService history(loop, file);
    ASSERT_EQ(history.entries().value().size(), 3u);
    EXPECT_EQ(history.entries().value().front().filename, "d.zip");
    EXPECT_EQ(history.entries().value()[1], failed);  // an empty message is not no message
    EXPECT_EQ(history.entries().value()[2].errorMessage, std::nullopt);
}

// The list shows the newest 500; an older version's file moves into the journal whole, in its
// order, and a corrupt one gives an empty history, as it always did.
TEST(HistoryService, KeepsTheNewestFiveHundredAndMovesOlderFilesIn) {
    TestDir dir("history-cap");
    const auto file = dir / "history.json";
    VirtualLoop loop;
    ASSERT_TRUE(replaceFileAtomically(file, R"([{"id":"not-a-uuid"}])"));
    {
        HistoryService history(loop, file);
        EXPECT_TRUE(history.entries().value().empty());
        EXPECT_TRUE(std::filesystem::exists(file.string() + ".migrated"));
        for (int i = 0; i < 600; ++i)
            history.add(entry("f" + std::to_string(i)));
        settle(loop, history);
        ASSERT_EQ(history.entries().value().size(), 500u);
    }
    auto older = nlohmann::json::array();  // an older version's file: newest first
    for (int i = 699; i >= 600; --i)
        older.push_back({{"id", Uuid::random().toString()}, {"timestamp", 731'500'000.0 + i},
                         {"filename", "g" + std::to_string(i)}, {"finalFilename", "x"},
                         {"sizeBytes", i}, {"sourceHost", "h"}, {"sourcePath", "/"},
                         {"destinationPath", "/d"}, {"connectionName", "c"},
                         {"status", "success"}});
    ASSERT_TRUE(replaceFileAtomically(file, older.dump()));
    HistoryService history(loop, file);
    ASSERT_EQ(history.entries().value().size(), 500u);
    EXPECT_EQ(history.entries().value()[0].filename, "g699");
    EXPECT_EQ(history.entries().value()[99].filename, "g600");
    EXPECT_EQ(history.entries().value()[100].filename, "f599");
}

TEST(HistoryService, FilterByTextAndStatus) {
    auto a = entry("Report.PDF", TransferStatus::error);
    EXPECT_TRUE(HistoryService::matches(a, "report", TransferStatus::error));
    EXPECT_TRUE(HistoryService::matches(a, "SHOP", std::nullopt));
    auto accented = a;
    accented.filename = "\u00c9t\u00e9.jpg";  // "Été.jpg"
    EXPECT_TRUE(HistoryService::matches(accented, "\u00e9t\u00e9", std::nullopt));
    EXPECT_FALSE(HistoryService::matches(a, "report", TransferStatus::success));
    EXPECT_FALSE(HistoryService::matches(a, "final-", std::nullopt));  // not the final name
}

}  // namespace
}  // namespace tarnel
