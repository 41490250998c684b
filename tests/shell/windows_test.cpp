#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <fstream>

#include "app/app_delegate.h"
#include "platform/testing/virtual_loop.h"
#include "shell/windows/about_view.h"
#include "shell/windows/history_view.h"
#include "shell/windows/log_view.h"
#include "temporary_paths.h"

namespace tarnel {
namespace {

using namespace std::chrono_literals;

QPushButton* button(QWidget& window, const char* text) {
    for (auto* b : window.findChildren<QPushButton*>())
        if (b->text() == QLatin1String(text)) return b;
    return nullptr;
}

QString clipboard() {
    return QGuiApplication::clipboard()->text();
}

struct WindowsTest : ::testing::Test {
    QTemporaryDir dir;
    // Local time one hour ahead of UTC: the windows show the clock's time of day.
    VirtualLoop loop{nullptr, VirtualLoop::defaultStart(), 1h};
    std::filesystem::path file(const char* name) const { return dir.path().toStdString() + "/" + name; }
};

TEST_F(WindowsTest, LogCopiesItsLinesOldestFirstAndClears) {
    LogService log(loop, loop, file("Tarnel.log"));
    LogView view(log, loop);
    view.show();

    QGuiApplication::clipboard()->setText(QStringLiteral("left over"));
    QTest::mouseClick(button(view, "Copy All"), Qt::LeftButton);
    EXPECT_EQ(clipboard(), QString());
    EXPECT_TRUE(view.showsEmptyNote());

    log.log("[Shop] New: order-10231.pdf");
    loop.advance(5s);
    log.log("[Shop] Downloaded: order-10231.pdf", LogLevel::success);
    loop.advance(61s);
    log.log("[Shop] Slow server", LogLevel::warning);
    log.log("[Studio] Login denied", LogLevel::error);
    loop.runUntilIdle();
    EXPECT_FALSE(view.showsEmptyNote());
    ASSERT_EQ(view.rows().rowCount(), 4);
    EXPECT_EQ(view.rows().item(3, 0)->text(), QStringLiteral("10:01:06"));

    QTest::mouseClick(button(view, "Copy All"), Qt::LeftButton);
    EXPECT_EQ(clipboard(), QStringLiteral("[10:00:00] INFO [Shop] New: order-10231.pdf\n"
                                          "[10:00:05] OK [Shop] Downloaded: order-10231.pdf\n"
                                          "[10:01:06] WARN [Shop] Slow server\n"
                                          "[10:01:06] ERR [Studio] Login denied"));

    QTest::mouseClick(button(view, "Clear"), Qt::LeftButton);
    loop.runUntilIdle();
    EXPECT_TRUE(view.showsEmptyNote());
    QTest::mouseClick(button(view, "Copy All"), Qt::LeftButton);
    EXPECT_EQ(clipboard(), QString());
    log.flush();
}

bool lastRowInView(const QTableWidget& rows) {
    QCoreApplication::processEvents();
    const QRect last = rows.visualItemRect(rows.item(rows.rowCount() - 1, 2));
    return rows.viewport()->rect().contains(last);
}

// Both when the window opens on a long log and when an entry arrives while it is open.
TEST_F(WindowsTest, LogKeepsTheNewestEntryInView) {
    LogService log(loop, loop, file("Tarnel.log"));
    for (int i = 0; i < 60; ++i) log.log("[Shop] line " + std::to_string(i));
    loop.runUntilIdle();
    LogView view(log, loop);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    EXPECT_TRUE(lastRowInView(view.rows()));

    view.rows().scrollToTop();
    log.log("[Shop] the newest");
    loop.runUntilIdle();
    EXPECT_TRUE(lastRowInView(view.rows()));
    log.flush();
}

HistoryEntry transfer(const char* file, const char* connection, const char* host,
                      TransferStatus status, std::int64_t size) {
    HistoryEntry e;
    e.id = Uuid::random();
    e.timestamp = VirtualLoop::defaultStart();
    e.filename = file;
    e.finalFilename = std::string("2024-03-07_") + file;
    e.sizeBytes = size;
    e.sourceHost = host;
    e.connectionName = connection;
    e.destinationPath = "/srv/in";
    e.status = status;
    if (status != TransferStatus::success) e.errorMessage = "Connection lost";
    return e;
}

std::vector<std::string> shownFiles(const HistoryView& view) {
    std::vector<std::string> files;
    for (int row = 0; row < view.rows().rowCount(); ++row)
        files.push_back(view.rows().item(row, 3)->text().toStdString());
    return files;
}

bool showsSentence(QWidget& window, const char* text) {
    for (auto* label : window.findChildren<QLabel*>())
        if (label->isVisibleTo(&window) && label->text() == QLatin1String(text)) return true;
    return false;
}

TEST_F(WindowsTest, HistoryFiltersByStatusAndSearchAndSaysWhenNothingMatches) {
    HistoryService history(loop, file("history.json"));
    HistoryView view(history, loop);
    view.show();
    EXPECT_TRUE(view.showsEmptyNote());

    // Transfers that come while the window is closed are there when it opens again.
    view.hide();
    history.add(transfer("invoice-7781.pdf", "Shop orders", "ftp.shop.test", TransferStatus::success, 1023));
    history.add(transfer("IMG_0412.raw", "Studio uploads", "sftp.studio.test", TransferStatus::error, 1024));
    history.add(transfer("results.csv", "Lab", "lab.test", TransferStatus::retryExhausted, 5'767'168));
    loop.runUntilIdle();
    view.show();
    using Files = std::vector<std::string>;
    EXPECT_EQ(shownFiles(view), (Files{"2024-03-07_results.csv", "2024-03-07_IMG_0412.raw",
                                        "2024-03-07_invoice-7781.pdf"}));
    const auto& rows = view.rows();
    EXPECT_EQ(rows.item(0, 0)->text(), QStringLiteral("10:00:00"));
    EXPECT_EQ(rows.item(2, 1)->text(), QStringLiteral("Success"));
    EXPECT_EQ(rows.item(0, 4)->text(), QStringLiteral("5.5 MB"));
    EXPECT_EQ(rows.item(0, 6)->text(), QStringLiteral("Connection lost"));
    EXPECT_EQ(rows.item(2, 6)->text(), QString());

    view.statusPicker().setCurrentText(QStringLiteral("Error"));
    EXPECT_EQ(shownFiles(view), (Files{"2024-03-07_IMG_0412.raw"}));
    view.statusPicker().setCurrentText(QStringLiteral("Retry Failed"));
    EXPECT_EQ(shownFiles(view), (Files{"2024-03-07_results.csv"}));
    view.statusPicker().setCurrentText(QStringLiteral("All"));

    // The search looks at the file, the connection and the host, in any case.
    for (const char* text : {"INVOICE", "shop ord", "SHOP.test"}) {
        view.searchField().clear();
        QTest::keyClicks(&view.searchField(), QString::fromUtf8(text));
        EXPECT_EQ(shownFiles(view), (Files{"2024-03-07_invoice-7781.pdf"})) << text;
    }
    view.searchField().setText(QStringLiteral("test"));
    EXPECT_EQ(shownFiles(view).size(), 3u);
    view.statusPicker().setCurrentText(QStringLiteral("Success"));
    EXPECT_EQ(shownFiles(view), (Files{"2024-03-07_invoice-7781.pdf"}));

    // No match reads like no history at all.
    view.searchField().setText(QStringLiteral("nowhere"));
    EXPECT_TRUE(view.showsEmptyNote());
    EXPECT_TRUE(showsSentence(view, "No transfer history."));
    view.searchField().clear();
    view.statusPicker().setCurrentText(QStringLiteral("All"));
    QTest::mouseClick(button(view, "Clear All"), Qt::LeftButton);
    loop.runUntilIdle();
    EXPECT_TRUE(view.showsEmptyNote());
    EXPECT_TRUE(showsSentence(view, "No transfer history."));
    history.flush();
}

TEST(AboutWindow, ShowsTheVersionAndBuildAndLinksOnlyToWhatIsThere) {
    QTemporaryDir dir;
    const auto folder = std::filesystem::path(dir.path().toStdString());
    ProductInfo info{"2.3.1", "417", folder / "README.md"};
    AboutView about(folder / "logs", info);
    const auto* version = about.findChild<QLabel*>(QStringLiteral("version"));
    ASSERT_TRUE(version);
    EXPECT_EQ(version->text(), QStringLiteral("Tarnel 2.3.1 (build 417)"));
    EXPECT_EQ(versionLine({"", "417", {}}), QStringLiteral("Tarnel 1.0.0 (build 417)"));

    const auto targets = [&] {
        QStringList out;
        for (const auto& link : aboutLinks(info, folder / "logs")) out << link.target.toLocalFile();
        return out;
    };
    EXPECT_EQ(targets(), QStringList{dir.filePath(QStringLiteral("logs"))});  // not installed
    std::ofstream((folder / "README.md").string()) << "# Tarnel";
    EXPECT_EQ(targets(), (QStringList{dir.filePath(QStringLiteral("README.md")),
                                      dir.filePath(QStringLiteral("logs"))}));
}

// Offscreen there is no tray, so the popover opens as a window at once.
TEST(AppDelegateWindows, OpenFromThePopoverOnceAndComeBackWhereTheyWere) {
    QTemporaryDir dir;
    AppDelegate delegate(pathsIn(dir));
    delegate.applicationDidFinishLaunching();
    const std::pair<const char*, std::function<QWidget*()>> windows[] = {
        {"Log...", [&] { return delegate.logWindow(); }},
        {"History...", [&] { return delegate.historyWindow(); }},
        {"About Tarnel", [&] { return delegate.aboutWindow(); }},
    };
    for (const auto& [label, window] : windows) {
        delegate.showPopover();
        QToolButton* open = nullptr;
        for (auto* b : delegate.popover().findChildren<QToolButton*>())
            if (b->text() == QLatin1String(label)) open = b;
        ASSERT_TRUE(open && open->isEnabled()) << label;
        QTest::mouseClick(open, Qt::LeftButton);
        QWidget* first = window();
        ASSERT_TRUE(first && first->isVisible()) << label;
        EXPECT_FALSE(delegate.popover().isVisible());

        first->move(150, 70);
        first->close();
        delegate.showPopover();
        QTest::mouseClick(open, Qt::LeftButton);
        EXPECT_EQ(window(), first) << label;
        EXPECT_TRUE(first->isVisible());
        EXPECT_EQ(first->pos(), QPoint(150, 70)) << label;
    }
    delegate.applicationWillTerminate();
}

}  // namespace
}  // namespace tarnel
