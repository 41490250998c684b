#include "engine/destination.h"

#include <fstream>

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/foundation_path.h"
#include "platform/testing/virtual_loop.h"

namespace tarnel {
namespace {

using namespace std::chrono_literals;
using Organization = SubdirectoryOrganization;

TEST(FoundationPathTest, FollowsFoundationRules) {
    EXPECT_EQ(pathExtension("a.tar.gz"), "gz");
    EXPECT_EQ(pathExtension("/tmp/scratch..tiff"), "tiff");
    for (const char* none : {".bashrc", "a.", "..", "/tmp/", "/", "a.b/c"}) {
        EXPECT_EQ(pathExtension(none), "") << none;
    }
    EXPECT_EQ(stringByDeletingPathExtension("scratch..tiff"), "scratch.");
    EXPECT_EQ(stringByDeletingPathExtension("a."), "a.");

    EXPECT_EQ(lastPathComponent("scratch///"), "scratch");
    EXPECT_EQ(stringByDeletingLastPathComponent("scratch.tiff"), "");
    EXPECT_EQ(stringByDeletingLastPathComponent("/tmp"), "/");
    EXPECT_EQ(stringByDeletingLastPathComponent("/tmp//lock/"), "/tmp");

    EXPECT_EQ(stringByAppendingPathComponent("/tmp/", "scratch.tiff"), "/tmp/scratch.tiff");
    EXPECT_EQ(stringByAppendingPathComponent("", "x/"), "x");
    EXPECT_EQ(stringByAppendingPathComponent("/a//", "/b//c/"), "/a/b/c");
    EXPECT_EQ(stringByAppendingPathComponent("/d/", ""), "/d/");
}

// Local time runs ten hours ahead of UTC here, so a date taken from UTC lands on the wrong day.
class DestinationTest : public ::testing::Test {
protected:
    VirtualLoop loop{nullptr, VirtualLoop::defaultStart(), 10h};
    ConnectionConfig config = [] {
        ConnectionConfig c;
        c.name = "A/B";
        c.host = "files.example.com";
        c.localPath = "/d";
        c.remotePath = "/in";
        return c;
    }();
};

TEST_F(DestinationTest, BaseFolderTakesConnectionThenLocalDate) {
    config.organizeByConnection = true;
    config.organizeByDate = true;
    loop.setLocalTime(2024, 3, 8, 1, 30);
    EXPECT_EQ(baseLocalDestination(config, std::nullopt, loop), "/d/A_B/2024/03/08");
    loop.setLocalTime(2024, 3, 7, 23, 59);
    auto firstSeen = loop.now();
    loop.advance(2min);
    EXPECT_EQ(baseLocalDestination(config, firstSeen, loop), "/d/A_B/2024/03/07");
}

TEST_F(DestinationTest, SubfolderFollowsOrganization) {
    config.exploreSubdirectories = true;
    auto folderFor = [&](Organization organization, const std::string& relativePath) {
        config.subdirectoryOrganization = organization;
        return destinationDirectory(config, relativePath, std::nullopt, loop);
    };
    EXPECT_EQ(folderFor(Organization::mirrorStructure, "x/y/f.txt"), "/d/x/y");
    EXPECT_EQ(folderFor(Organization::lastLevel, "x/y/f.txt"), "/d/y");
    EXPECT_EQ(folderFor(Organization::flatAll, "x/y/f.txt"), "/d");
    EXPECT_EQ(folderFor(Organization::customPerFolder, "x/y/f.txt"), "/d/x/y");
    config.customFolderMappings["x/y"] = "/short";
    EXPECT_EQ(folderFor(Organization::customPerFolder, "x/y/f.txt"), "/short");
    config.customFolderMappings["/in/x/y"] = "/full";
    config.organizeByDate = true;  // a mapping replaces the dated base as well
    EXPECT_EQ(folderFor(Organization::customPerFolder, "x/y/f.txt"), "/full");

    config.organizeByDate = false;
    for (auto organization :
         {Organization::mirrorStructure, Organization::lastLevel, Organization::customPerFolder}) {
        EXPECT_EQ(folderFor(organization, "f.txt"), "/d");
        EXPECT_EQ(folderFor(organization, "./f.txt"), "/d");
    }
    config.exploreSubdirectories = false;
    EXPECT_EQ(folderFor(Organization::mirrorStructure, "x/y/f.txt"), "/d");
}

TEST_F(DestinationTest, RenamePatternExpandsTokensInOrder) {
    loop.setLocalTime(2024, 3, 7, 14, 5);
    EXPECT_EQ(applyRenamePattern(config, "scan.PDF", 7, loop), "scan.PDF");
    config.renamePattern = "{date}_{time}_{counter}_{original}";
    EXPECT_EQ(applyRenamePattern(config, "scan.PDF", 7, loop), "2024-03-07_140500_007_scan.PDF");
    config.renamePattern = "{host}-{counter}";
    EXPECT_EQ(applyRenamePattern(config, "a", 1000, loop), "files.example.com-1000");
    // A stem holding a later token is expanded; a host holding an earlier one is not.
    config.host = "{original}";
    config.renamePattern = "{original}@{host}{unknown}";
    EXPECT_EQ(applyRenamePattern(config, "{date}.tar.gz", 1, loop),
              "2024-03-07.tar@{original}{unknown}.gz");
}

TEST(UniqueDestinationTest, NumbersAfterTheStem) {
    auto folder = std::filesystem::temp_directory_path() /
                  ("tarnel-destination-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    auto touch = [&](const char* name) { std::ofstream(folder / name) << "x"; };

    EXPECT_EQ(uniqueDestinationURL(folder / "a.txt"), folder / "a.txt");
    touch("a.txt");
    EXPECT_EQ(uniqueDestinationURL(folder / "a.txt"), folder / "a (1).txt");
    touch("a (1).txt");
    EXPECT_EQ(uniqueDestinationURL(folder / "a.txt"), folder / "a (2).txt");
    touch("a");
    EXPECT_EQ(uniqueDestinationURL(folder / "a"), folder / "a (1)");
    touch("a.tar.gz");
    EXPECT_EQ(uniqueDestinationURL(folder / "a.tar.gz"), folder / "a.tar (1).gz");
    std::filesystem::remove_all(folder);
}

TEST(RemotePathProblemTest, RefusesWhatClimbsOut) {
    using namespace std::string_view_literals;
    for (auto bad : {"../x"sv, "a/../../b"sv, ".."sv, "x/.."sv, "/etc/passwd"sv, "a\0b"sv}) {
        EXPECT_TRUE(remotePathProblem(bad).has_value()) << bad;
    }
    for (auto good : {"..hidden"sv, "a..b"sv, "x/y/f.txt"sv, "./f.txt"sv, "sub/x.txt"sv}) {
        EXPECT_EQ(remotePathProblem(good), std::nullopt) << good;
    }
}

}  // namespace
}  // namespace tarnel
