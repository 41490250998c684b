// The popover's three forms: at the icon of a tray that says where it is, a window the
// compositor places where the tray cannot say, and a window that stays where there is no tray.
#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>

#include "fleet_fixture.h"
#include "shell/popover/popover.h"

namespace tarnel::testing {
namespace {

struct PopoverTest : FleetFixture {
    std::shared_ptr<ConnectionsManager> manager = makeManager();
    Popover popover{Popover::Kind::popup,
                    new MenuBarView(*manager, settings, stats, history, loop, {})};

    bool showsTheWayBack() {
        for (auto* label : popover.findChildren<QLabel*>())
            if (label->isVisibleTo(&popover) && label->text().contains(QStringLiteral("applications menu")))
                return true;
        return false;
    }
    // Another window of the desktop takes the focus.
    void focusElsewhere(QWidget& other) {
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    }
};

TEST_F(PopoverTest, WhatTheTrayReportsChoosesTheForm) {
    using K = Popover::Kind;
    const QRect icon(700, 574, 26, 26);
    EXPECT_EQ(Popover::kindFor(true, icon, false), K::popup);
    // A StatusNotifierItem host gives no rectangle; under Wayland no client places a window.
    EXPECT_EQ(Popover::kindFor(true, {}, false), K::popupWindow);
    EXPECT_EQ(Popover::kindFor(true, icon, true), K::popupWindow);
    EXPECT_EQ(Popover::kindFor(false, icon, false), K::window);

    // Offscreen windows are placed by the program: with a rectangle, at the icon.
    popover.open(true, icon);
    EXPECT_EQ(popover.kind(), K::popup);
    EXPECT_EQ(popover.windowType(), Qt::Popup);
    const QRect screen = popover.screen()->availableGeometry();
    EXPECT_EQ(popover.geometry().bottom() + 1, icon.top());
    EXPECT_EQ(popover.geometry().right(), screen.right());
    popover.hide();

    popover.open(true, {});
    EXPECT_EQ(popover.kind(), K::popupWindow);
    EXPECT_EQ(popover.windowType(), Qt::Window);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&popover));
    EXPECT_FALSE(showsTheWayBack());
    popover.hide();

    // No tray: the window says how to come back, and its size cannot change.
    popover.open(false, {});
    EXPECT_EQ(popover.kind(), K::window);
    EXPECT_TRUE(showsTheWayBack());
    EXPECT_FALSE(popover.windowFlags() & Qt::WindowMaximizeButtonHint);
    EXPECT_EQ(popover.minimumSize(), popover.maximumSize());
    popover.setWindowState(Qt::WindowMaximized);  // a title bar drawn by Qt offers it anyway
    EXPECT_FALSE(popover.isMaximized());
    EXPECT_GT(popover.height(), MenuBarView::height);
}

TEST_F(PopoverTest, ThePopupWindowClosesOnEscapeAndFocusLossTheWindowWithoutTrayStays) {
    QWidget elsewhere;
    popover.open(true, {});
    ASSERT_TRUE(QTest::qWaitForWindowActive(&popover));
    QTest::keyClick(&popover, Qt::Key_Escape);
    EXPECT_FALSE(popover.isVisible());

    popover.open(true, {});
    ASSERT_TRUE(QTest::qWaitForWindowActive(&popover));
    focusElsewhere(elsewhere);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !popover.isVisible(); }));

    popover.open(false, {});
    ASSERT_TRUE(QTest::qWaitForWindowActive(&popover));
    QTest::keyClick(&popover, Qt::Key_Escape);
    focusElsewhere(elsewhere);
    QTest::qWait(50);
    EXPECT_TRUE(popover.isVisible());
}

}  // namespace
}  // namespace tarnel::testing
