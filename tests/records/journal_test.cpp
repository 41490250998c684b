#include "records/journal.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <thread>

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/testing/virtual_loop.h"
#include "records/atomic_file.h"
#include "records/download_tracker.h"
#include "records/history_service.h"
#include "records/partial_download_tracker.h"
#include "test_dir.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;

const std::string connection = "0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0";

std::int64_t count(Journal& journal, const char* sql) {
    return journal.read([&](Journal& j) {
        auto& rows = j.statement(sql);
        rows.step();
        return rows.integer(0);
    });
}

// The stores as an older version left them: the downloaded set in the settings, the partial
// records and the history in their JSON files.
class OlderStores : public testing::Test {
protected:
    void SetUp() override {
        for (int i = 0; i < 5000; ++i)
            downloaded.push_back("scans/2024/scan-" + std::to_string(i) + ".tif|" +
                                 std::to_string(1000 + i));
        downloaded.push_back("odd|name.txt|7");
        store.setValue("downloaded_files_" + connection, downloaded);
        auto partials = nlohmann::json::array();
        for (int i = 0; i < 40; ++i)
            partials.push_back({{"remotePath", "p" + std::to_string(i)},
                                {"localTempPath", "/in/p" + std::to_string(i) + ".tarnel-partial"},
                                {"expectedSize", 100 + i}, {"downloadedBytes", i},
                                {"connectionId", connection}, {"startedAt", 731'000'000.5},
                                {"lastResumedAt", 731'000'001.5}, {"resumeAttempts", i % 3}});
        auto history = nlohmann::json::array();
        for (int i = 499; i >= 0; --i)  // newest first
            history.push_back({{"id", Uuid::random().toString()},
                               {"timestamp", 783'000'000.0 + i},
                               {"filename", "h" + std::to_string(i)}, {"finalFilename", "f"},
                               {"sizeBytes", i}, {"sourceHost", "ftp.example.com"},
                               {"sourcePath", "/"}, {"destinationPath", "/d"},
                               {"connectionName", "Shop"}, {"status", "success"}});
        partialsText = partials.dump();
        historyText = history.dump();
        ASSERT_TRUE(replaceFileAtomically(dir / "partials.json", partialsText));
        ASSERT_TRUE(replaceFileAtomically(dir / "history.json", historyText));
    }

    // What the program does at its start, in the same order.
    void start() {
        auto journal = Journal::open(dir / "journal.db");
        HistoryService history(loop, journal, dir / "history.json");
        PartialDownloadTracker partials(journal, dir / "partials.json");
        DownloadTracker tracker(journal, store, connection);
    }

    void expectAllMovedOnce() {
        auto journal = Journal::open(dir / "journal.db");
        EXPECT_EQ(count(*journal, "SELECT count(*) FROM downloaded"), 5001);
        EXPECT_EQ(count(*journal, "SELECT count(*) FROM partials"), 40);
        EXPECT_EQ(count(*journal, "SELECT count(*) FROM history"), 500);
        DownloadTracker tracker(journal, store, connection);
        for (const auto& entry : downloaded) {
            const auto bar = entry.rfind('|');
            ASSERT_TRUE(tracker.isDownloaded(entry.substr(0, bar), std::stoll(entry.substr(bar + 1))))
                << entry;
        }
        HistoryService history(loop, journal, dir / "history.json");
        ASSERT_EQ(history.entries()().size(), 500u);
        EXPECT_EQ(history.entries()().front().filename, "h499");
        EXPECT_EQ(PartialDownloadTracker(journal, dir / "partials.json").partial(connection, "p7")->resumeAttempts,
                  1);
        // Gone from the old stores, each kept beside them as it was.
        EXPECT_FALSE(store.contains("downloaded_files_" + connection));
        EXPECT_FALSE(fs::exists(dir / "partials.json"));
        EXPECT_FALSE(fs::exists(dir / "history.json"));
        EXPECT_EQ(readWholeFile(dir / "partials.json.migrated"), partialsText);
        EXPECT_EQ(readWholeFile(dir / "history.json.migrated"), historyText);
        EXPECT_EQ(nlohmann::json::parse(
                      readWholeFile(dir / ("downloaded_files_" + connection + ".migrated")).value()),
                  nlohmann::json(downloaded));
    }

