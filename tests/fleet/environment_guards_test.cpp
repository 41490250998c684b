#include <gtest/gtest.h>

#include "connections/connection_config_json.h"
#include "fleet_fixture.h"

namespace tarnel::testing {
namespace {

using namespace std::chrono_literals;

const NetworkPath offline{.isSatisfied = false};
const NetworkPath wifi{.usesWifi = true};
const NetworkPath cellular{.usesCellular = true};

struct GuardsTest : FleetFixture {
    std::shared_ptr<ConnectionsManager> manager;

    void launch(const std::vector<ConnectionConfig>& list) {
        settingsStore.setValue(ConnectionsManager::storageKey, encodeConnectionList(list));
        manager = makeManager();
        manager->startAll();
    }
    // Reports a path and lets its quiet second pass.
    void report(const NetworkPath& path) {
        monitor.deliver(path);
        loop.advance(1s);
    }
    // How many engines are paused, and the one flag for both network causes.
    void expectFleet(int paused, bool pausedForNetwork) {
        int n = 0;
        for (const auto& [id, engine] : manager->engines())
            n += engine->isPaused()() ? 1 : 0;
        EXPECT_EQ(n, paused);
        EXPECT_EQ(manager->isPausedForNetwork()(), pausedForNetwork);
    }
};

TEST_F(GuardsTest, ABurstAppliesOnlyItsLastUpdateAndQuietChangesLogNothing) {
    settings.setPauseOnHotspot(true);
    launch({connection("A", "a")});
    monitor.deliver(offline);
    loop.advance(450ms);
    monitor.deliver(cellular);
    loop.advance(450ms);
    monitor.deliver(wifi);
    loop.advance(999ms);
    EXPECT_EQ(manager->networkType()(), "Unknown");
    loop.advance(1ms);
    EXPECT_EQ(manager->networkType()(), "Wi-Fi");

    report({.usesWiredEthernet = true});
    EXPECT_EQ(manager->networkType()(), "Ethernet");
    report({});
    EXPECT_EQ(manager->networkType()(), "Connected");
    EXPECT_EQ(countLogLines("Network "), 0);
    EXPECT_EQ(countLogLines("Hotspot"), 0);
    expectFleet(0, false);
}

TEST_F(GuardsTest, RestorationResumesTheWholeFleetAndAResumeByHandKeepsTheCause) {
    auto a = connection("A", "a"), b = connection("B", "b");
    launch({a, b});
    report(wifi);
    manager->engines().at(b.id)->togglePause();  // paused by hand
    report(offline);
    EXPECT_TRUE(hasLogLine("INFO Network lost \u2014 pausing all connections"));
    EXPECT_EQ(manager->networkType()(), "Offline");
    expectFleet(2, true);
    report(wifi);
    EXPECT_TRUE(hasLogLine("INFO Network restored \u2014 resuming connections"));
    expectFleet(0, false);  // B too

    // Resume pressed while the network is away: the engines run, the cause waits for an edge.
    report(offline);
    manager->resumeAll();
    report(offline);
    expectFleet(0, true);
    report(wifi);
    EXPECT_EQ(countLogLines("Network restored"), 2);
    expectFleet(0, false);
}

TEST_F(GuardsTest, ThePauseOfASettingTurnedOffIsLeftForTheHotspotRuleToClear) {
    settings.setPauseOnHotspot(true);
    launch({connection("A", "a")});
    report(wifi);
    report(offline);
    settings.setPauseOnNoInternet(false);
    report(wifi);
    EXPECT_FALSE(hasLogLine("Network restored"));
    expectFleet(1, true);

    report(cellular);
    EXPECT_TRUE(hasLogLine("INFO Hotspot detected \u2014 pausing all connections"));
    EXPECT_EQ(manager->networkType()(), "Cellular");
    report(wifi);
    EXPECT_TRUE(hasLogLine("INFO Wi-Fi restored \u2014 resuming connections"));
    expectFleet(0, false);
}

TEST_F(GuardsTest, WithBothRulesACellularPathPausesAgainAndItsLossResumes) {
    settings.setPauseOnHotspot(true);
    launch({connection("A", "a")});
    report(wifi);
    report(offline);
    report(cellular);  // the network rule resumes, the hotspot rule pauses again
    EXPECT_EQ(countLogLines("Network restored"), 1);
    EXPECT_EQ(countLogLines("Hotspot detected"), 1);
    expectFleet(1, true);
    report(offline);  // the hotspot rule sees its edge and resumes, with no network
    EXPECT_EQ(countLogLines("Network lost"), 2);
    EXPECT_EQ(countLogLines("Wi-Fi restored"), 1);
    expectFleet(0, false);
}

TEST_F(GuardsTest, LaunchOnWifiWithCellularIsAHotspotUnlessThatRuleIsOff) {
    settings.setPauseOnHotspot(true);
    launch({connection("A", "a")});
    report({.usesWifi = true, .usesCellular = true});
    EXPECT_EQ(manager->networkType()(), "Wi-Fi");
    EXPECT_TRUE(manager->isOnHotspot()());
    expectFleet(1, true);

    settings.setPauseOnHotspot(false);
    report(wifi);
    report(cellular);
    EXPECT_TRUE(manager->isOnHotspot()());
    EXPECT_EQ(countLogLines("Hotspot detected"), 1);
    expectFleet(1, true);  // nothing has cleared it
}

TEST_F(GuardsTest, LaunchWithNoNetworkPausesTheFleetButNotALaterEngineNorAfterStop) {
    launch({connection("A", "a")});
    report(offline);  // the first update: available until now
    manager->addConnection(connection("B", "b"));
    expectFleet(1, true);  // B runs

    monitor.deliver(wifi);
    manager->stopAll();
    EXPECT_FALSE(monitor.isRunning());
    loop.advance(2s);
    EXPECT_FALSE(manager->isNetworkAvailable()());  // the update in flight came to nothing
}

TEST_F(GuardsTest, FreeSpaceIsOfTheFirstConnectionsVolumeInGibibytes) {
    auto first = connection("First", "h"), second = connection("Second", "h");
    first.localPath.clear();
    second.localPath = (dir / "missing").string();
    launch({first, second});
    loop.runUntilIdle();
    EXPECT_GT(manager->freeDiskSpaceGB()(), 0.0);  // the home volume, not the missing folder
    manager->removeConnection(first.id);
    manager->refreshFreeDiskSpace();
    loop.runUntilIdle();
    EXPECT_EQ(manager->freeDiskSpaceGB()(), 0.0);  // unreadable

    second.localPath = dir.string();
    manager->updateConnection(second);
    manager->refreshFreeDiskSpace();
    loop.runUntilIdle();
    const double gib = static_cast<double>(std::filesystem::space(dir).available) / (1 << 30);
    EXPECT_NEAR(manager->freeDiskSpaceGB()(), gib, 0.5);
}

}  // namespace
}  // namespace tarnel::testing
