#include "records/log_service.h"

#include <gtest/gtest.h>

#include "platform/testing/virtual_loop.h"
#include "records/atomic_file.h"
#include "test_dir.h"

namespace tarnel {
namespace {

TEST(LogService, MemoryKeepsTheLastHundredWhileTheFileKeepsEverything) {
    TestDir dir("log");
    VirtualLoop loop;
    LogService log(loop, loop, dir / "Logs/Tarnel.log");
    for (int i = 1; i <= 101; ++i)
        log.log("[Shop] line " + std::to_string(i));
    log.log("[Shop] two\nlines", LogLevel::warning);
    loop.runUntilIdle();
    log.flush();

    const auto& entries = log.entries().value();
    ASSERT_EQ(entries.size(), 100u);
    EXPECT_EQ(entries.front().message, "[Shop] line 3");
    EXPECT_EQ(entries.back().level, LogLevel::warning);

    auto text = readWholeFile(log.logFileURL()).value_or("");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 103);
    EXPECT_NE(text.find("[2024-03-07 09:00:00] INFO [Shop] line 1\n"), std::string::npos);
    EXPECT_NE(text.find("] WARN [Shop] two\nlines\n"), std::string::npos);
}

TEST(LogService, ADeletedOrRenamedFileIsCreatedAgainByTheNextLineForItsOwnerAlone) {
    namespace fs = std::filesystem;
    TestDir dir("log-deleted");
    fs::create_directories(dir / "state");
    fs::permissions(dir / "state", fs::perms::all);
    VirtualLoop loop;
    LogService log(loop, loop, dir / "state/Tarnel.log");
    log.log("[A] before");
    log.flush();
    EXPECT_EQ(fs::status(dir / "state").permissions(), fs::perms::owner_all);
    fs::remove(log.logFileURL());
    log.clear();
    log.log("[A] after", LogLevel::error);
    loop.runUntilIdle();
    log.flush();

    EXPECT_EQ(readWholeFile(log.logFileURL()), "[2024-03-07 09:00:00] ERR [A] after\n");
    EXPECT_EQ(fs::status(log.logFileURL()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_EQ(log.entries().value().size(), 1u);

    // Renamed away, as logrotate does: the next line starts a new file under the name.
    fs::rename(log.logFileURL(), dir / "state/Tarnel.log.old");
    log.log("[A] later");
    log.flush();
    EXPECT_EQ(readWholeFile(log.logFileURL()), "[2024-03-07 09:00:00] INFO [A] later\n");
    EXPECT_EQ(readWholeFile(dir / "state/Tarnel.log.old"), "[2024-03-07 09:00:00] ERR [A] after\n");
}

TEST(LogService, AFullFileBecomesTheOnePreviousFile) {
    TestDir dir("log-rotated");
    VirtualLoop loop;
    const std::string line = "[2024-03-07 09:00:00] INFO [A] 0123456789\n";  // 40 bytes
    LogService log(loop, loop, dir / "Tarnel.log", 100);
    for (int i = 0; i < 8; ++i) log.log("[A] 0123456789");
    log.flush();

    // Three lines fill the file past 100 bytes; the fourth starts a new one, twice over.
    EXPECT_EQ(readWholeFile(dir / "Tarnel.log.1"), line + line + line);
    EXPECT_EQ(readWholeFile(dir / "Tarnel.log"), line + line);
    EXPECT_FALSE(std::filesystem::exists(dir / "Tarnel.log.2"));
}

}  // namespace
}  // namespace tarnel