    TestDir dir{"journal"};
    VirtualLoop loop;
    MemorySettingsStore store;
    std::vector<std::string> downloaded;
    std::string partialsText, historyText;
};

TEST_F(OlderStores, MoveIntoTheJournalOnceWithABackupOfEach) {
    start();
    expectAllMovedOnce();
    start();  // nothing left to move, nothing doubled
    expectAllMovedOnce();
}

// Killed at any moment of the migration, the program finds at its next start either the old
// stores or the journal with all their rows, never part of them, and ends the move then.
TEST_F(OlderStores, AMigrationKilledHalfWayIsDoneAgainAtTheNextStart) {
    int killedBeforeTheEnd = 0;
    for (int delayUs : {0, 5'000, 20'000, 50'000, 80'000, 120'000, 180'000, 250'000}) {
        fs::remove(dir / "journal.db");
        fs::remove(dir / "journal.db-wal");
        fs::remove(dir / "journal.db-shm");
        for (const char* name : {"partials.json", "history.json"})
            if (fs::exists(dir / (std::string(name) + ".migrated")))
                fs::rename(dir / (std::string(name) + ".migrated"), dir / name);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            start();
            ::_exit(0);
        }
        std::this_thread::sleep_for(std::chrono::microseconds(delayUs));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        if (WIFSIGNALED(status))
            ++killedBeforeTheEnd;

        auto journal = Journal::open(dir / "journal.db");
        const auto rows = count(*journal, "SELECT count(*) FROM downloaded");
        EXPECT_TRUE(rows == 0 || rows == 5001) << rows << " after " << delayUs << " us";
        const auto entries = count(*journal, "SELECT count(*) FROM history");
        EXPECT_TRUE(entries == 0 || entries == 500) << entries << " after " << delayUs << " us";
        // The file is kept until its rows are committed.
        EXPECT_TRUE(fs::exists(dir / "history.json") || entries == 500);
        journal.reset();
        start();
        expectAllMovedOnce();
        store.setValue("downloaded_files_" + connection, downloaded);  // for the next round
    }
    EXPECT_GT(killedBeforeTheEnd, 0);
}

// An unreadable journal is kept aside with an error, and the program goes on with a new one.
TEST(Journal, ACorruptJournalIsSetAsideAndANewOneStarted) {
    TestDir dir("journal-corrupt");
    const std::string garbage(8192, 'x');
    std::ofstream(dir / "journal.db") << garbage;
    std::vector<std::string> errors;
    auto journal =
        Journal::open(dir / "journal.db", [&](const std::string& e) { errors.push_back(e); });
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_NE(errors[0].find("could not be read"), std::string::npos) << errors[0];
    MemorySettingsStore store;
    DownloadTracker(journal, store, connection).markDownloaded("a.txt", 1);
    journal->commit();
    EXPECT_TRUE(DownloadTracker(Journal::open(dir / "journal.db"), store, connection)
                    .isDownloaded("a.txt", 1));

    int keptAside = 0;
    for (const auto& item : fs::directory_iterator(dir.path()))
        if (item.path().filename().string().starts_with("journal.db.corrupt-")) {
            ++keptAside;
            EXPECT_EQ(readWholeFile(item.path()), garbage);
        }
    EXPECT_EQ(keptAside, 1);

    // A journal whose pages were damaged after it was written fails its check the same way.
    journal.reset();  // the last connection: its rows go from the WAL into the file
    ASSERT_FALSE(fs::exists(dir / "journal.db-wal"));
    {
        std::fstream damaged(dir / "journal.db", std::ios::in | std::ios::out | std::ios::binary);
        damaged.seekp(4096);  // the second page: the root of a table
        damaged << std::string(4096, '\xff');
    }
    errors.clear();
    Journal::open(dir / "journal.db", [&](const std::string& e) { errors.push_back(e); });
    EXPECT_EQ(errors.size(), 1u);
}

}  // namespace
}  // namespace tarnel
