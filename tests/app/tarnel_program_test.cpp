// The program as a person runs it: import, headless runs, a crash in the middle of a download,
// a server outage in the middle of a batch.
#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>

#include "connections/connection_config_json.h"
#include "platform/qt/qt_settings_store.h"
#include "servers/test_server.h"
#include "tarnel_process.h"

namespace tarnel::testing {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

// The temporary file of `name` in `folder`, whose name carries a tag of the connection
// ("video.mov.<tag>.tarnel-partial"); empty while there is none.
fs::path partialOf(const fs::path& folder, const std::string& name) {
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(folder, ec)) {
        const std::string file = entry.path().filename().string();
        if (file.starts_with(name + ".") && file.ends_with(".tarnel-partial")) return entry.path();
    }
    return {};
}

struct TarnelProgramTest : ::testing::Test {
    fs::path dir = fs::temp_directory_path() / ("tarnel-program-" + Uuid::random().toString());
    TarnelProcess tarnel{dir / "home"};

    ~TarnelProgramTest() override {
        std::error_code ignored;
        fs::remove_all(dir, ignored);
    }

    fs::path writeImport(const json& records) {
        fs::create_directories(dir);
        auto file = dir / "import.json";
        std::ofstream(file) << records.dump(2);
        return file;
    }

    json recordFor(const ConnectionConfig& c) { return json::parse(encodeConnectionList({c}))[0]; }

    std::vector<ConnectionConfig> stored() {
        QtSettingsStore store(tarnel.settingsFile());
        auto text = store.stringValue("tarnel_connections_v2");
        return text ? decodeConnectionList(*text) : std::vector<ConnectionConfig>{};
    }

    static std::string readFile(const fs::path& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    static std::string pattern(std::size_t size) {
        std::string s(size, '\0');
        for (std::size_t i = 0; i < size; ++i) s[i] = static_cast<char>((i * 131 + i / 4093) & 0xFF);
        return s;
    }

    // A connection to `server` that fetches at once into dir/downloads.
    ConnectionConfig connectionTo(const TestServer& server) {
        auto c = server.connectionConfig();
        c.name = "Crash";
        c.localPath = (dir / "downloads").string();
        c.pollInterval = 1;
        c.requiredStableChecks = 0;
        return c;
    }

    std::vector<std::string> downloaded() {
        std::vector<std::string> out;
        std::error_code ec;
        for (auto it = fs::recursive_directory_iterator(dir / "downloads", ec);
             it != fs::recursive_directory_iterator(); ++it)
            if (it->is_regular_file()) out.push_back(it->path().filename().string());
        std::sort(out.begin(), out.end());
        return out;
    }
};

TEST_F(TarnelProgramTest, AnImportThatDoesNotReadImportsNothingAndSaysWhere) {
    ConnectionConfig good;
    good.name = "Good";
    json bad = recordFor(ConnectionConfig{});
    bad["transferProtocol"] = "SCP";
    auto result =
        tarnel.run({"--import", writeImport(json::array({recordFor(good), bad})).string()});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_NE(result.err.find(R"(record 1: key "transferProtocol": unknown value "SCP")"),
              std::string::npos)
        << result.err;
    EXPECT_NE(result.err.find("Nothing was imported."), std::string::npos);
    EXPECT_TRUE(stored().empty());  // not even the good record

    auto missing = tarnel.run({"--import", (dir / "absent.json").string()});
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_NE(missing.err.find("cannot read"), std::string::npos);
}

TEST_F(TarnelProgramTest, OldFormsImportMigratedAndAKnownIdIsReplaced) {
    ConnectionConfig c;
    c.name = "Legacy";
    json record = recordFor(c);
    record.erase("excludedExtensions");  // the one-list form: the list was an exclude list
    record["extensionFilter"] = "tmp, bak";
    record["extensionFilterExclude"] = true;
    record["filenameFilter"] = " *.jpg, , IMG_* ";
    record.erase("fallbackBehavior");
    record.erase("sshKeyPath");  // optional keys may be absent
    record["routingRules"] = json::array({{{"id", Uuid::random().toString()}, {"pattern", "*.pdf"}}});
    auto file = writeImport(json::array({record}));

    auto first = tarnel.run({"--import", file.string()});
    EXPECT_EQ(first.exitCode, 0) << first.err;
    EXPECT_NE(first.out.find("Imported 1 connection(s): 1 added, 0 replaced"), std::string::npos);
    auto list = stored();
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].excludedExtensions, "tmp, bak");
    ASSERT_EQ(list[0].routingRules.size(), 3u);
    EXPECT_EQ(list[0].routingRules[2].matchType, RuleMatchType::customPattern);

    record["name"] = "Renamed";
    auto second = tarnel.run({"--import", writeImport(json::array({record})).string()});
    EXPECT_NE(second.out.find("0 added, 1 replaced"), std::string::npos);
    list = stored();
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].name, "Renamed");

    EXPECT_EQ(tarnel.run({"--help"}).exitCode, 0);
    auto wrong = tarnel.run({"--frobnicate"});
    EXPECT_EQ(wrong.exitCode, 2);
    EXPECT_NE(wrong.err.find("unknown option: --frobnicate"), std::string::npos);
}

