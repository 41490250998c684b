// The fleet against real servers: an edit while a transfer runs, and the program killed in the
// middle of a batch.
#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <thread>

#include "app/tarnel_process.h"
#include "connections/connection_config_json.h"
#include "engine_fixture.h"
#include "fleet/connections_manager.h"
#include "records/journal.h"
#include "servers/test_server.h"

namespace tarnel::testing {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

std::vector<std::string> filesIn(const fs::path& folder) {
    std::vector<std::string> out;
    std::error_code ec;
    for (auto it = fs::directory_iterator(folder, ec); !ec && it != fs::directory_iterator(); ++it)
        out.push_back(it->path().filename().string());
    std::sort(out.begin(), out.end());
    return out;
}

struct FleetTransferTest : EngineFixture {
    TestServer ftp{ServerOptions{ServerProtocol::ftp, dir / "server"}};

    FleetTransferTest() {
        ftp.pointAt(config);
        config.remotePath = "/";
        config.pollInterval = 10;
        config.requiredStableChecks = 0;
        config.deleteAfterDownload = false;
    }
};

TEST_F(FleetTransferTest, AnEditDuringALargeTransferNeitherWritesItTwiceNorFetchesItAgain) {
    std::string content(3'000'000, '\0');
    for (std::size_t i = 0; i < content.size(); ++i) content[i] = static_cast<char>(i * 31 / 7);
    std::ofstream(ftp.root() / "big.bin", std::ios::binary) << content;
    ftp.throttleDownloads(1'000'000);
    auto manager = std::make_shared<ConnectionsManager>(FleetServices{
        runtime, settingsStore, settings, logService, stats, history, notifications,
        sleepMonitor, soundPlayer, dir / "partials-fleet.json", dir / "known_hosts"});
    manager->addConnection(config);
    auto first = manager->engines().at(config.id);

    // Once the first bytes are in, the user edits the connection and asks for a sync.
    bool edited = false;
    auto whileRunning = first->activeDownloads().subscribe([&](const auto& rows) {
        if (edited || rows.empty() || rows.front().downloadedBytes == 0) return;
        edited = true;
        auto changed = config;
        changed.name = "Edited";
        manager->updateConnection(changed);
        manager->syncAllNow();
    });
    loop.advance(10s);
    ASSERT_TRUE(edited);
    EXPECT_TRUE(hasLogLine(
        "[Edited] Still being written by an earlier transfer, left for the next poll: big.bin"));
    for (int poll = 0; poll < 3; ++poll) loop.advance(10s);

    EXPECT_EQ(filesIn(dir / "inbox"), std::vector<std::string>{"big.bin"});
    EXPECT_EQ(readFile(dir / "inbox" / "big.bin"), content);
    EXPECT_EQ(history.entries()().size(), 1u);
    manager->stopAll();
}

// The program itself, killed while it copies a batch of 200 files, then started again.
TEST_F(FleetTransferTest, KilledInTheMiddleOfABatchNoFileArrivesTwiceAndEachHasOneHistoryEntry) {
    TarnelProcess tarnel{dir / "home"};
    std::vector<std::string> names;
    for (int i = 0; i < 200; ++i) {
        names.push_back("scan-" + std::to_string(1000 + i) + ".tif");
        std::ofstream(ftp.root() / names.back()) << std::string(2'000 + i, 'x');
    }
    ftp.throttleDownloads(40'000);  // a few seconds for the batch
    config.name = "Batch";
    config.localPath = (dir / "downloads").string();
    config.pollInterval = 1;
    fs::create_directories(dir);
    const auto importFile = dir / "import.json";
    std::ofstream(importFile) << encodeConnectionList({config});

    tarnel.start({"--headless", "--import", importFile.string()});
    ASSERT_TRUE(TarnelProcess::waitFor([&] { return filesIn(dir / "downloads").size() >= 60; }))
        << tarnel.logText();
    tarnel.signal(SIGKILL);
    EXPECT_EQ(tarnel.wait(), 128 + SIGKILL);
    ASSERT_LT(filesIn(dir / "downloads").size(), 200u);

    ftp.throttleDownloads(std::nullopt);
    tarnel.start({"--headless"});
    ASSERT_TRUE(TarnelProcess::waitFor(
        [&] { return filesIn(dir / "downloads").size() >= names.size(); }))
        << tarnel.logText();
    // A few more polls, in which nothing may arrive again.
    const auto polls = [&] {
        std::size_t n = 0;
        for (auto at = tarnel.logText().find("Downloading "); at != std::string::npos;
             at = tarnel.logText().find("Downloading ", at + 1))
            ++n;
        return n;
    };
    const auto before = polls();
    std::this_thread::sleep_for(3s);
    tarnel.signal(SIGTERM);
    EXPECT_EQ(tarnel.wait(), 0);
    EXPECT_EQ(polls(), before);
    auto extra = filesIn(dir / "downloads");
    std::erase_if(extra, [&](const auto& n) { return std::count(names.begin(), names.end(), n); });
    EXPECT_TRUE(extra.empty()) << ::testing::PrintToString(extra) << tarnel.logText();
    EXPECT_EQ(filesIn(dir / "downloads").size(), names.size());

    std::map<std::string, int> entries;
    auto journal = Journal::open(dir / "home" / "data" / "Tarnel" / "journal.db");
    journal->read([&](Journal& j) {
        for (auto& rows = j.statement("SELECT final_filename FROM history"); rows.step();)
            ++entries[rows.text(0)];
    });
    // Each file booked once, so that no later poll of the server fetches it again.
    const auto booked = journal->read([&](Journal& j) {
        auto& count = j.statement("SELECT count(*) FROM downloaded");
        count.step();
        return count.integer(0);
    });
    EXPECT_EQ(booked, static_cast<std::int64_t>(names.size()));
    EXPECT_EQ(entries.size(), names.size());
    for (const auto& [name, count] : entries) EXPECT_EQ(count, 1) << name;
}

}  // namespace
}  // namespace tarnel::testing
