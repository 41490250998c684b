#include <gtest/gtest.h>

#include <QTest>

#include "fleet_fixture.h"
#include "shell/settings/connections_settings_tab.h"
#include "shell/settings/notifications_settings_tab.h"
#include "shell/settings/settings_window.h"

namespace tarnel::testing {
namespace {

struct SettingsWindowTest : FleetFixture {
    std::shared_ptr<ConnectionsManager> manager = makeManager();

    ConnectionConfig add(const std::string& name) {
        auto c = connection(name, "memory");
        manager->addConnection(c);
        return c;
    }
};

TEST_F(SettingsWindowTest, OpensAtTheRequestedTabWithTheConnectionSelected) {
    add("Shop");
    const auto studio = add("Studio");
    SettingsWindow window(*manager, settings, soundPlayer, SettingsTab::connections, studio.id);
    EXPECT_EQ(window.selectedTab(), SettingsTab::connections);
    EXPECT_EQ(window.connections().selectedConnectionId(), studio.id);
    EXPECT_EQ(window.connections().list()->currentRow(), 1);

    SettingsWindow general(*manager, settings, soundPlayer, SettingsTab::general, std::nullopt);
    EXPECT_EQ(general.selectedTab(), SettingsTab::general);
    EXPECT_EQ(general.connections().detailText().toStdString(), "Select a connection or add a new one.");
}

TEST_F(SettingsWindowTest, PlusAddsADisabledConnectionAndMinusDeletesOnlyWhenConfirmed) {
    const auto shop = add("Shop");
    ConnectionsSettingsTab tab(*manager, std::nullopt);
    EXPECT_FALSE(tab.minusButton()->isEnabled());

    QTest::mouseClick(tab.plusButton(), Qt::LeftButton);
    ASSERT_EQ(manager->connections()().size(), 2u);
    const auto added = manager->connections()().back();
    EXPECT_FALSE(added.enabled);
    EXPECT_EQ(tab.selectedConnectionId(), added.id);
    EXPECT_EQ(manager->engines().count(added.id), 0u);

    QString asked;
    tab.confirmDelete = [&](const QString& name) {
        asked = name;
        return false;
    };
    QTest::mouseClick(tab.minusButton(), Qt::LeftButton);
    EXPECT_EQ(asked, QString::fromStdString(added.name));
    EXPECT_EQ(manager->connections()().size(), 2u);

    // The selection moves to the first record left, then to none.
    tab.confirmDelete = [](const QString&) { return true; };
    QTest::mouseClick(tab.minusButton(), Qt::LeftButton);
    ASSERT_EQ(manager->connections()().size(), 1u);
    EXPECT_EQ(tab.selectedConnectionId(), shop.id);
    QTest::mouseClick(tab.minusButton(), Qt::LeftButton);
    EXPECT_TRUE(manager->connections()().empty());
    EXPECT_FALSE(tab.selectedConnectionId());
    EXPECT_EQ(tab.detailText().toStdString(), "Select a connection or add a new one.");
}

TEST_F(SettingsWindowTest, SteppersStopAtTheirLimitsAndFollowTheSetting) {
    NotificationsSettingsTab tab(settings, soundPlayer);
    auto* files = tab.minFileCountStepper();
    auto* failures = tab.errorAttemptsStepper();

    files->setValue(51);
    EXPECT_EQ(settings.notifyMinFileCount(), 50);
    failures->setValue(0);
    EXPECT_EQ(settings.notifyErrorsAfterAttempts(), 1);
    EXPECT_EQ(settingsStore.intValue("notify_errors_after"), 1);

    settings.setNotifyMinFileCount(7);
    EXPECT_EQ(files->value(), 7);
    EXPECT_EQ(files->text().toStdString(), "Only if 7 or more files");
}

}  // namespace
}  // namespace tarnel::testing
