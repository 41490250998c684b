// Move mode against servers as Debian ships them, not chrooted, the user's home deep below "/":
// the delete must hit the file that was downloaded, wherever the login folder lies.
#include <gtest/gtest.h>
#include <signal.h>

#include <fstream>

#include "connections/connection_config_json.h"
#include "servers/native_server.h"
#include "tarnel_process.h"

namespace tarnel::testing {
namespace {

namespace fs = std::filesystem;

struct Case {
    NativeServerKind kind;
    bool leadingSlash;  // FTP: "/folder" and "folder" both name a folder of the login folder
};

std::string caseName(const ::testing::TestParamInfo<Case>& info) {
    return std::string(nativeServerName(info.param.kind)) +
           (info.param.leadingSlash ? "_slash" : "_noslash");
}

std::size_t count(const std::string& text, const std::string& what) {
    std::size_t n = 0;
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
    return n;
}

struct NativeServerTest : ::testing::TestWithParam<Case> {
    void SetUp() override {
        if (const auto why = NativeServer::unavailable(GetParam().kind)) GTEST_SKIP() << *why;
        server.emplace(GetParam().kind);
    }
    ~NativeServerTest() override {
        std::error_code ignored;
        fs::remove_all(dir, ignored);
        for (const auto& f : folders) fs::remove_all(f, ignored);
    }

    // A record that moves `folder` (below the home) into `local`.
    ConnectionConfig moving(const std::string& name, const fs::path& folder, const fs::path& local) {
        auto c = server->connectionConfig();
        c.name = name;
        const std::string relative = fs::relative(folder, NativeServer::home()).string();
        if (c.transferProtocol == TransferProtocol::sftp)
            c.remotePath = folder.string();  // SFTP paths are absolute
        else
            c.remotePath = GetParam().leadingSlash ? "/" + relative : relative;
        c.localPath = local.string();
        c.requiredStableChecks = 0;
        c.deleteAfterDownload = true;
        return c;
    }

    fs::path makeFolder(const std::string& name) {
        folders.push_back(server->makeFolder(name + "-" + Uuid::random().toString().substr(0, 8)));
        return folders.back();
    }

    static std::vector<std::string> filesBelow(const fs::path& root) {
        std::vector<std::string> out;
        std::error_code ec;
        for (auto it = fs::recursive_directory_iterator(root, ec);
             it != fs::recursive_directory_iterator(); ++it)
            if (it->is_regular_file()) out.push_back(fs::relative(it->path(), root).string());
        std::sort(out.begin(), out.end());
        return out;
    }

    fs::path dir = fs::temp_directory_path() / ("tarnel-native-" + Uuid::random().toString());
    std::vector<fs::path> folders;
    std::optional<NativeServer> server;
};

TEST_P(NativeServerTest, MoveModeMovesEveryFileOnceAndAnIdleFolderWarnsOnce) {
    const fs::path drop = makeFolder("drop");
    std::vector<std::string> names{"a b.txt", "Grüße – ü.txt", "sub/inner.txt",
                                   "sub/deeper/x y.bin"};
    for (int i = 0; i < 12; ++i) names.push_back("plain-" + std::to_string(10 + i) + ".dat");
    for (const auto& name : names) {
        fs::create_directories((drop / name).parent_path());
        std::ofstream(drop / name, std::ios::binary) << name << std::string(5000, 'x');
    }
    NativeServer::handOver(drop);
    std::sort(names.begin(), names.end());

    auto mover = moving("Mover", drop, dir / "moved");
    mover.exploreSubdirectories = true;
    mover.maxDepth = 3;
    mover.deleteEmptyRemoteFolders = true;
    const fs::path idleFolder = makeFolder("idle");
    const auto idle = moving("Idle", idleFolder, dir / "idle");

    fs::create_directories(dir);
    std::ofstream(dir / "import.json") << encodeConnectionList({mover, idle});
    TarnelProcess tarnel(dir / "home");
    tarnel.start({"--headless", "--import", (dir / "import.json").string()});
    ASSERT_TRUE(TarnelProcess::waitFor([&] {
        return fs::is_empty(drop) && filesBelow(dir / "moved").size() >= names.size();
    })) << tarnel.logText();
    const std::size_t pollsBefore = count(tarnel.logText(), "[Idle]");
    // Some more polls: nothing arrives twice, and the idle folder's warning stays single.
    std::this_thread::sleep_for(std::chrono::seconds(4));
    tarnel.signal(SIGTERM);
    EXPECT_EQ(tarnel.wait(), 0);

    const std::string log = tarnel.logText();
    EXPECT_EQ(filesBelow(dir / "moved"), names) << log;
    for (const auto& name : names)
        EXPECT_EQ(fs::file_size(dir / "moved" / name), name.size() + 5000) << name;
    EXPECT_EQ(count(log, "delete failed"), 0u) << log;
    // An empty MLSD answer is an empty folder; an empty LIST reads as unreadable text.
    const auto kind = GetParam().kind;
    const bool speaksMLSD = kind == NativeServerKind::proftpd ||
                            kind == NativeServerKind::proftpdFtps ||
                            kind == NativeServerKind::pureFtpd;
    EXPECT_EQ(count(log, "[Idle] LIST returned unparseable output, falling back to NLST"),
              speaksMLSD ? 0u : 1u)
        << log;
    EXPECT_GE(pollsBefore, 1u);

    if (GetParam().kind == NativeServerKind::vsftpd) {
        const std::string dialogue = server->protocolLog();
        // Sessions were reused: far fewer logins than files, and no removal is followed by a
        // change to the server's root.
        EXPECT_LT(count(dialogue, "OK LOGIN"), names.size() / 2) << dialogue;
        EXPECT_EQ(count(dialogue, "OK DELETE"), names.size());
        EXPECT_EQ(count(dialogue, R"("CWD /")"), 0u);
    }
}

INSTANTIATE_TEST_SUITE_P(Servers, NativeServerTest,
                         ::testing::Values(Case{NativeServerKind::vsftpd, false},
                                           Case{NativeServerKind::vsftpd, true},
                                           // enters no folder outside the home, "/" included
                                           Case{NativeServerKind::proftpd, false},
                                           Case{NativeServerKind::proftpdFtps, true},
                                           Case{NativeServerKind::proftpdSftp, true},
                                           Case{NativeServerKind::pureFtpd, true},
                                           Case{NativeServerKind::openssh, true}),
                         caseName);

}  // namespace
}  // namespace tarnel::testing
