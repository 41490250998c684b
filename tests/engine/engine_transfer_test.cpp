// The engine end to end against real servers: polls on virtual time, transfers for real.
#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "engine/destination.h"
#include "engine/md5.h"
#include "platform/posix/group_file_syncer.h"
#include "engine_fixture.h"
#include "server_engine.h"
#include "servers/test_server.h"

namespace tarnel::testing {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

struct EngineTransferTest : EngineFixture, ::testing::WithParamInterface<ServerProtocol> {
    std::unique_ptr<TestServer> ftp;

    TestServer& startServer(ServerProtocol protocol = ServerProtocol::ftp) {
        ftp = std::make_unique<TestServer>(ServerOptions{protocol, dir / "server"});
        ftp->pointAt(config);
        config.remotePath = "/";
        config.pollInterval = 10;
        config.requiredStableChecks = 1;
        return *ftp;
    }

    void serve(const std::string& path, const std::string& content) {
        writeFile(ftp->root() / path, content);
    }
};

TEST_P(EngineTransferTest, AGrowingFileIsFetchedOnceSettledIntoItsDatedRenamedPlace) {
    auto& server = startServer(GetParam());
    config.requiredStableChecks = 2;
    config.organizeByConnection = true;
    config.organizeByDate = true;
    config.renamePattern = "{counter}_{original}";
    config.checksumVerification = true;
    loop.setLocalTime(2024, 3, 7, 14, 5);
    const std::string full = pattern(300'000);
    serve("photo.raw", full.substr(0, 100'000));
    auto engine = makeServerEngine(*this);
    engine->start();

    loop.advance(10s);  // seen: count 0
    serve("photo.raw", full.substr(0, 200'000));
    loop.advance(10s);  // grew: count 0 again
    serve("photo.raw", full);
    loop.advance(10s);  // grew
    loop.advance(10s);  // count 1
    EXPECT_TRUE(fs::exists(server.root() / "photo.raw"));
    EXPECT_TRUE(filesBelow(dir / "inbox").empty());
    loop.advance(10s);  // count 2: stable, fetched, deleted on the server

    const fs::path placed = dir / "inbox" / "Test" / "2024" / "03" / "07" / "001_photo.raw";
    ASSERT_TRUE(fs::exists(placed)) << ::testing::PrintToString(filesBelow(dir / "inbox"));
    EXPECT_EQ(readFile(placed), full);
    EXPECT_FALSE(fs::exists(server.root() / "photo.raw"));
    EXPECT_EQ(filesBelow(dir / "inbox").size(), 1u);  // no temporary file left
    EXPECT_TRUE(hasLogLine("OK [Test] Moved: photo.raw \u2192 "));
    EXPECT_TRUE(hasLogLine("[Test] Renamed: photo.raw \u2192 001_photo.raw"));
    EXPECT_EQ(engine->totalTransferred()(), 1);
    EXPECT_EQ(engine->trackedFileCount()(), 0);
    EXPECT_EQ(stats.totalFiles(), 1);
    ASSERT_EQ(history.entries()().size(), 1u);
    EXPECT_EQ(history.entries()()[0].finalFilename, "001_photo.raw");
    EXPECT_FALSE(partials.partial(config.id.toString(), "photo.raw").has_value());
    // The FTP test server vouches with SHA-256; over SFTP there is no server checksum.
    if (GetParam() == ServerProtocol::sftp) {
        EXPECT_TRUE(hasLogLine(
            "INFO [Test] The server offers no checksum; files are verified by their size"));
        EXPECT_TRUE(hasLogLine("INFO [Test] MD5: photo.raw = " + computeMD5(placed)));
    } else {
        EXPECT_TRUE(hasLogLine("INFO [Test] SHA-256 matches the server: photo.raw = "));
    }
}

INSTANTIATE_TEST_SUITE_P(Protocols, EngineTransferTest,
                         ::testing::Values(ServerProtocol::ftp, ServerProtocol::ftps,
                                           ServerProtocol::sftp),
                         [](const auto& info) { return std::string(serverProtocolName(info.param)); });

struct EngineTransferFtpTest : EngineTransferTest {};

TEST_F(EngineTransferFtpTest, TakenNamesGetNumbersAndFoldersFollowTheOrganisation) {
    startServer();
    config.requiredStableChecks = 0;
    config.exploreSubdirectories = true;
    config.subdirectoryOrganization = SubdirectoryOrganization::customPerFolder;
    config.customFolderMappings = {{"/jobs/acme", (dir / "acme").string()}};
    serve("jobs/acme/a.pdf", "acme");
    serve("jobs/other work/b.pdf", "other");  // a folder name the URL must encode
    serve("report.pdf", "new report");
    fs::create_directories(dir / "inbox");
    std::ofstream(dir / "inbox" / "report.pdf") << "old";
    auto engine = makeServerEngine(*this);
    engine->start();
    loop.advance(10s);

    EXPECT_EQ(readFile(dir / "acme" / "a.pdf"), "acme");              // the mapping, whole
    EXPECT_EQ(readFile(dir / "inbox" / "jobs" / "other work" / "b.pdf"), "other");  // mirrored
    EXPECT_EQ(readFile(dir / "inbox" / "report.pdf"), "old");           // never overwritten
    EXPECT_EQ(readFile(dir / "inbox" / "report (1).pdf"), "new report");
    EXPECT_TRUE(filesBelow(ftp->root()).empty());
}

TEST_F(EngineTransferFtpTest, ACutResumeIsResumedAgainAndAChangedFileIsFetchedWhole) {
    auto& server = startServer();
    config.requiredStableChecks = 0;
    const std::string content = pattern(400'000);
    serve("big.bin", content);
    // What a run that died at 100 KB left behind.
    fs::create_directories(dir / "inbox");
    std::ofstream(dir / "inbox" / "big.bin.tarnel-partial", std::ios::binary) << content.substr(0, 100'000);
    const auto then = loop.now();
    partials.record({"big.bin", (dir / "inbox" / "big.bin.tarnel-partial").string(), 400'000,
                     100'000, config.id.toString(), then, then, 0, ""});

    server.cutTransfersAfter(150'000);  // the resumed attempt is cut too: its bytes stay
    auto engine = makeServerEngine(*this);
    engine->start();
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("[Test] Resuming: big.bin from 100 KB (attempt 1/5)"));
    EXPECT_TRUE(hasLogLine("ERR [Test] Failed: big.bin"));
    // Named as before names carried the connection, the file went on under its present name.
    EXPECT_FALSE(fs::exists(dir / "inbox" / "big.bin.tarnel-partial"));
    EXPECT_EQ(fs::file_size(partialFileURL(dir / "inbox", "big.bin", config.id.toString(), "big.bin")),
              250'000u);

    server.cutTransfersAfter(std::nullopt);
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("[Test] Resuming: big.bin from 250 KB (attempt 2/5)"));
    EXPECT_TRUE(hasLogLine("[Test] Verified (resumed): big.bin"));
    EXPECT_EQ(readFile(dir / "inbox" / "big.bin"), content);

    // A partial of a file that has since changed on the server is dropped, not resumed.
    const std::string changed = pattern(500'000);
    serve("next.bin", changed);
    std::ofstream(dir / "inbox" / "next.bin.tarnel-partial", std::ios::binary) << content.substr(0, 50'000);
    partials.record({"next.bin", (dir / "inbox" / "next.bin.tarnel-partial").string(), 400'000,
                     50'000, config.id.toString(), then, then, 0, ""});
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("[Test] Remote file changed, discarding partial: next.bin"));
    EXPECT_EQ(readFile(dir / "inbox" / "next.bin"), changed);
    EXPECT_EQ(filesBelow(dir / "inbox"), (std::vector<std::string>{"big.bin", "next.bin"}));
}

// The program's syncer, against a real server: each moved file has been synced, under its final
// name and whole, while its source was still on the server.
TEST_F(EngineTransferFtpTest, MovedFilesAreSyncedByTheGroupSyncerBeforeTheirSourceGoes) {
    auto& server = startServer();
    config.requiredStableChecks = 0;
    config.renamePattern = "done_{original}";
    std::vector<std::string> names;
    for (int i = 0; i < 12; ++i) {
        names.push_back("f" + std::to_string(i) + ".bin");
        serve(names.back(), pattern(20'000 + i));
    }
    struct Spy final : FileSyncer {
        Spy(Runtime& runtime, fs::path root) : real(runtime), serverRoot(std::move(root)) {}
        GroupFileSyncer real;
        fs::path serverRoot;
        std::vector<std::string> synced;  // names whose source was still there
        Task<void> makeDurable(fs::path file) override {
            co_await real.makeDurable(file);
            const std::string name = file.filename().string().substr(5);  // after "done_"
            if (fs::exists(serverRoot / name) && readFile(file) == readFile(serverRoot / name))
                synced.push_back(name);
        }
    } spy{runtime, server.root()};
    auto engine = makeServerEngine(*this, &spy);
    engine->start();
    loop.advance(10s);

    EXPECT_TRUE(filesBelow(server.root()).empty());
    EXPECT_EQ(filesBelow(dir / "inbox").size(), names.size());
    std::sort(spy.synced.begin(), spy.synced.end());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(spy.synced, names);
}

TEST_F(EngineTransferFtpTest, SizeMismatchAndEmptyFiles) {
    auto& server = startServer();
    config.requiredStableChecks = 0;
    config.maxRetries = 10;
    serve("grows.csv", "1234567890");
    serve("empty.txt", "");
    server.growOnNextDownload("grows.csv", "abc");  // changes between listing and download
    auto engine = makeServerEngine(*this);
    engine->start();
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("ERR [Test] Size mismatch: grows.csv \u2014 remote: 10 bytes, local: 13 bytes"));
    EXPECT_TRUE(hasLogLine("ERR [Test] Empty file after download: empty.txt"));
    EXPECT_TRUE(hasLogLine("WARN [Test] Will retry grows.csv in 5s (attempt 1/10)"));
    EXPECT_FALSE(
        fs::exists(partialFileURL(dir / "inbox", "empty.txt", config.id.toString(), "empty.txt")));

    // The listing now gives 13: the count restarts, the bigger partial is dropped, all fetched.
    loop.advance(10s);
    loop.advance(10s);
    EXPECT_EQ(readFile(dir / "inbox" / "grows.csv"), "1234567890abc");
}

TEST_F(EngineTransferFtpTest, AServerThatRefusesDeletesHandsEachFileOverOnce) {
    auto& server = startServer();
    config.requiredStableChecks = 0;
    config.exploreSubdirectories = true;
    server.refuseDeletes(true);
    serve("a.txt", "first");
    serve("b.txt", "second");
    serve("sub/c.txt", "third");
    auto engine = makeServerEngine(*this);
    engine->start();
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("WARN [Test] Downloaded OK but delete failed: sub/c.txt"));
    EXPECT_TRUE(hasLogLine("; the file stays on the server and is not fetched again unless its "
                           "size changes"));
    for (int poll = 0; poll < 10; ++poll) loop.advance(10s);
    EXPECT_EQ(filesBelow(dir / "inbox"),
              (std::vector<std::string>{"a.txt", "b.txt", "sub/c.txt"}));
    EXPECT_EQ(filesBelow(ftp->root()), (std::vector<std::string>{"a.txt", "b.txt", "sub/c.txt"}));
    EXPECT_EQ(history.entries()().size(), 3u);

    // Only a new size makes it a new file; once deletes work again it is moved for good.
    server.refuseDeletes(false);
    serve("a.txt", "first, longer");
    loop.advance(10s);
    loop.advance(10s);
    EXPECT_EQ(readFile(dir / "inbox" / "a (1).txt"), "first, longer");
    EXPECT_EQ(filesBelow(ftp->root()), (std::vector<std::string>{"b.txt", "sub/c.txt"}));
    EXPECT_EQ(filesBelow(dir / "inbox").size(), 4u);
}

// With flat placing, two files of one name from two folders download side by side, each through
// a temporary file of its own.
TEST_F(EngineTransferFtpTest, SameNamedFilesFromTwoFoldersBothArriveWhole) {
    auto& server = startServer();
    config.requiredStableChecks = 0;
    config.exploreSubdirectories = true;
    config.subdirectoryOrganization = SubdirectoryOrganization::flatAll;
    config.checksumVerification = true;  // each asked of the server in its own folder
    const std::string first = pattern(400'000), second = std::string(300'000, 'b');
    serve("a/x.jpg", first);
    serve("b/x.jpg", second);
    server.throttleDownloads(2'000'000);  // both transfers run at the same time
    auto engine = makeServerEngine(*this);
    engine->start();
    loop.advance(10s);

    ASSERT_EQ(filesBelow(dir / "inbox"), (std::vector<std::string>{"x (1).jpg", "x.jpg"}));
    std::set<std::string> arrived{readFile(dir / "inbox" / "x.jpg"),
                                  readFile(dir / "inbox" / "x (1).jpg")};
    EXPECT_EQ(arrived, (std::set<std::string>{first, second}));
    EXPECT_TRUE(filesBelow(ftp->root()).empty());
    EXPECT_EQ(countLogLines("INFO [Test] SHA-256 matches the server: "), 2);
}

TEST_F(EngineTransferFtpTest, AListingThatFailsThreeTimesShowsErrorAndRecovers) {
    auto& server = startServer();
    settings.setNotificationsEnabled(true);
    server.stop();
    auto engine = makeServerEngine(*this);
    engine->start();
    loop.advance(10s);
    EXPECT_EQ(engine->statusText()(), "Retrying (1/3)...");
    loop.advance(10s);
    EXPECT_EQ(engine->statusText()(), "Retrying (2/3)...");
    loop.advance(10s);
    EXPECT_EQ(engine->statusText()(), "Error");
    EXPECT_TRUE(hasLogLine("ERR [Test] Sync failed (3/3): Could not connect to server."));
    ASSERT_EQ(notifier.posted.size(), 1u);
    EXPECT_EQ(notifier.posted[0].title, "Tarnel: Connection error");
    server.start();
    loop.advance(10s);
    EXPECT_EQ(engine->statusText()(), "Connected");
    EXPECT_EQ(engine->connectionState()(), ConnectionState::connected);
}

TEST_F(EngineTransferFtpTest, RetriesRunOutIntoHistoryAndANotificationThenTheCycleStartsAgain) {
    auto& server = startServer();
    settings.setNotificationsEnabled(true);
    config.requiredStableChecks = 0;
    config.maxRetries = 3;
    serve("bad.zip", pattern(50'000));
    server.cutTransfersAfter(1000);
    auto engine = makeServerEngine(*this);
    engine->start();
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("WARN [Test] Will retry bad.zip in 5s (attempt 1/3)"));
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("WARN [Test] Will retry bad.zip in 15s (attempt 2/3)"));
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("ERR [Test] Retry exhausted for bad.zip after 3 attempts"));
    ASSERT_EQ(history.entries()().size(), 1u);
    EXPECT_EQ(history.entries()()[0].status, TransferStatus::retryExhausted);
    ASSERT_EQ(notifier.posted.size(), 1u);
    EXPECT_EQ(notifier.posted[0].body, "[Test] bad.zip failed after 3 attempts");
    loop.advance(10s);
    EXPECT_EQ(countLogLines("[Test] New: bad.zip"), 2);  // a new cycle
    EXPECT_FALSE(fs::exists(dir / "inbox" / "bad.zip"));
}

TEST_F(EngineTransferFtpTest, WithoutDeleteAFileIsFetchedOnceAcrossRestartsAndAgainWhenItChanges) {
    startServer();
    config.requiredStableChecks = 0;
    config.deleteAfterDownload = false;
    serve("list.csv", "v1");
    {
        auto engine = makeServerEngine(*this);
        engine->start();
        loop.advance(30s);
        engine->stop();
    }
    EXPECT_EQ(readFile(dir / "inbox" / "list.csv"), "v1");
    {
        auto engine = makeServerEngine(*this);  // a new engine remembers through the settings
        engine->start();
        loop.advance(30s);
        EXPECT_FALSE(fs::exists(dir / "inbox" / "list (1).csv"));
        serve("list.csv", "v2-longer");
        loop.advance(20s);
        EXPECT_EQ(readFile(dir / "inbox" / "list (1).csv"), "v2-longer");
        engine->stop();
    }
    EXPECT_TRUE(fs::exists(ftp->root() / "list.csv"));
}

// Names no real file system lets a server hold, served from memory.
TEST_F(EngineTransferFtpTest, HostileNamesNeverWriteOutsideTheDestination) {
    config.requiredStableChecks = 0;
    config.localPath = (dir / "deep" / "inbox").string();
    server->files = {{"../escape.txt", "x"}, {"a/../../b.txt", "y"}, {"fine.txt", "z"}};
    auto engine = makeEngine();
    engine->start();
    loop.advance(30s);
    EXPECT_EQ(filesBelow(dir / "deep"), (std::vector<std::string>{"inbox/fine.txt"}));
    EXPECT_FALSE(fs::exists(dir / "escape.txt"));
    EXPECT_FALSE(fs::exists(dir / "deep" / "b.txt"));
    EXPECT_TRUE(hasLogLine("WARN [Test] Refused ../escape.txt"));
    EXPECT_TRUE(server->files.contains("../escape.txt"));  // left on the server
}

}  // namespace
}  // namespace tarnel::testing
