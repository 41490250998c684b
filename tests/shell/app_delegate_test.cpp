#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <QTest>
#include <QToolButton>

#include "app/app_delegate.h"
#include "shell/editor/connection_edit_view.h"
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
    ASSERT_EQ(delegate.settingsWindow(), settings);
    EXPECT_EQ(settings->pos(), QPoint(140, 90));
    EXPECT_EQ(settings->selectedTab(), SettingsTab::notifications);
    delegate.applicationWillTerminate();
}

// The tray's menu is not blocked by a dialog: Settings... may come while the rule sheet runs.
TEST(AppDelegate, SettingsAskedForWhileASheetRunsBringsTheSheetForwardAndKeepsTheWindow) {
    QTemporaryDir dir;
    AppDelegate delegate(pathsIn(dir));
    delegate.applicationDidFinishLaunching();
    const auto id = ConnectionsSettingsTab::addNewConnection(delegate.services().manager());
    delegate.showSettings(SettingsTab::connections, id);
    auto* settings = delegate.settingsWindow();
    auto* editor = settings->connections().editor();
    ASSERT_NE(editor, nullptr);

    QWidget* sheet = nullptr;
    QTimer::singleShot(0, [&] {
        sheet = QApplication::activeModalWidget();
        delegate.showSettings(SettingsTab::general);
        if (sheet) sheet->close();
    });
    EXPECT_FALSE(editor->editRoutingRule(RoutingRule{}));
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(delegate.settingsWindow(), settings);
    EXPECT_EQ(settings->connections().editor(), editor);
    EXPECT_EQ(settings->selectedTab(), SettingsTab::connections);  // the sheet's window stays put
    delegate.applicationWillTerminate();
}

}  // namespace
}  // namespace tarnel
