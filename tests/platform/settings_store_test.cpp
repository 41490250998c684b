#include <gtest/gtest.h>

#include <QCoreApplication>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "platform/qt/qt_settings_store.h"

namespace tarnel {
namespace {

// The INI file reads every scalar back as text: the typed reads must still give the values and
// types that were written, across a reopen of the file.
TEST(QtSettingsStore, TypedValuesSurviveReopening) {
    auto dir = std::filesystem::temp_directory_path() / ("tarnel-settings-" + std::to_string(::getpid()));
    std::filesystem::remove_all(dir);
    const auto file = dir / "Tarnel.conf";
    {
        QtSettingsStore store(file);
        store.setValue("pause_on_no_internet", false);
        store.setValue("notify_min_file_count", std::int64_t{0});
        store.setValue("stats_last_activity", 1.5e9);
        store.setValue("tarnel_connections_v2", std::string(R"([{"name":"a \"q\" b"}])"));
        store.setValue("AppleLanguages", std::vector<std::string>{"fr"});
        store.setValue("gone", true);
        store.remove("gone");
    }
    QtSettingsStore store(file);
    EXPECT_EQ(store.boolValue("pause_on_no_internet"), false);
    EXPECT_EQ(store.intValue("notify_min_file_count"), 0);
    EXPECT_DOUBLE_EQ(*store.doubleValue("stats_last_activity"), 1.5e9);
    EXPECT_EQ(store.stringValue("tarnel_connections_v2"), R"([{"name":"a \"q\" b"}])");
    EXPECT_EQ(store.stringListValue("AppleLanguages"), std::vector<std::string>{"fr"});
    EXPECT_FALSE(store.contains("gone"));
    EXPECT_FALSE(store.boolValue("never_set").has_value());
    std::filesystem::remove_all(dir);
}

// The file holds passwords: its owner's alone, after every write, also when an older version
// made it readable by all.
TEST(QtSettingsStore, TheFileIsReadableByItsOwnerAlone) {
    namespace fs = std::filesystem;
    auto dir = fs::temp_directory_path() / ("tarnel-settings-mode-" + std::to_string(::getpid()));
    fs::remove_all(dir);
    const auto file = dir / "Tarnel" / "Tarnel.conf";
    fs::create_directories(file.parent_path());
    { std::ofstream(file) << "[General]\nold=1\n"; }
    fs::permissions(file.parent_path(), fs::perms(0755));
    fs::permissions(file, fs::perms(0644));
    {
        QtSettingsStore store(file);
        store.setValue("tarnel_connections_v2", std::string("[]"));
        store.flush();
        EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
        store.setValue("stats_total_files", std::int64_t{2});
    }
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(file.parent_path()).permissions(), fs::perms(0700));
    EXPECT_EQ(QtSettingsStore(file).intValue("old"), 1);

    fs::remove_all(dir);  // a first start: nothing there yet
    QtSettingsStore(file).setValue("stats_total_files", std::int64_t{1});
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
    fs::remove_all(dir);
}

}  // namespace
}  // namespace tarnel
