#include "connections/filter_preset.h"

#include <gtest/gtest.h>

#include "connections/connection_config.h"
#include "connections/extension_list.h"
#include "connections/filter_checkboxes.h"

namespace tarnel {
namespace {

const ExtensionCategory& category(std::string_view id) {
    for (const ExtensionCategory& c : extensionCategories())
        if (c.id == id)
            return c;
    throw std::out_of_range(std::string(id));
}

TEST(FilterLists, DecisionAndDetectionDifferOnlyInTheLeadingDot) {
    EXPECT_EQ(parseExtensionList(" .JPG,\tpng ,,..gz, "),
              (std::set<std::string>{"jpg", "png", ".gz"}));
    EXPECT_EQ(parseFilterTokens(" .JPG,\tpng ,,..gz, "),
              (std::set<std::string>{".jpg", "png", "..gz"}));
    EXPECT_TRUE(parseExtensionList(", ,").empty());
}

TEST(FilterPresets, DetectionComparesEntrySetsInArrayOrder) {
    ASSERT_EQ(filterPresets().size(), 15u);
    EXPECT_EQ(matchingPreset("", "").id, "all_files");
    EXPECT_EQ(
        matchingPreset("", "DS_Store, thumbs.db, filepart, partial, download, crdownload, part, "
                           "temp, tmp")
            .id,
        "all_except_temp");
    const std::string photos = filterPreset("photos").extensions;
    EXPECT_EQ(matchingPreset(photos, defaultExcludedExtensions).id, "photography");
    EXPECT_EQ(matchingPreset("jpg", "").id, "custom");
    EXPECT_EQ(
        matchingPreset(".csv, xlsx, xls, xml, json, edi, txt, pdf, zip", defaultExcludedExtensions)
            .id,
        "custom");
    EXPECT_EQ(
        matchingPreset("CSV, xlsx, xls, xml, json, edi, txt, pdf, zip", defaultExcludedExtensions)
            .id,
        "ecommerce");
    // Every preset but "custom" is found again from what it writes.
    for (const FilterPreset& p : filterPresets()) {
        if (p.id == "custom" || p.id == "photos")
            continue;
        const FilterStrings written = presetStrings(p);
        EXPECT_EQ(matchingPreset(written.included, written.excluded).id, p.id);
    }
}

TEST(FilterPresets, ApplyingWritesBothStringsAndDriftIsOnTokens) {
    FilterStrings s{"jpg", ""};
    EXPECT_TRUE(applyFilterPreset(s, filterPreset("all_except_temp")));
    EXPECT_EQ(s, (FilterStrings{"", defaultExcludedExtensions}));
    EXPECT_FALSE(applyFilterPreset(s, filterPreset("all_except_temp")));
    EXPECT_TRUE(applyFilterPreset(s, filterPreset("all_files")));
    EXPECT_EQ(s, (FilterStrings{"", ""}));
    EXPECT_TRUE(applyFilterPreset(s, filterPreset("video")));
    EXPECT_EQ(s.excluded, defaultExcludedExtensions);
    EXPECT_FALSE(applyFilterPreset(s, filterPreset("custom")));
    EXPECT_EQ(s.included, filterPreset("video").extensions);

    const FilterPreset& video = filterPreset("video");
    s.included = "PRORES, braw, r3d, mxf, m2ts, mts, mkv, avi, mov, mp4";
    EXPECT_FALSE(isPresetModified(s, video));
    s.included += ", gif";
    EXPECT_TRUE(isPresetModified(s, video));
    EXPECT_FALSE(isPresetModified(s, filterPreset("custom")));
    applyFilterPreset(s, video);
    EXPECT_FALSE(isPresetModified(s, video));
}

TEST(FilterCheckboxes, PresetsImplyTheirBoxesUntilOneIsToggled) {
    const ExtensionCategory& images = category("images");
    const ExtensionCategory& temp = category("temp");
    FilterStrings s{"", defaultExcludedExtensions};
    EXPECT_EQ(categoryState(s, "all_except_temp", images), CheckboxState::checked);
    EXPECT_EQ(categoryState(s, "all_except_temp", temp), CheckboxState::unchecked);

    // Unticking one image entry writes out every non-temporary entry, minus that one.
    toggleEntry(s, "all_except_temp", images, "png");
    const auto included = parseFilterTokens(s.included);
    EXPECT_EQ(included.size(), 57u);
    EXPECT_FALSE(included.contains("png"));
    EXPECT_TRUE(included.contains("flac"));
    EXPECT_EQ(s.excluded, defaultExcludedExtensions);
    EXPECT_TRUE(s.included.starts_with("3fr, aac, aif, aiff, arw, avi, bmp"));
    EXPECT_EQ(categoryState(s, "custom", images), CheckboxState::indeterminate);
    EXPECT_FALSE(isEntryOn(s, "custom", images, "png"));
    toggleCategory(s, "custom", images);
    EXPECT_EQ(categoryState(s, "custom", images), CheckboxState::checked);
    toggleCategory(s, "custom", images);
    EXPECT_EQ(categoryState(s, "custom", images), CheckboxState::unchecked);

    // The temporaries are no part of what "all_except_temp" implies: ticking them takes them
    // off the exclude list and adds nothing else.
    FilterStrings temps{"", defaultExcludedExtensions};
    toggleCategory(temps, "all_except_temp", temp);
    EXPECT_EQ(
        temps,
        (FilterStrings{
            "crdownload, download, ds_store, filepart, part, partial, temp, thumbs.db, tmp", ""}));

    // Under "all_files" everything is written out and the exclude list emptied; turning the
    // temporaries off moves them back to the exclude list.
    FilterStrings all{"", ""};
    toggleCategory(all, "all_files", temp);
    EXPECT_EQ(parseFilterTokens(all.excluded), parseFilterTokens(defaultExcludedExtensions));
    EXPECT_EQ(parseFilterTokens(all.included).size(), 58u);
    toggleEntry(all, "custom", temp, "tmp");
    EXPECT_TRUE(parseFilterTokens(all.included).contains("tmp"));
    EXPECT_FALSE(parseFilterTokens(all.excluded).contains("tmp"));
    EXPECT_EQ(categoryState(all, "custom", temp), CheckboxState::indeterminate);
}

}  // namespace
}  // namespace tarnel
