// The engine against servers as they are met unattended: downloads that break off, folder names
// a URL would read otherwise, servers that limit sessions, and what servers vouch for: their own
// checksum of each file where they offer one, and MLSD listings where they speak them.
#include <gtest/gtest.h>

#include "engine/destination.h"
#include "engine_fixture.h"
#include "server_engine.h"
#include "servers/native_server.h"
#include "servers/test_server.h"

namespace tarnel::testing {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

struct EngineRemoteTest : EngineFixture {
    std::unique_ptr<TestServer> server;

    void startServer(ServerProtocol protocol) {
        server = std::make_unique<TestServer>(ServerOptions{protocol, dir / "server"});
        server->pointAt(config);
        config.remotePath = "/";
        config.pollInterval = 10;
        config.requiredStableChecks = 0;
    }
};

// The first attempt keeps what it received, so the next one goes on from there instead of
// starting a large file over at every attempt.
TEST_F(EngineRemoteTest, AFirstDownloadThatBreaksOffIsResumedByTheNextAttempt) {
    startServer(ServerProtocol::ftp);
    const std::string content = pattern(400'000);
    writeFile(server->root() / "big.bin", content);
    server->cutTransfersAfter(150'000);
    auto engine = makeServerEngine(*this);
    engine->start();
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("ERR [Test] Failed: big.bin"));
    const auto partial = partialFileURL(dir / "inbox", "big.bin", config.id.toString(), "big.bin");
    EXPECT_EQ(readFile(partial).size(), 150'000u);

    server->cutTransfersAfter(std::nullopt);
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("[Test] Resuming: big.bin from 150 KB (attempt 1/5)"));
    EXPECT_TRUE(readFile(dir / "inbox" / "big.bin") == content);
    EXPECT_EQ(filesBelow(dir / "inbox"), (std::vector<std::string>{"big.bin"}));
}

struct EngineRemoteNamesTest : EngineRemoteTest, ::testing::WithParamInterface<ServerProtocol> {};

// Listing, download and delete all address one folder, whose name holds what a URL would read
// as an escape, a blank, a fragment and a query.
TEST_P(EngineRemoteNamesTest, AFolderNamedLikeAURLIsListedFetchedAndEmptiedInPlace) {
    startServer(GetParam());
    config.remotePath = "/drop %41 #1?";
    writeFile(server->root() / "drop %41 #1?" / "top.txt", "top");
    writeFile(server->root() / "drop A #1?" / "top.txt", "what %41 would read as");
    auto engine = makeServerEngine(*this);
    engine->start();
    loop.advance(10s);

    EXPECT_EQ(readFile(dir / "inbox" / "top.txt"), "top");
    EXPECT_EQ(filesBelow(server->root()), (std::vector<std::string>{"drop A #1?/top.txt"}));
    EXPECT_EQ(countLogLines("ERR ["), 0);
}

INSTANTIATE_TEST_SUITE_P(Protocols, EngineRemoteNamesTest,
                         ::testing::Values(ServerProtocol::ftp, ServerProtocol::sftp),
                         [](const auto& info) { return std::string(serverProtocolName(info.param)); });

// The engine against a server as Debian ships it, watching a new folder of the test user's home.
struct NativeEngineTest : EngineFixture, ::testing::WithParamInterface<NativeServerKind> {
    void SetUp() override {
        if (const auto why = NativeServer::unavailable(GetParam())) GTEST_SKIP() << *why;
        native.emplace(GetParam(), sessionsPerAddress);
        drop = native->makeFolder("drop-" + Uuid::random().toString().substr(0, 8));
        ConnectionConfig c = native->connectionConfig();
        c.id = config.id;
        c.name = config.name;
        c.localPath = config.localPath;
        c.remotePath = fs::relative(drop, NativeServer::home()).string();
        c.pollInterval = 10;
        c.requiredStableChecks = 0;
        config = c;
    }
    ~NativeEngineTest() override {
        std::error_code ignored;
        if (!drop.empty()) fs::remove_all(drop, ignored);
    }
    // Puts `content` into the watched folder as the server's user's own.
    void serve(const std::string& name, const std::string& content) {
        writeFile(drop / name, content);
        NativeServer::handOver(drop);
    }
    int sessionsPerAddress = 0;
    std::optional<NativeServer> native;
    fs::path drop;
};

std::string serverName(const ::testing::TestParamInfo<NativeServerKind>& info) {
    return nativeServerName(info.param);
}

// A server that takes two sessions from an address refuses the third and fourth login (421 or
// 530): those downloads wait for a session instead of failing.
struct SessionLimitTest : NativeEngineTest {
    SessionLimitTest() { sessionsPerAddress = 2; }
};

TEST_P(SessionLimitTest, FourDownloadsAtOnceKeepToTheSessionsTheServerAccepts) {
    std::vector<std::string> names;
    for (unsigned i = 0; i < 8; ++i) {
        names.push_back("f" + std::to_string(i) + ".bin");
        serve(names.back(), pattern(200'000, i));
    }
    config.maxConcurrentDownloads = 4;
    auto engine = makeServerEngine(*this);
    engine->start();
    loop.advance(10s);

    EXPECT_EQ(filesBelow(dir / "inbox"), names);
    for (unsigned i = 0; i < names.size(); ++i)
        EXPECT_TRUE(readFile(dir / "inbox" / names[i]) == pattern(200'000, i)) << names[i];
    EXPECT_TRUE(filesBelow(drop).empty());
    EXPECT_EQ(history.entries()().size(), names.size());
    EXPECT_EQ(countLogLines("ERR ["), 0);
    EXPECT_EQ(countLogLines("INFO [Test] The server accepts 2 session(s) at once"), 1);
}

INSTANTIATE_TEST_SUITE_P(Servers, SessionLimitTest,
                         ::testing::Values(NativeServerKind::vsftpd, NativeServerKind::pureFtpd,
                                           NativeServerKind::proftpd),
                         serverName);

// A server whose checksum differs: the file is neither placed nor deleted, no byte of it is
// kept to resume from, and after the retries it is in error. A resumed download is vouched for
// as a whole.
TEST_F(EngineRemoteTest, AChecksumThatDiffersFailsTheFileAndAResumedOneMatches) {
    startServer(ServerProtocol::ftp);
    config.checksumVerification = true;
    config.deleteAfterDownload = true;
    config.maxRetries = 2;
    writeFile(server->root() / "bad.bin", pattern(50'000));
    server->corruptChecksums(true);
    auto engine = makeServerEngine(*this);
    engine->start();
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("ERR [Test] Failed: bad.bin \u2014 SHA-256 checksum mismatch: "));
    EXPECT_TRUE(hasLogLine("WARN [Test] Will retry bad.bin in 5s (attempt 1/2)"));
    EXPECT_FALSE(fs::exists(
        partialFileURL(dir / "inbox", "bad.bin", config.id.toString(), "bad.bin")));
    EXPECT_FALSE(partials.partial(config.id.toString(), "bad.bin"));
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("ERR [Test] Retry exhausted for bad.bin after 2 attempts"));
    ASSERT_EQ(history.entries()().size(), 1u);
    EXPECT_EQ(history.entries()()[0].status, TransferStatus::retryExhausted);
    EXPECT_TRUE(filesBelow(dir / "inbox").empty());
    EXPECT_EQ(filesBelow(server->root()), (std::vector<std::string>{"bad.bin"}));

    fs::remove(server->root() / "bad.bin");
    server->corruptChecksums(false);
    const std::string content = pattern(400'000);
    writeFile(server->root() / "big.bin", content);
    server->cutTransfersAfter(150'000);
    loop.advance(10s);
    server->cutTransfersAfter(std::nullopt);
    loop.advance(10s);
    EXPECT_TRUE(hasLogLine("[Test] Resuming: big.bin from 150 KB"));
    EXPECT_TRUE(hasLogLine("INFO [Test] SHA-256 matches the server: big.bin = "));
    EXPECT_TRUE(readFile(dir / "inbox" / "big.bin") == content);
    EXPECT_EQ(countLogLines("MD5: "), 0);
}

// Servers as Debian ships them: proftpd vouches with SHA-256 and lists by MLSD, pure-ftpd
// lists by MLSD and offers no checksum, vsftpd does neither.
using NativeChecksumTest = NativeEngineTest;

TEST_P(NativeChecksumTest, NamesArriveWholeAndEachFileIsVouchedForAsTheServerCan) {
    const bool speaksMLSD = GetParam() != NativeServerKind::vsftpd;
    // LIST cuts names at " -> " and loses trailing blanks; MLSD gives them whole.
    std::vector<std::string> names{"plain.bin"};
    if (speaksMLSD) names.insert(names.end(), {"a -> b.txt", "trailing  "});
    for (const auto& name : names) serve(name, name + pattern(70'000));
    config.checksumVerification = true;
    auto engine = makeServerEngine(*this);
    engine->start();
    loop.advance(10s);
    // A file of a later poll: the server's lack of checksums is not said again.
    names.push_back("later.bin");
    serve(names.back(), pattern(1000));
    loop.advance(10s);

    std::sort(names.begin(), names.end());
    EXPECT_EQ(filesBelow(dir / "inbox"), names);
    for (const auto& name : names)
        EXPECT_TRUE(readFile(dir / "inbox" / name) ==
                    (name == "later.bin" ? pattern(1000) : name + pattern(70'000)))
            << name;
    EXPECT_EQ(countLogLines("ERR ["), 0);
    const int files = static_cast<int>(names.size());
    if (GetParam() == NativeServerKind::proftpd) {
        EXPECT_EQ(countLogLines("INFO [Test] SHA-256 matches the server: "), files);
        EXPECT_EQ(countLogLines("offers no checksum"), 0);
    } else {
        EXPECT_EQ(
            countLogLines(
                "INFO [Test] The server offers no checksum; files are verified by their size"),
            1);
        EXPECT_EQ(countLogLines("INFO [Test] MD5: "), files);
    }
    if (GetParam() != NativeServerKind::pureFtpd) {  // pure-ftpd keeps no dialogue
        const std::string dialogue = native->protocolLog();
        EXPECT_EQ(dialogue.find("MLSD") != std::string::npos, speaksMLSD) << dialogue;
    }
}

INSTANTIATE_TEST_SUITE_P(Servers, NativeChecksumTest,
                         ::testing::Values(NativeServerKind::proftpd, NativeServerKind::pureFtpd,
                                           NativeServerKind::vsftpd),
                         serverName);

}  // namespace
}  // namespace tarnel::testing
