// Passwords in the desktop's keyring: moved there only once it has them, never replaced by an
// empty one, and a connection whose password cannot be read says so instead of logging in.
// A real keyring, and a start that reads from one, are tested with the program itself.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "connections/connection_config_json.h"
#include "fleet_fixture.h"
#include "platform/testing/memory_keyring.h"

namespace tarnel::testing {
namespace {

using namespace std::chrono_literals;
using nlohmann::json;

struct KeyringPasswordsTest : FleetFixture {
    MemoryKeyring memoryKeyring{loop};
    ConnectionConfig shop = connection("Shop", "shop.example");

    KeyringPasswordsTest() {
        keyring = &memoryKeyring;
        shop.password = "s3cret \"quoted\"";
    }

    void store(const std::vector<ConnectionConfig>& list, const std::set<Uuid>& inKeyring = {}) {
        settingsStore.setValue(ConnectionsManager::storageKey, encodeConnectionList(list, inKeyring));
    }

    // The record as the settings file holds it.
    json stored(const Uuid& id) {
        for (const auto& record : json::parse(*settingsStore.stringValue(ConnectionsManager::storageKey)))
            if (record["id"] == id.toString()) return record;
        return nullptr;
    }
    bool markedInKeyring(const Uuid& id) { return stored(id).value(passwordInKeyringKey, false); }
};

TEST_F(KeyringPasswordsTest, AKeyringThatRefusesLeavesThePasswordInTheFileAndSaysSoOnce) {
    memoryKeyring.refuseWrites = true;
    store({shop});
    auto manager = makeManager();
    loop.runUntilIdle();
    auto edited = manager->connections()().front();
    edited.pollInterval = 60;
    manager->updateConnection(edited);  // the same password is not offered again
    loop.runUntilIdle();
    EXPECT_EQ(stored(shop.id)["password"], shop.password);
    EXPECT_FALSE(markedInKeyring(shop.id));
    EXPECT_EQ(countLogLines("[Shop] The password stays in the settings file: the desktop's "
                            "keyring did not take it (the keyring is locked)"),
              1);
    manager->stopAll();
}

TEST_F(KeyringPasswordsTest, WithoutTheKeyringAKeptPasswordIsNeverOverwrittenAndTheConnectionWaits) {
    memoryKeyring.entries[shop.id.toString()] = shop.password;
    auto blank = shop;
    blank.password = "";
    store({blank}, {shop.id});
    memoryKeyring.available = false;

    auto manager = makeManager();
    manager->startAll();
    loop.advance(60s);
    EXPECT_TRUE(manager->engines().empty());
    EXPECT_TRUE(servers.empty());  // never logged in with an empty password
    EXPECT_TRUE(hasLogLine("ERR [Shop] Could not read the password from the desktop's keyring "
                           "(no Secret Service runs on the session bus here); the connection "
                           "does not start. Unlock the keyring"));

    // An edit that leaves the unread password empty keeps the keyring's.
    auto edited = manager->connections()().front();
    edited.pollInterval = 60;
    manager->updateConnection(edited);
    loop.runUntilIdle();
    EXPECT_TRUE(markedInKeyring(shop.id));
    EXPECT_EQ(stored(shop.id)["pollInterval"], 60);
    EXPECT_TRUE(manager->engines().empty());

    // A password typed where no keyring answers goes to the file, and the keyring's no longer
    // counts.
    edited.password = "typed on the server";
    manager->updateConnection(edited);
    loop.runUntilIdle();
    EXPECT_EQ(stored(shop.id)["password"], "typed on the server");
    EXPECT_FALSE(markedInKeyring(shop.id));
    EXPECT_EQ(loginPasswords["shop.example"], "typed on the server");
    manager->stopAll();
}

TEST_F(KeyringPasswordsTest, PasswordsMoveInOnlyOnceTheKeyringHasThemAndFollowEdits) {
    auto other = connection("Other", "other.example");
    other.password = "other";
    store({shop, other});
    auto manager = makeManager();
    manager->startAll();
    loop.runUntilIdle();
    ASSERT_EQ(memoryKeyring.entries.size(), 2u);
    EXPECT_EQ(stored(shop.id)["password"], "");
    EXPECT_TRUE(markedInKeyring(shop.id));
    EXPECT_EQ(manager->connections()().front().password, shop.password);  // the editor shows it

    auto changed = manager->connections()().front();
    changed.password = "new";
    manager->updateConnection(changed);
    EXPECT_EQ(stored(shop.id)["password"], "new");  // until the keyring has it
    EXPECT_EQ(loginPasswords["shop.example"], "new");
    loop.runUntilIdle();
    EXPECT_EQ(memoryKeyring.entries.at(shop.id.toString()), "new");
    EXPECT_EQ(stored(shop.id)["password"], "");

    auto cleared = manager->connections()()[1];
    cleared.password = "";
    cleared.sshKeyPath = "/keys/id_ed25519";
    manager->updateConnection(cleared);
    loop.runUntilIdle();
    EXPECT_FALSE(memoryKeyring.entries.contains(other.id.toString()));
    EXPECT_FALSE(markedInKeyring(other.id));
    manager->stopAll();
}

}  // namespace
}  // namespace tarnel::testing
