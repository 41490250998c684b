#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "connections/connection_config_json.h"
#include "fleet_fixture.h"

namespace tarnel::testing {
namespace {

using namespace std::chrono_literals;

struct ManagerTest : FleetFixture {
    void store(const std::vector<ConnectionConfig>& list) {
        settingsStore.setValue(ConnectionsManager::storageKey, encodeConnectionList(list));
    }
};

TEST_F(ManagerTest, OnlyEnabledConnectionsWithAHostGetAnEngine) {
    auto disabled = connection("Off", "off.example");
    disabled.enabled = false;
    auto hostless = connection("NoHost", "");
    store({disabled, hostless});
    auto manager = makeManager();
    ASSERT_EQ(manager->connections()().size(), 2u);
    manager->startAll();
    EXPECT_TRUE(manager->engines().empty());
    EXPECT_FALSE(manager->hasActiveEngines()());
    EXPECT_EQ(manager->aggregateState()(), ConnectionState::idle);
    loop.advance(60s);
    EXPECT_TRUE(servers.empty());  // nobody was ever listed
}

TEST_F(ManagerTest, TheWorstEngineStateIsTheFleetsAndDownloadsDoNotHideIt) {
    auto a = connection("A", "a"), b = connection("B", "b");
    store({a, b});
    auto manager = makeManager();
    manager->startAll();
    EXPECT_TRUE(manager->hasActiveEngines()());
    servers["a"]->failListingWith = FTPError::curlExitCode(7, "");
    servers["b"]->listingDelay = 20s;
    loop.advance(30s);  // A has failed, B is still listing
    EXPECT_EQ(manager->engines().at(b.id)->connectionState()(), ConnectionState::syncing);
    EXPECT_EQ(manager->aggregateState()(), ConnectionState::error);
    servers["a"]->failListingWith.reset();
    loop.advance(30s);  // A connected at 60 s, B still listing until 80 s
    EXPECT_EQ(manager->aggregateState()(), ConnectionState::syncing);
    loop.advance(25s);
    EXPECT_EQ(manager->aggregateState()(), ConnectionState::connected);
}

TEST_F(ManagerTest, PauseAndResumeActOnTheWholeFleet) {
    auto a = connection("A", "a"), b = connection("B", "b");
    b.autoConnectOnLaunch = false;
    store({a, b});
    auto manager = makeManager();
    manager->startAll();
    EXPECT_TRUE(manager->engines().at(b.id)->isPaused()());  // came up paused
    EXPECT_FALSE(manager->aggregatePaused()());

    manager->pauseAll();
    EXPECT_TRUE(manager->aggregatePaused()());
    loop.advance(60s);
    EXPECT_EQ(servers["a"]->listings, 0);

    // syncAllNow does not skip paused engines; their own poll decides.
    manager->syncAllNow();
    loop.runUntilIdle();
    EXPECT_EQ(servers["a"]->listings, 1);
    EXPECT_EQ(servers["b"]->listings, 1);

    manager->resumeAll();  // also wakes the one that came up paused
    EXPECT_FALSE(manager->aggregatePaused()());
    for (auto& [id, engine] : manager->engines()) EXPECT_FALSE(engine->isPaused()());

    manager->stopAll();
    EXPECT_TRUE(manager->engines().empty());
    loop.advance(120s);
    EXPECT_EQ(servers["a"]->listings, 2);  // the resume's own poll, then nothing
}

TEST_F(ManagerTest, PauseAllWithNoEnginesHoldsUntilTheNextRecomputation) {
    auto manager = makeManager();
    manager->pauseAll();
    EXPECT_TRUE(manager->aggregatePaused()());
    EXPECT_FALSE(manager->hasActiveEngines()());
}

TEST_F(ManagerTest, AListThatLacksKeysIsWrittenBackInFullWithItsCountsBounded) {
    // A record from before a key was added, with counts no editor offers.
    auto old = nlohmann::json::parse(encodeConnectionList({connection("Old", "h")}));
    old[0].erase("maxResumeAttempts");
    old[0]["maxRetries"] = 2000000;
    old[0]["maxConcurrentDownloads"] = -3;
    settingsStore.setValue(ConnectionsManager::storageKey, old.dump());
    auto manager = makeManager();
    ASSERT_EQ(manager->connections()().size(), 1u);
    EXPECT_EQ(manager->connections()()[0].maxRetries, 10);
    EXPECT_EQ(manager->connections()()[0].maxConcurrentDownloads, 1);
    auto stored = settingsStore.stringValue(ConnectionsManager::storageKey);
    EXPECT_NE(stored->find("\"maxResumeAttempts\":5"), std::string::npos);
}

TEST_F(ManagerTest, OneBadRecordCostsOnlyItselfAndTheListAsItWasIsKept) {
    auto good = connection("Good", "good");
    auto broken = nlohmann::json::parse(encodeConnectionList({good, connection("Bad", "bad")}));
    broken[1].erase("port");
    settingsStore.setValue(ConnectionsManager::storageKey, broken.dump());
    settingsStore.setValue("tarnel_connections_v2_backup", std::string("an older backup"));
    {
        auto manager = makeManager();
        ASSERT_EQ(manager->connections()().size(), 1u);
        EXPECT_EQ(manager->connections()()[0].name, "Good");
        manager->saveConnections();
    }
    EXPECT_TRUE(hasLogLine("ERR Could not read a stored connection (record 1: key \"port\": "
                           "missing); the list as it was is kept under "
                           "\"tarnel_connections_v2_backup_2\" in the settings file"));
    EXPECT_EQ(settingsStore.stringValue("tarnel_connections_v2_backup_2"), broken.dump());
    EXPECT_EQ(settingsStore.stringValue("tarnel_connections_v2_backup"), "an older backup");

    // Text that is no list at all is kept the same way.
    settingsStore.setValue(ConnectionsManager::storageKey, std::string("[{\"id\":1"));
    auto manager = makeManager();
    EXPECT_TRUE(manager->connections()().empty());
    EXPECT_EQ(settingsStore.stringValue("tarnel_connections_v2_backup_3"), "[{\"id\":1");
}

TEST_F(ManagerTest, DisablingAConnectionByAnEditUpdatesTheFleetsSummary) {
    auto a = connection("A", "a");
    store({a});
    auto manager = makeManager();
    manager->startAll();
    manager->pauseAll();
    EXPECT_TRUE(manager->hasActiveEngines()());
    a.enabled = false;
    manager->updateConnection(a);
    EXPECT_TRUE(manager->engines().empty());
    EXPECT_FALSE(manager->hasActiveEngines()());
    EXPECT_FALSE(manager->aggregatePaused()());
}

// An engine replaced by an edit, or removed, starts nothing of its batch that it had not begun:
// with files left on the server, every file arrives once.
TEST_F(ManagerTest, AnEditOrARemovalDuringACopyBatchFetchesEachFileOnce) {
    auto manager = makeManager();
    auto shop = connection("Shop", "shop"), lab = connection("Lab", "lab");
    for (auto* c : {&shop, &lab}) {
        c->requiredStableChecks = 0;
        c->deleteAfterDownload = false;
        c->maxConcurrentDownloads = 1;
        c->pollInterval = 10;
        c->localPath = (dir / c->name).string();
        manager->addConnection(*c);
        auto& server = *servers[c->host];
        server.bytesPerSecond = 10;
        for (const char* name : {"a", "b", "c", "d", "e", "f"})
            server.files[std::string(name) + ".txt"] = std::string(10, *name);
        server.files["c.txt"] = std::string(100, 'c');  // under way for 10 s
    }
    loop.advance(12500ms);  // two files in, the third under way
    shop.name = "Shop edited";
    manager->updateConnection(shop);
    manager->removeConnection(lab.id);
    manager->syncAllNow();
    for (int poll = 0; poll < 4; ++poll) loop.advance(10s);

    const auto arrived = [&](const std::string& name) {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(dir / name))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    };
    EXPECT_EQ(arrived("Shop"),
              (std::vector<std::string>{"a.txt", "b.txt", "c.txt", "d.txt", "e.txt", "f.txt"}));
    EXPECT_EQ(arrived("Lab").size(), 3u);
    EXPECT_EQ(history.entries()().size(), 9u);
    manager->stopAll();
}

}  // namespace
}  // namespace tarnel::testing
