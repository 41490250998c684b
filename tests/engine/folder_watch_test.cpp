// Watching a remote tree on a real server: folders that appear join the selection, folders that
// downloads have emptied are removed.
#include <fstream>

#include <gtest/gtest.h>

#include "engine_fixture.h"
#include "fleet/connections_manager.h"
#include "servers/test_server.h"

namespace tarnel::testing {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

struct FolderWatchTest : EngineFixture, ::testing::WithParamInterface<ServerProtocol> {
    TestServer ftp{ServerOptions{GetParam(), dir / "server"}};
    fs::path in = ftp.root() / "in";
    std::shared_ptr<ConnectionsManager> manager;

    FolderWatchTest() {
        ftp.pointAt(config);
        config.remotePath = "/in";
        config.pollInterval = 10;
        config.requiredStableChecks = 0;
        config.exploreSubdirectories = true;
        config.selectedRemotePaths = {"a/b"};
        config.autoMonitorNewFolders = true;
        config.deleteAfterDownload = true;
        config.deleteEmptyRemoteFolders = true;
        config.minFileSize = 2;  // one-byte files stay on the server
        settings.setNotificationsEnabled(true);
        manager = std::make_shared<ConnectionsManager>(FleetServices{
            runtime, settingsStore, settings, logService, stats, history, notifications,
            sleepMonitor, soundPlayer, dir / "partials-fleet.json", dir / "known_hosts"});
    }
    ~FolderWatchTest() override { manager->stopAll(); }

    void serve(const std::string& path, const std::string& content) {
        fs::create_directories((in / path).parent_path());
        std::ofstream(in / path, std::ios::binary) << content;
    }

    void poll() {
        loop.advance(10s);
        loop.runUntilIdle();
    }
};

TEST_P(FolderWatchTest, NewTopFoldersJoinTheWatchAndEmptiedFoldersGoBottomUp) {
    serve("a/b/f1.dat", "one");
    serve("a/x/skip.dat", "skip");  // "a" is known, and "a/x" is not selected
    serve("c/new.dat", "new");
    serve("a2/n2.dat", "two");  // names are compared whole: "a2" is new
    serve("x/y/z.dat", "zzz");
    serve("x/keep.txt", "k");
    serve("root.dat", "root");
    manager->addConnection(config);
    poll();

    for (const char* name : {"c", "a2", "x"})
        EXPECT_EQ(countLogLines(std::string("INFO [Test] Auto-monitoring new folder: ") + name), 1);
    EXPECT_EQ(countLogLines("Auto-monitoring new folder:"), 3);
    std::vector<std::string> announced;
    for (const auto& p : notifier.posted) {
        if (p.title != "Tarnel: New folder detected")
            continue;
        std::string names = p.body.substr(std::string("[Test] ").size());
        for (std::size_t at; (at = names.find(", ")) != std::string::npos; names.erase(0, at + 2))
            announced.push_back(names.substr(0, at));
        announced.push_back(names);
    }
    std::sort(announced.begin(), announced.end());
    EXPECT_EQ(announced, (std::vector<std::string>{"a2", "c", "x"}));
    auto stored = manager->connections()().at(0).selectedRemotePaths;
    std::sort(stored.begin(), stored.end());
    EXPECT_EQ(stored, (std::vector<std::string>{"a/b", "a2", "c", "x"}));

    // Files of the new folders came down in the same poll, and their folders went after them.
    EXPECT_TRUE(hasLogLine("Moved: c/new.dat"));
    for (const char* gone : {"a/b", "c", "a2", "x/y"}) {
        EXPECT_FALSE(fs::exists(in / gone)) << gone;
        EXPECT_EQ(countLogLines(std::string("INFO [Test] Deleted empty remote folder: ") + gone),
                  1);
    }
    EXPECT_TRUE(fs::exists(in / "a/x/skip.dat"));
    EXPECT_TRUE(fs::exists(in / "x/keep.txt"));
    EXPECT_EQ(countLogLines("Deleted empty remote folder:"), 4);

    // The walk climbs while folders empty; the watched folder itself stays, empty.
    fs::remove_all(in / "a");
    fs::remove(in / "x/keep.txt");
    serve("x/deep/last.dat", "last");
    poll();
    EXPECT_TRUE(hasLogLine("INFO [Test] Deleted empty remote folder: x/deep"));
    EXPECT_EQ(countLogLines("Deleted empty remote folder:"), 6);
    EXPECT_TRUE(fs::is_directory(in));
    EXPECT_TRUE(fs::is_empty(in));
}

// SFTP removes folders by a quoted command of its own; FTP by RMD.
INSTANTIATE_TEST_SUITE_P(Servers, FolderWatchTest,
                         ::testing::Values(ServerProtocol::ftp, ServerProtocol::sftp),
                         [](const auto& info) { return std::string(serverProtocolName(info.param)); });

}  // namespace
}  // namespace tarnel::testing
