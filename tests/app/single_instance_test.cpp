// One fleet per set of stores: later launches are refused or hand their import over.
#include <gtest/gtest.h>
#include <signal.h>

#include <fstream>
#include <map>
#include <nlohmann/json.hpp>

#include "connections/connection_config_json.h"
#include "platform/qt/qt_settings_store.h"
#include "servers/test_server.h"
#include "tarnel_process.h"

namespace tarnel::testing {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

struct SingleInstanceTest : ::testing::Test {
    fs::path dir = fs::temp_directory_path() / ("tarnel-instance-" + Uuid::random().toString());
    TarnelProcess first{dir / "home"};
    TarnelProcess later{dir / "home"};  // same stores

    ~SingleInstanceTest() override {
        std::error_code ignored;
        fs::remove_all(dir, ignored);
    }

    fs::path writeImport(const std::string& name, const std::vector<ConnectionConfig>& records) {
        fs::create_directories(dir);
        auto file = dir / name;
        std::ofstream(file) << encodeConnectionList(records);
        return file;
    }

    std::vector<std::string> storedNames() {
        QtSettingsStore store(first.settingsFile());
        auto text = store.stringValue("tarnel_connections_v2");
        std::vector<std::string> names;
        if (text)
            for (const auto& c : decodeConnectionList(*text)) names.push_back(c.name);
        std::sort(names.begin(), names.end());
        return names;
    }

