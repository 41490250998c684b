#include <gtest/gtest.h>

#include "shell/tray/popup_placement.h"
#include "shell/tray/status_icon.h"

namespace tarnel {
namespace {

TEST(StatusIconRules, FirstRuleThatHoldsPicksTheFace) {
    using S = ConnectionState;
    EXPECT_EQ(statusIconImage(S::error, true, true), StatusIconImage::pause);
    EXPECT_EQ(statusIconImage(S::syncing, false, true), StatusIconImage::download);
    EXPECT_EQ(statusIconImage(S::error, false, true), StatusIconImage::download);
    EXPECT_EQ(statusIconImage(S::error, false, false), StatusIconImage::error);
    EXPECT_EQ(statusIconImage(S::syncing, false, false), StatusIconImage::syncing);
    EXPECT_EQ(statusIconImage(S::connected, false, false), StatusIconImage::basic);
    EXPECT_EQ(statusIconImage(S::idle, false, false), StatusIconImage::basic);
}

TEST(StatusIcon, SyncingTurnsTheArrowsAndASecondSyncingDoesNotRestartThem) {
    StatusIcon icon(TrayActions{[] {}, [] {}, [] {}, [] {}, [] {}}, [] {});
    icon.updateStatusIcon(ConnectionState::syncing, false, false);
    ASSERT_TRUE(icon.isAnimating());
    icon.renderSyncFrame();
    icon.renderSyncFrame();
    const double angle = icon.syncAnimationAngle();
    EXPECT_GT(angle, 0.0);

    icon.updateStatusIcon(ConnectionState::syncing, false, false);
    EXPECT_EQ(icon.syncAnimationAngle(), angle);
    EXPECT_FALSE(icon.currentIcon().isNull());

    // A full turn wraps to the start, never reaching 360.
    for (int i = 0; i < 30; ++i) icon.renderSyncFrame();
    EXPECT_LT(icon.syncAnimationAngle(), 360.0);
    EXPECT_DOUBLE_EQ(icon.syncAnimationAngle(), std::fmod(angle + 30 * StatusIcon::degreesPerFrame, 360.0));

    icon.updateStatusIcon(ConnectionState::syncing, false, true);
    EXPECT_FALSE(icon.isAnimating());
    EXPECT_EQ(icon.image(), StatusIconImage::download);
    EXPECT_EQ(icon.syncAnimationAngle(), 0.0);
}

TEST(PopupPlacement, OpensBesideTheIconOnTheScreensSideAndStaysInTheFreeArea) {
    const QRect screen(0, 0, 1280, 772);  // a 28-pixel panel at the bottom
    const QSize popup(360, 500);
    // An icon at the bottom right: above it, pushed left and clear of the panel.
    EXPECT_EQ(popupPosition(QRect(1214, 774, 26, 26), popup, screen), QPoint(920, 272));
    // An icon in a top panel, in the middle: below it, centred on it.
    const QRect topScreen(0, 28, 1280, 772);
    EXPECT_EQ(popupPosition(QRect(627, 1, 26, 26), popup, topScreen), QPoint(459, 28));
    // Near the left edge: kept inside.
    EXPECT_EQ(popupPosition(QRect(2, 774, 26, 26), popup, screen), QPoint(0, 272));
    // Larger than the area: its top-left corner stays on screen.
    EXPECT_EQ(popupPosition(QRect(50, 50, 26, 26), QSize(2000, 900), screen), QPoint(0, 0));
}

}  // namespace
}  // namespace tarnel
