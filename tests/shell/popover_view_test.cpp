#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <QToolButton>

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

QLabel* startingWith(QWidget& parent, const char* text) {
    for (auto* w : parent.findChildren<QLabel*>())
        if (w->text().startsWith(QString::fromUtf8(text)) && w->isVisibleTo(&parent)) return w;
    return nullptr;
}

TEST_F(PopoverViewTest, AnUpdateKeepsRowsAndTheirMenuOpenAndAMinuteRedrawsTimeTexts) {
    auto studio = connection("Studio", "memory");
    for (const char* folder : {"main", "photos"}) std::filesystem::create_directories(dir / folder);
    studio.localPath = (dir / "main").string();
    RoutingRule photos;
    photos.matchType = RuleMatchType::fileType;
    photos.matchValue = "jpg";
    photos.destinationPath = (dir / "photos").string();
    studio.routingRules = {photos};
    manager->addConnection(studio);
    manager->updateBookmark(dir / "main", studio.id);
    manager->updateRuleBookmark(dir / "photos", photos.id);
    stats.recordDownload(1000);
    MenuBarView view(*manager, settings, stats, history, loop, {});
    view.show();

    QPointer<QWidget> row = view.findChild<QFrame*>(QStringLiteral("row"));
    QToolButton* folders = nullptr;
    for (auto* button : view.findChildren<QToolButton*>())
        if (button->toolTip() == QStringLiteral("Open destination folders")) folders = button;
    ASSERT_TRUE(row && folders && folders->menu());
    QPointer<QMenu> menu = folders->menu();
    menu->popup(folders->mapToGlobal(QPoint(0, folders->height())));
    ASSERT_TRUE(menu->isVisible());
    const auto before = view.findChildren<QWidget*>();

    view.refresh();
    QTest::qWait(1);  // what the update deleted is gone, what it added is shown
    // Nothing changed, so nothing is made again: the same widgets, not one more or less.
    const auto after = view.findChildren<QWidget*>();
    EXPECT_EQ(QSet<QWidget*>(after.begin(), after.end()), QSet<QWidget*>(before.begin(), before.end()));
    EXPECT_TRUE(row && row->isVisible());
    EXPECT_TRUE(menu && menu->isVisible());
    if (menu) menu->hide();

    auto* lastActivity = startingWith(view, "Last activity: ");
    ASSERT_TRUE(lastActivity);
    EXPECT_EQ(lastActivity->text(), QStringLiteral("Last activity: just now"));
    loop.advance(std::chrono::minutes(3));
    // Nothing the view watches has changed; only its minute passes, made short here.
    auto* minute = view.findChild<QTimer*>(QStringLiteral("timeTexts"));
    ASSERT_TRUE(minute && minute->isActive());
    minute->setInterval(1);
    QTest::qWait(20);
    lastActivity = startingWith(view, "Last activity: ");
    ASSERT_TRUE(lastActivity);
    EXPECT_EQ(lastActivity->text(), QStringLiteral("Last activity: 3 min ago"));
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
