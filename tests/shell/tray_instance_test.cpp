// The tray application as a person starts it: a second launch shows the running one's popup
// and exits, an import made meanwhile lands in the running fleet, and a stop from the session
// quits it cleanly.
#include <gtest/gtest.h>
#include <signal.h>

#include <cstdlib>
#include <fstream>

#include "connections/connection_config_json.h"
#include "tarnel_process.h"

namespace tarnel::testing {
namespace {

namespace fs = std::filesystem;

TEST(TrayInstance, ALaterLaunchShowsTheRunningOneAndHandsItsImportOver) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const fs::path dir = fs::temp_directory_path() / ("tarnel-tray-" + Uuid::random().toString());
    TarnelProcess first{dir / "home"};
    TarnelProcess later{dir / "home"};
    first.start({});
    // Started at once, the later launch could take the lock first and stay as the instance.
    const auto listening = [&] {
        std::error_code ec;
        for (fs::recursive_directory_iterator it(dir / "home", ec), end; !ec && it != end; it.increment(ec))
            if (it->is_socket()) return true;
        return false;
    };
    ASSERT_TRUE(TarnelProcess::waitFor(listening));

    const auto shown = later.run({});
    EXPECT_EQ(shown.exitCode, 0) << shown.err;
    ASSERT_TRUE(first.running());

    ConnectionConfig shop;
    shop.name = "Shop";
    shop.enabled = false;
    std::ofstream(dir / "shop.json") << encodeConnectionList({shop});
    const auto imported = later.run({"--import", (dir / "shop.json").string()});
    EXPECT_EQ(imported.exitCode, 0) << imported.err;
    EXPECT_NE(imported.out.find("1 added"), std::string::npos) << imported.out;
    // The running tray application did the import, into its own fleet.
    EXPECT_TRUE(TarnelProcess::waitFor([&] {
        return first.logText().find("Imported 1 connection(s): 1 added") != std::string::npos;
    })) << first.logText();

    // Stopped by the session, it quits as its menu's Quit does.
    first.signal(SIGTERM);
    EXPECT_EQ(first.wait(), 0);
    EXPECT_NE(first.logText().find("Terminated, stopping"), std::string::npos) << first.logText();
    std::error_code ignored;
    fs::remove_all(dir, ignored);
}

}  // namespace
}  // namespace tarnel::testing
