#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "fleet_fixture.h"
#include "shell/popover/menu_bar_view.h"
#include "shell/settings/general_settings_tab.h"
#include "shell/settings/notifications_settings_tab.h"

namespace tarnel::testing {
namespace {

template <typename T>
T* withText(QWidget& parent, const char* text) {
    for (auto* w : parent.findChildren<T*>())
        if (w->text() == QString::fromUtf8(text) && w->isVisibleTo(&parent)) return w;
    return nullptr;
}

struct PopoverViewTest : FleetFixture {
    std::shared_ptr<ConnectionsManager> manager = makeManager();
};

TEST_F(PopoverViewTest, ShowsTheFleetAndItsButtonsActOnIt) {
    auto on = connection("Studio", "memory");
    auto off = connection("Archive", "memory");
    off.enabled = false;
    manager->addConnection(on);
    manager->addConnection(off);
    MenuBarView view(*manager, settings, stats, history, loop, {});
    view.show();

    EXPECT_TRUE(withText<QLabel>(view, "1 active connection"));
    EXPECT_TRUE(withText<QLabel>(view, "Disabled"));
    EXPECT_TRUE(withText<QLabel>(view, "No recent downloads"));

    auto* mute = withText<QPushButton>(view, "Mute");
    ASSERT_TRUE(mute);
    QTest::mouseClick(mute, Qt::LeftButton);
    EXPECT_FALSE(settings.playSoundOnDownload());
    EXPECT_EQ(settingsStore.boolValue("play_sound"), false);
    view.refresh();
    EXPECT_TRUE(withText<QPushButton>(view, "Unmute"));

    QTest::mouseClick(withText<QPushButton>(view, "Pause"), Qt::LeftButton);
    EXPECT_TRUE(manager->aggregatePaused()());
    view.refresh();
    EXPECT_TRUE(withText<QLabel>(view, "Paused"));
    ASSERT_TRUE(withText<QPushButton>(view, "Resume"));
    QTest::mouseClick(withText<QPushButton>(view, "Resume"), Qt::LeftButton);
    EXPECT_FALSE(manager->aggregatePaused()());
}

TEST_F(PopoverViewTest, SettingsTabsActOnTheirSettingsAndShowTheirNotes) {
    GeneralSettingsTab general(settings);
    general.show();
    const auto autostart = dir / "autostart" / "tarnel.desktop";
    withText<QCheckBox>(general, "Launch Tarnel when you log in")->click();
    EXPECT_TRUE(settings.launchAtLogin());
    EXPECT_TRUE(std::filesystem::exists(autostart));
    withText<QCheckBox>(general, "Launch Tarnel when you log in")->click();
    EXPECT_FALSE(std::filesystem::exists(autostart));

    const char* restart = "Restart Tarnel to apply the language change.";
    EXPECT_FALSE(withText<QLabel>(general, restart));
    settings.setPreferredLanguage("de");
    EXPECT_TRUE(withText<QLabel>(general, restart));

    EXPECT_TRUE(withText<QPushButton>(general, "10 GB"));
    QTest::mouseClick(withText<QPushButton>(general, "10 GB"), Qt::LeftButton);
    EXPECT_EQ(settings.diskSpaceThresholdGB(), 10);
    settings.setDiskSpaceWarningEnabled(false);
    EXPECT_FALSE(withText<QPushButton>(general, "10 GB"));

    NotificationsSettingsTab notifications(settings, soundPlayer);
    notifications.show();
    settings.setSoundName("Purr");
    QTest::mouseClick(withText<QPushButton>(notifications, "Preview"), Qt::LeftButton);
    EXPECT_EQ(soundPlayer.played, std::vector<std::string>{"Purr"});
    settings.setPlaySoundOnDownload(false);
    EXPECT_FALSE(withText<QPushButton>(notifications, "Preview"));
}

}  // namespace
}  // namespace tarnel::testing
