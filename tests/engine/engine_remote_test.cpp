// The engine against servers as they are met unattended: downloads that break off, folder names
// a URL would read otherwise, servers that limit sessions.
#include <gtest/gtest.h>

#include <fstream>

#include "engine/destination.h"
#include "engine_fixture.h"
#include "server_engine.h"
#include "servers/native_server.h"
#include "servers/test_server.h"

namespace tarnel::testing {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

void writeFile(const fs::path& file, const std::string& content) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

// Content in which no two offsets repeat, so any misplaced byte shows.
std::string pattern(std::size_t size, unsigned salt = 0) {
    std::string s(size, '\0');
    for (std::size_t i = 0; i < size; ++i) s[i] = static_cast<char>((i * 7919 + i / 251 + salt) & 0xFF);
    return s;
}

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

// A server that takes two sessions from an address refuses the third and fourth login (421 or
// 530): those downloads wait for a session instead of failing.
struct SessionLimitTest : EngineFixture, ::testing::WithParamInterface<NativeServerKind> {
    void SetUp() override {
        if (const auto why = NativeServer::unavailable(GetParam())) GTEST_SKIP() << *why;
        native.emplace(GetParam(), 2);
    }
    ~SessionLimitTest() override {
        std::error_code ignored;
        if (!drop.empty()) fs::remove_all(drop, ignored);
    }
    std::optional<NativeServer> native;
    fs::path drop;
};

TEST_P(SessionLimitTest, FourDownloadsAtOnceKeepToTheSessionsTheServerAccepts) {
    drop = native->makeFolder("limit-" + Uuid::random().toString().substr(0, 8));
    std::vector<std::string> names;
    for (unsigned i = 0; i < 8; ++i) {
        names.push_back("f" + std::to_string(i) + ".bin");
        writeFile(drop / names.back(), pattern(200'000, i));
    }
    NativeServer::handOver(drop);
    ConnectionConfig c = native->connectionConfig();
    c.id = config.id;
    c.name = config.name;
    c.localPath = config.localPath;
    c.remotePath = fs::relative(drop, NativeServer::home()).string();
    c.pollInterval = 10;
    c.requiredStableChecks = 0;
    c.maxConcurrentDownloads = 4;
    config = c;
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
                         [](const auto& info) { return std::string(nativeServerName(info.param)); });

}  // namespace
}  // namespace tarnel::testing
