// Passwords in the desktop's keyring, with the program run as a person runs it: imported where a
// keyring answers, they are found there and not in the settings file; moved between a desktop
// and a machine with no keyring, nothing is lost and the connection keeps logging in.
#include <gtest/gtest.h>
#include <signal.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "connections/connection_config_json.h"
#include "platform/qt/qt_settings_store.h"
#include "servers/secret_service.h"
#include "servers/test_server.h"
#include "tarnel_process.h"

namespace tarnel::testing {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

struct KeyringProgramTest : ::testing::Test {
    fs::path dir = fs::temp_directory_path() / ("tarnel-keyring-" + Uuid::random().toString());
    std::optional<SecretService> secrets;
    TarnelProcess tarnel{dir / "home"};
    const std::string password = "kr-" + Uuid::random().toString();
    std::optional<TestServer> server;
    ConnectionConfig connection;

    void SetUp() override {
        if (auto missing = SecretService::unavailable()) GTEST_SKIP() << *missing;
        secrets.emplace(dir / "secrets");
        server.emplace(ServerOptions{ServerProtocol::ftp, dir / "server", "tarnel", password});
        connection = server->connectionConfig();
        connection.name = "Vault";
        connection.localPath = (dir / "downloads").string();
        connection.requiredStableChecks = 0;
    }

    ~KeyringProgramTest() override {
        server.reset();
        secrets.reset();
        std::error_code ignored;
        fs::remove_all(dir, ignored);
    }

    // The program started from here finds the keyring's bus, or no bus at all.
    void withKeyring() { tarnel.useSessionBus(secrets->busAddress()); }
    void withoutKeyring() { tarnel.useSessionBus(std::nullopt); }

    void import() {
        fs::create_directories(dir);
        std::ofstream(dir / "import.json") << encodeConnectionList({connection});
        auto result = tarnel.run({"--import", (dir / "import.json").string()});
        ASSERT_EQ(result.exitCode, 0) << result.err;
    }

    std::string settingsText() const {
        std::ifstream in(tarnel.settingsFile(), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    // The settings file's word on the connection's password: where it is.
    bool passwordInFile() const { return settingsText().find(password) != std::string::npos; }
    bool markedInKeyring() const {
        const QtSettingsStore store(tarnel.settingsFile());
        const auto list = json::parse(store.stringValue("tarnel_connections_v2").value_or("[]"));
        return list.size() == 1 && list[0].value(passwordInKeyringKey, false);
    }

    // Serves `name`, runs the fleet until it has arrived, and stops it.
    void fetches(const std::string& name) {
        std::ofstream(server->root() / name) << "contents of " << name;
        tarnel.start({"--headless"});
        EXPECT_TRUE(TarnelProcess::waitFor([&] { return fs::exists(dir / "downloads" / name); }))
            << tarnel.logText();
        tarnel.signal(SIGTERM);
        EXPECT_EQ(tarnel.wait(), 0);
    }
};

TEST_F(KeyringProgramTest, AnImportedPasswordIsInTheKeyringNotInTheFileAndStillLogsIn) {
    withKeyring();
    import();
    EXPECT_FALSE(passwordInFile());
    EXPECT_TRUE(markedInKeyring());
    EXPECT_EQ(secrets->lookup(connection.id.toString()), password);
    fetches("invoice.pdf");
    EXPECT_FALSE(passwordInFile());
    EXPECT_EQ(tarnel.logText().find("No enabled connection"), std::string::npos);
}

TEST_F(KeyringProgramTest, MovedToAndFromAMachineWithoutAKeyringNothingIsLost) {
    withoutKeyring();
    import();
    EXPECT_TRUE(passwordInFile());
    fetches("one.pdf");

    // On the desktop the password moves into the keyring at start.
    withKeyring();
    fetches("two.pdf");
    EXPECT_FALSE(passwordInFile());
    EXPECT_TRUE(markedInKeyring());
    EXPECT_EQ(secrets->lookup(connection.id.toString()), password);

    // Back without a keyring: the connection says what to do instead of logging in with an
    // empty password, and the mark survives.
    withoutKeyring();
    std::ofstream(server->root() / "three.pdf") << "three";
    tarnel.start({"--headless"});
    EXPECT_TRUE(TarnelProcess::waitFor([&] {
        return tarnel.logText().find("[Vault] Could not read the password from the desktop's "
                                     "keyring") != std::string::npos;
    })) << tarnel.logText();
    tarnel.signal(SIGTERM);
    EXPECT_EQ(tarnel.wait(), 0);
    EXPECT_FALSE(fs::exists(dir / "downloads" / "three.pdf"));
    EXPECT_TRUE(markedInKeyring());

    withKeyring();
    fetches("three.pdf");
    EXPECT_EQ(secrets->lookup(connection.id.toString()), password);
}

TEST_F(KeyringProgramTest, TheStoredFormImportedIntoARunningFleetKeepsThePasswordInTheKeyring) {
    withKeyring();
    import();
    std::ofstream(server->root() / "one.pdf") << "one";
    tarnel.start({"--headless"});
    ASSERT_TRUE(TarnelProcess::waitFor([&] { return fs::exists(dir / "downloads" / "one.pdf"); }))
        << tarnel.logText();

    // The stored form, its password blank and marked, edited and handed to the running fleet.
    auto stored = json::parse(
        QtSettingsStore(tarnel.settingsFile()).stringValue("tarnel_connections_v2").value_or("[]"));
    ASSERT_EQ(stored.size(), 1u);
    stored[0]["pollInterval"] = 5;
    std::ofstream(dir / "stored.json") << stored.dump();
    TarnelProcess later{tarnel.home()};
    later.useSessionBus(secrets->busAddress());
    const auto result = later.run({"--import", (dir / "stored.json").string()});
    EXPECT_EQ(result.exitCode, 0) << result.err;

    std::ofstream(server->root() / "two.pdf") << "two";
    EXPECT_TRUE(TarnelProcess::waitFor([&] { return fs::exists(dir / "downloads" / "two.pdf"); }))
        << tarnel.logText();
    tarnel.signal(SIGTERM);
    EXPECT_EQ(tarnel.wait(), 0);
    EXPECT_EQ(secrets->lookup(connection.id.toString()), password);
    EXPECT_TRUE(markedInKeyring());
    const QtSettingsStore after(tarnel.settingsFile());
    EXPECT_EQ(json::parse(after.stringValue("tarnel_connections_v2").value_or("[]"))[0]["pollInterval"], 5);
}

}  // namespace
}  // namespace tarnel::testing
