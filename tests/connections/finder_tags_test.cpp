#include "connections/finder_tags.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <memory>

#include <gtest/gtest.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

// A scratch folder on the first file system at hand that keeps user attributes.
std::optional<fs::path> folderWithUserAttributes() {
    const std::array<fs::path, 3> candidates = {fs::current_path(), fs::temp_directory_path(),
                                                "/dev/shm"};
    for (const fs::path& base : candidates) {
        std::error_code error;
        const fs::path dir = base / ("tarnel-tags-" + std::to_string(getpid()));
        fs::create_directories(dir, error);
        std::ofstream(dir / "probe");
        if (!error && setxattr((dir / "probe").c_str(), "user.tarnel.probe", "1", 1, 0) == 0)
            return dir;
        fs::remove_all(dir, error);
    }
    return std::nullopt;
}

// What the attribute reads as from outside the program.
std::string tagsByGetfattr(const fs::path& file) {
    const std::string command =
        "getfattr --only-values --absolute-names -n user.xdg.tags '" + file.string() + "' 2>&1";
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string out;
    std::array<char, 256> buffer;
    while (std::size_t n = fread(buffer.data(), 1, buffer.size(), pipe.get()))
        out.append(buffer.data(), n);
    return out;
}

class FinderTags : public testing::Test {
protected:
    void SetUp() override {
        dir_ = folderWithUserAttributes();
        if (!dir_)
            GTEST_SKIP() << "no file system here keeps user extended attributes";
    }
    void TearDown() override {
        if (dir_)
            fs::remove_all(*dir_);
    }
    fs::path file(const std::string& name) {
        std::ofstream(*dir_ / name) << "x";
        return *dir_ / name;
    }
    std::optional<fs::path> dir_;
};

TEST_F(FinderTags, ColourAndNameJoinTheTagsAlreadyThere) {
    const fs::path placed = file("a b.jpg");
    ASSERT_EQ(setxattr(placed.c_str(), tagsAttribute, "Client,Red", 10, 0), 0);
    applyFinderTags(placed, FinderTagColor::red, std::string("Invoice"));
    applyFinderTags(placed, FinderTagColor::red, std::string("Invoice"));
    EXPECT_EQ(tagsByGetfattr(placed), "Client,Red,Invoice");

    const fs::path colourOnly = file("c.jpg");
    applyFinderTags(colourOnly, FinderTagColor::gray, std::string());
    EXPECT_EQ(tagsByGetfattr(colourOnly), "Gray");
    const fs::path nameOnly = file("d.jpg");
    applyFinderTags(nameOnly, std::nullopt, std::string("Größe"));
    EXPECT_EQ(tagsByGetfattr(nameOnly), "Größe");
    const fs::path untouched = file("e.jpg");
    applyFinderTags(untouched, std::nullopt, std::string());
    EXPECT_NE(tagsByGetfattr(untouched).find("No such attribute"), std::string::npos);
}

TEST_F(FinderTags, ACorruptAttributeIsReplacedByTheNewTag) {
    const fs::path placed = file("f.pdf");
    const char corrupt[] = {'a', ',', '\xff', '\x80'};
    ASSERT_EQ(setxattr(placed.c_str(), tagsAttribute, corrupt, sizeof corrupt, 0), 0);
    addFinderTag("Orange", placed);
    EXPECT_EQ(tagsByGetfattr(placed), "Orange");
    // A file that is gone takes no tag and throws nothing.
    addFinderTag("Orange", *dir_ / "missing");
    EXPECT_FALSE(fs::exists(*dir_ / "missing"));
}

}  // namespace
}  // namespace tarnel