    // Started headless on empty stores; waits until it is watching.
    void startFirst() {
        const auto starts = [&] {
            std::string log = first.logText();
            std::size_t n = 0;
            for (auto at = log.find("No enabled connection"); at != std::string::npos;
                 at = log.find("No enabled connection", at + 1))
                ++n;
            return n;
        };
        const auto before = starts();
        first.start({"--headless"});
        ASSERT_TRUE(TarnelProcess::waitFor([&] { return starts() > before; })) << first.logText();
    }
};

// The first runs with a runtime folder, as in a desktop session; the later launches without
// one, as from cron or sudo: they still meet it on the same stores.
TEST_F(SingleInstanceTest, ASecondHeadlessIsRefusedAndAnImportIsHandedToTheRunningOne) {
    fs::create_directories(dir / "runtime");
    fs::permissions(dir / "runtime", fs::perms::owner_all);
    first.addEnvironment("XDG_RUNTIME_DIR=" + (dir / "runtime").string());
    startFirst();
    auto second = later.run({"--headless"});
    EXPECT_EQ(second.exitCode, 2);
    EXPECT_NE(second.err.find("Tarnel is already running on these stores (process "),
              std::string::npos)
        << second.err;

    TestServer server({ServerProtocol::sftp, dir / "server"});
    std::ofstream(server.root() / "report.pdf") << "contents";
    auto shop = server.connectionConfig();
    shop.name = "Shop";
    shop.localPath = (dir / "downloads").string();
    shop.pollInterval = 1;
    shop.requiredStableChecks = 0;
    auto imported = later.run({"--import", writeImport("shop.json", {shop}).string()});
    EXPECT_EQ(imported.exitCode, 0) << imported.err;
    EXPECT_NE(imported.out.find("Imported 1 connection(s): 1 added, 0 replaced"), std::string::npos)
        << imported.out;
    // The running fleet applies it at once: its engine fetches the file.
    ASSERT_TRUE(TarnelProcess::waitFor([&] { return fs::exists(dir / "downloads" / "report.pdf"); }))
        << first.logText();

    // A later change saves the list again; both records survive it and a restart.
    ConnectionConfig office;
    office.name = "Office";
    office.enabled = false;
    auto again = later.run({"--import", writeImport("office.json", {office}).string()});
    EXPECT_EQ(again.exitCode, 0) << again.err;
    first.signal(SIGTERM);
    EXPECT_EQ(first.wait(), 0);
    EXPECT_EQ(storedNames(), (std::vector<std::string>{"Office", "Shop"}));

    // With nothing running, the import is applied by the importing process itself.
    shop.name = "Shop renamed";
    auto offline = later.run({"--import", writeImport("shop2.json", {shop}).string()});
    EXPECT_NE(offline.out.find("0 added, 1 replaced"), std::string::npos) << offline.err;
    EXPECT_EQ(storedNames(), (std::vector<std::string>{"Office", "Shop renamed"}));
}

TEST_F(SingleInstanceTest, ALockLeftByAKilledInstanceDoesNotStopTheNextStart) {
    startFirst();
    first.signal(SIGKILL);
    EXPECT_EQ(first.wait(), 128 + SIGKILL);

    startFirst();  // not refused: it takes the lock over and serves
    auto second = later.run({"--headless"});
    EXPECT_EQ(second.exitCode, 2);
    auto imported = later.run({"--import", writeImport("none.json", {}).string()});
    EXPECT_EQ(imported.exitCode, 0) << imported.err;
    EXPECT_NE(imported.out.find("Imported 0 connection(s)"), std::string::npos);
    first.signal(SIGINT);
    EXPECT_EQ(first.wait(), 0);
}

// `--status` asks the running fleet; a connection in error makes it exit 1, no fleet 3.
TEST_F(SingleInstanceTest, StatusTellsEachConnectionAndExitsAfterTheFleetsHealth) {
    TestServer server({ServerProtocol::sftp, dir / "server"});
    std::ofstream(server.root() / "report.pdf") << "contents";
    auto good = server.connectionConfig();
    good.name = "Good";
    good.localPath = (dir / "downloads").string();
    good.pollInterval = 1;
    good.requiredStableChecks = 0;
    auto broken = good;
    broken.id = Uuid::random();
    broken.name = "Broken";
    broken.port = 1;  // nothing listens there
    EXPECT_EQ(later.run({"--status"}).exitCode, 3);
    first.start({"--headless", "--import", writeImport("two.json", {good, broken}).string()});
    ASSERT_TRUE(TarnelProcess::waitFor([&] {
        return fs::exists(dir / "downloads" / "report.pdf") &&
               first.logText().find("[Broken] Sync failed") != std::string::npos;
    })) << first.logText();

    const auto lines = later.run({"--status"});
    EXPECT_EQ(lines.exitCode, 1) << lines.err;
    EXPECT_NE(lines.out.find("Broken: error"), std::string::npos) << lines.out;
    EXPECT_NE(lines.out.find("; last error: "), std::string::npos) << lines.out;
    EXPECT_NE(lines.out.find("Good: "), std::string::npos) << lines.out;
    const auto document = later.run({"--status", "--json"});
    EXPECT_EQ(document.exitCode, 1);
    const auto status = json::parse(document.out);
    std::map<std::string, json> byName;
    for (const auto& c : status["connections"]) byName[c["name"]] = c;
    EXPECT_EQ(byName["Broken"]["state"], "error");
    EXPECT_TRUE(byName["Broken"]["lastError"].is_string());
    EXPECT_NE(byName["Good"]["state"], "error");
    EXPECT_EQ(byName["Good"]["todayFiles"], 1);
    EXPECT_EQ(status["todayFiles"], 1);

    first.signal(SIGTERM);
    EXPECT_EQ(first.wait(), 0);
    const auto none = later.run({"--status"});
    EXPECT_EQ(none.exitCode, 3);
    EXPECT_NE(none.err.find("not running"), std::string::npos) << none.err;
}

// A lock that cannot be made must not read as another instance running.
TEST_F(SingleInstanceTest, ALockFileThatCannotBeMadeIsSaidSo) {
    fs::create_directories(first.home() / "data/Tarnel/tarnel.lock");  // a folder where it goes
    auto refused = first.run({"--headless"});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_NE(refused.err.find("cannot open the lock file"), std::string::npos) << refused.err;
    EXPECT_EQ(refused.err.find("already running"), std::string::npos) << refused.err;
}

}  // namespace
}  // namespace tarnel::testing