TEST_F(TarnelProgramTest, AHandWrittenRecordTakesDefaultsRunsAndIsListed) {
    TestServer server({ServerProtocol::ftp, dir / "server"});
    std::ofstream(server.root() / "invoice.pdf") << "pdf";
    const auto config = server.connectionConfig();
    const json record{
        {"transferProtocol", "FTP"},
        {"host", config.host},
        {"port", config.port},
        {"username", config.username},
        {"password", config.password},
        {"remotePath", config.remotePath},
        {"localPath", (dir / "downloads").string()},
        {"pollInterval", 1},
        {"requiredStableChecks", 0},
        {"fallbackBehavior", "useSpecificFolder"},
        {"fallbackPath", (dir / "other").string()},
        {"routingRules", json::array({{{"pattern", "*.pdf"},
                                       {"destinationPath", (dir / "pdf").string()}}})},
    };
    auto imported = tarnel.run({"--import", writeImport(json::array({record})).string()});
    ASSERT_EQ(imported.exitCode, 0) << imported.err;
    EXPECT_NE(imported.out.find("record 0 took the defaults of: id, name, enabled, sshKeyPath, "),
              std::string::npos)
        << imported.out;
    EXPECT_EQ(imported.out.find("pollInterval"), std::string::npos);
    EXPECT_TRUE(fs::is_directory(dir / "pdf"));  // folders made and granted as the editor would
    EXPECT_TRUE(fs::is_directory(dir / "other"));

    auto listed = tarnel.run({"--list"});
    EXPECT_EQ(listed.exitCode, 0);
    EXPECT_EQ(listed.out, "New Connection  FTP  " + config.username + "@" + config.host + ":" +
                              std::to_string(config.port) + "  " + config.remotePath + " → " +
                              (dir / "downloads").string() + "  enabled\n");

    tarnel.start({"--headless"});
    ASSERT_TRUE(TarnelProcess::waitFor([&] { return fs::exists(dir / "pdf" / "invoice.pdf"); }))
        << tarnel.logText();
    tarnel.signal(SIGTERM);
    EXPECT_EQ(tarnel.wait(), 0);

    // What a person must say is still asked for, by index and key; the list stays as it was.
    json noHost = record;
    noHost.erase("host");
    auto refused = tarnel.run({"--import", writeImport(json::array({record, noHost})).string()});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_NE(refused.err.find(R"(record 1: key "host": missing)"), std::string::npos) << refused.err;
    EXPECT_EQ(stored().size(), 1u);
}

TEST_F(TarnelProgramTest, KilledInTheMiddleOfADownloadItResumesFromTheTemporaryFile) {
    TestServer server({ServerProtocol::ftp, dir / "server"});
    const std::string content = pattern(6'000'000);
    std::ofstream(server.root() / "video.mov", std::ios::binary) << content;
    server.throttleDownloads(1'500'000);
    auto file = writeImport(json::array({recordFor(connectionTo(server))}));

    tarnel.start({"--headless", "--import", file.string()});
    fs::path partial;
    ASSERT_TRUE(TarnelProcess::waitFor([&] {
        std::error_code ec;
        partial = partialOf(dir / "downloads", "video.mov");
        return !partial.empty() && fs::file_size(partial, ec) > 1'500'000 && !ec;
    })) << tarnel.logText();
    tarnel.signal(SIGKILL);
    EXPECT_EQ(tarnel.wait(), 128 + SIGKILL);
    EXPECT_TRUE(fs::exists(partial));
    EXPECT_TRUE(fs::exists(server.root() / "video.mov"));

    server.throttleDownloads(std::nullopt);
    tarnel.start({"--headless"});
    ASSERT_TRUE(TarnelProcess::waitFor([&] { return !fs::exists(server.root() / "video.mov"); }))
        << tarnel.logText();
    tarnel.signal(SIGTERM);
    EXPECT_EQ(tarnel.wait(), 0);

    const auto log = tarnel.logText();
    EXPECT_NE(log.find("[Crash] Resuming: video.mov from "), std::string::npos) << log;
    EXPECT_NE(log.find("[Crash] Verified (resumed): video.mov"), std::string::npos);
    EXPECT_EQ(downloaded(), std::vector<std::string>{"video.mov"});  // once, no partial left
    EXPECT_EQ(readFile(dir / "downloads" / "video.mov"), content);
}

