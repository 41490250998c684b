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
    }
    {
        // Writes are paced: one that waits for its turn is made when the service goes.
        HistoryService history(loop, file);
        history.add(entry("c.zip"));
        history.add(entry("d.zip"));
        loop.runUntilIdle();
    }
    HistoryService history(loop, file);
    ASSERT_EQ(history.entries().value().size(), 4u);
    EXPECT_EQ(history.entries().value().front().filename, "d.zip");
    EXPECT_EQ(history.entries().value()[2], failed);
    auto stored = nlohmann::json::parse(readWholeFile(file).value());
    EXPECT_TRUE(stored[2].contains("errorMessage"));
    EXPECT_FALSE(stored[3].contains("errorMessage"));
}

TEST(HistoryService, KeepsTheNewestFiveHundredAndSurvivesACorruptFile) {
    TestDir dir("history-cap");
    const auto file = dir / "history.json";
    VirtualLoop loop;
    ASSERT_TRUE(replaceFileAtomically(file, R"([{"id":"not-a-uuid"}])"));
    {
        HistoryService history(loop, file);
        EXPECT_TRUE(history.entries().value().empty());
        for (int i = 0; i < 600; ++i)
            history.add(entry("f" + std::to_string(i)));
        settle(loop, history);
    }
    // A file of 600 (written by an older version) loads as its first, newest, 500.
    auto stored = nlohmann::json::parse(readWholeFile(file).value());
    ASSERT_EQ(stored.size(), 500u);
    EXPECT_EQ(stored[0]["filename"], "f599");
    auto six = nlohmann::json::array();
    for (int i = 0; i < 100; ++i)
        six.push_back(stored[i]);
    for (const auto& e : stored)
        six.push_back(e);
    ASSERT_TRUE(replaceFileAtomically(file, six.dump()));
    HistoryService history(loop, file);
    ASSERT_EQ(history.entries().value().size(), 500u);
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
