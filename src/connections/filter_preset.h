#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnel {

// A named pair of filter lists that the editor offers. `extensions` is an exclude list when
// `exclude` is set, otherwise an include list that goes with the default temporary list.
struct FilterPreset {
    std::string id;
    std::string name;
    std::string description;
    std::string extensions;
    bool exclude = false;
};

// A group of check boxes in the filter view.
struct ExtensionCategory {
    std::string id;
    std::string name;
    std::vector<std::string> extensions;
    bool isExclude = false;
};

// A connection's two filter strings, `extensionFilter` and `excludedExtensions`, as edited.
struct FilterStrings {
    std::string included;
    std::string excluded;

    bool operator==(const FilterStrings&) const = default;
};

// The fifteen presets, "all_files" first and "custom" last.
const std::vector<FilterPreset>& filterPresets();
// The preset with this id; "custom" for an unknown one.
const FilterPreset& filterPreset(std::string_view id);
// The six check-box groups: images, RAW, video, audio, documents, and the temporaries.
const std::vector<ExtensionCategory>& extensionCategories();

// The first preset whose lists hold the same entries as the two strings (order, blanks and
// case aside; ".jpg" and "jpg" differ), otherwise "custom".
const FilterPreset& matchingPreset(std::string_view included, std::string_view excluded);

// What choosing `preset` writes. Not meaningful for "custom", which writes nothing.
FilterStrings presetStrings(const FilterPreset& preset);
// Writes the preset's strings unless it is "custom" or they are already there; true if written.
// Resetting a drifted preset is the same call.
bool applyFilterPreset(FilterStrings& strings, const FilterPreset& preset);
// Whether the strings have drifted from what `preset` writes, so the view offers a reset.
bool isPresetModified(const FilterStrings& strings, const FilterPreset& preset);

}  // namespace tarnel
