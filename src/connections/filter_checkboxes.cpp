#include "connections/filter_checkboxes.h"

#include <set>
#include <vector>

#include "connections/extension_list.h"

namespace tarnel {

namespace {

bool onAsAWhole(std::string_view presetId, const ExtensionCategory& category) {
    return presetId == "all_files" || (presetId == "all_except_temp" && !category.isExclude);
}

std::string joined(const std::set<std::string>& tokens) {
    std::string out;
    for (const std::string& token : tokens) {
        if (!out.empty())
            out += ", ";
        out += token;
    }
    return out;
}

std::string allEntries(bool withExcludeGroup) {
    std::set<std::string> entries;
    for (const ExtensionCategory& category : extensionCategories())
        if (withExcludeGroup || !category.isExclude)
            entries.insert(category.extensions.begin(), category.extensions.end());
    return joined(entries);
}

void writeImpliedSelection(FilterStrings& strings, std::string_view presetId,
                           const ExtensionCategory& category) {
    if (!parseFilterTokens(strings.included).empty())
        return;
    if (presetId == "all_files") {
        strings = {allEntries(true), ""};
    } else if (presetId == "all_except_temp" && !category.isExclude) {
        strings.included = allEntries(false);
    }
}

// Switches `entries` on (into the include list) or off; for the temporary group the exclude
// list takes the opposite step.
void setEntries(FilterStrings& strings, const ExtensionCategory& category,
                const std::vector<std::string>& entries, bool on) {
    std::set<std::string> included = parseFilterTokens(strings.included);
    std::set<std::string> excluded = parseFilterTokens(strings.excluded);
    for (const std::string& entry : entries) {
        if (on) {
            included.insert(entry);
            if (category.isExclude)
                excluded.erase(entry);
        } else {
            included.erase(entry);
            if (category.isExclude)
                excluded.insert(entry);
        }
    }
    strings.included = joined(included);
    if (category.isExclude)
        strings.excluded = joined(excluded);
}

}  // namespace

bool isEntryOn(const FilterStrings& strings, std::string_view presetId,
               const ExtensionCategory& category, const std::string& entry) {
    return onAsAWhole(presetId, category) || parseFilterTokens(strings.included).contains(entry);
}

CheckboxState categoryState(const FilterStrings& strings, std::string_view presetId,
                            const ExtensionCategory& category) {
    if (onAsAWhole(presetId, category))
        return CheckboxState::checked;
    const std::set<std::string> included = parseFilterTokens(strings.included);
    std::size_t on = 0;
    for (const std::string& entry : category.extensions)
        on += included.contains(entry);
    if (on == 0)
        return CheckboxState::unchecked;
    return on == category.extensions.size() ? CheckboxState::checked : CheckboxState::indeterminate;
}

void toggleEntry(FilterStrings& strings, std::string_view presetId,
                 const ExtensionCategory& category, const std::string& entry) {
    const bool wasOn = isEntryOn(strings, presetId, category, entry);
    writeImpliedSelection(strings, presetId, category);
    setEntries(strings, category, {entry}, !wasOn);
}

void toggleCategory(FilterStrings& strings, std::string_view presetId,
                    const ExtensionCategory& category) {
    const bool wasChecked = categoryState(strings, presetId, category) == CheckboxState::checked;
    writeImpliedSelection(strings, presetId, category);
    setEntries(strings, category, category.extensions, !wasChecked);
}

}  // namespace tarnel
