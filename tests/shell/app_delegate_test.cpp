#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include "app/app_delegate.h"
#include "shell/settings/connections_settings_tab.h"
#include "temporary_paths.h"

namespace tarnel {
namespace {

QToolButton* buttonLabelled(QWidget& parent, const QString& text) {
    for (auto* button : parent.findChildren<QToolButton*>())
        if (button->text() == text) return button;
    return nullptr;
}

// Offscreen there is no tray, so the popover opens as a window at once.
TEST(AppDelegate, AddConnectionFromThePopoverOpensItDisabledAndSettingsKeepTheirPlace) {
    QTemporaryDir dir;
    AppDelegate delegate(pathsIn(dir));
    delegate.applicationDidFinishLaunching();
    auto& popover = delegate.popover();
    ASSERT_EQ(popover.kind(), Popover::Kind::window);
    ASSERT_TRUE(popover.isVisible());

    auto* add = buttonLabelled(popover, QStringLiteral("Add Connection"));
    ASSERT_NE(add, nullptr);
    QTest::mouseClick(add, Qt::LeftButton);

    const auto& list = delegate.services().manager().connections()();
    ASSERT_EQ(list.size(), 1u);
    EXPECT_FALSE(list[0].enabled);
    EXPECT_FALSE(popover.isVisible());
    auto* settings = delegate.settingsWindow();
    ASSERT_NE(settings, nullptr);
    EXPECT_EQ(settings->selectedTab(), SettingsTab::connections);
    EXPECT_EQ(settings->connections().selectedConnectionId(), list[0].id);

    settings->move(140, 90);
    delegate.showSettings(SettingsTab::notifications);
    ASSERT_NE(delegate.settingsWindow(), settings);
    EXPECT_EQ(delegate.settingsWindow()->pos(), QPoint(140, 90));
    EXPECT_EQ(delegate.settingsWindow()->selectedTab(), SettingsTab::notifications);
    delegate.applicationWillTerminate();
}

}  // namespace
}  // namespace tarnel