// The tray application quit while four downloads run (SIGTERM quits it as its menu does): it
// ends them cleanly (under AddressSanitizer, nothing used after it is freed), and the next
// start resumes each from its temporary file.
TEST_F(TarnelProgramTest, QuitDuringFourDownloadsEndsThemAndTheNextStartResumesEach) {
    TestServer server({ServerProtocol::ftp, dir / "server"});
    std::vector<std::string> names;
    for (int i = 0; i < 4; ++i) {
        names.push_back("take-" + std::to_string(i) + ".mov");
        std::ofstream(server.root() / names.back(), std::ios::binary) << pattern(3'000'000 + i);
    }
    server.throttleDownloads(300'000);
    auto file = writeImport(json::array({recordFor(connectionTo(server))}));
    ASSERT_EQ(tarnel.run({"--import", file.string()}).exitCode, 0);

    tarnel.addEnvironment("QT_QPA_PLATFORM=offscreen");
    tarnel.start({});
    const auto partial = [&](const std::string& name) { return partialOf(dir / "downloads", name); };
    ASSERT_TRUE(TarnelProcess::waitFor([&] {
        return std::all_of(names.begin(), names.end(), [&](const auto& name) {
            std::error_code ec;
            return fs::file_size(partial(name), ec) > 100'000 && !ec;
        });
    })) << tarnel.logText();
    tarnel.signal(SIGTERM);
    EXPECT_EQ(tarnel.wait(), 0) << readFile(tarnel.home() / "headless.err");
    for (const auto& name : names) EXPECT_TRUE(fs::exists(partial(name))) << name;

    server.throttleDownloads(std::nullopt);
    tarnel.start({"--headless"});
    ASSERT_TRUE(TarnelProcess::waitFor([&] { return downloaded() == names; })) << tarnel.logText();
    tarnel.signal(SIGTERM);
    EXPECT_EQ(tarnel.wait(), 0) << readFile(tarnel.home() / "headless.err");
    const auto log = tarnel.logText();
    for (int i = 0; i < 4; ++i) {
        EXPECT_NE(log.find("[Crash] Resuming: " + names[i] + " from "), std::string::npos) << log;
        EXPECT_EQ(readFile(dir / "downloads" / names[i]), pattern(3'000'000 + i)) << names[i];
    }
}

TEST_F(TarnelProgramTest, AServerThatGoesAwayMidBatchStillDeliversEveryFileOnce) {
    TestServer server({ServerProtocol::sftp, dir / "server"});
    std::vector<std::string> names;
    for (int i = 0; i < 12; ++i) {
        names.push_back("part-" + std::to_string(10 + i) + ".dat");
        std::ofstream(server.root() / names.back(), std::ios::binary) << pattern(150'000 + i);
    }
    server.throttleDownloads(400'000);
    auto file = writeImport(json::array({recordFor(connectionTo(server))}));
    tarnel.start({"--headless", "--import", file.string()});
    ASSERT_TRUE(TarnelProcess::waitFor([&] { return downloaded().size() >= 3; })) << tarnel.logText();
    server.stop();
    ASSERT_TRUE(TarnelProcess::waitFor([&] {
        return tarnel.logText().find("Sync failed (2/3)") != std::string::npos;
    }));
    server.throttleDownloads(std::nullopt);
    server.start();
    ASSERT_TRUE(TarnelProcess::waitFor([&] {
        return fs::is_empty(server.root()) && downloaded().size() == names.size();
    })) << tarnel.logText();
    tarnel.signal(SIGINT);
    EXPECT_EQ(tarnel.wait(), 0);
    EXPECT_EQ(downloaded(), names);  // every one once: no "(1)", no partial left
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(readFile(dir / "downloads" / names[i]), pattern(150'000 + i)) << names[i];
}

}  // namespace
}  // namespace tarnel::testing
