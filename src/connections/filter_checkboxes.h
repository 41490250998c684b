#pragma once

#include <string>
#include <string_view>

#include "connections/filter_preset.h"

namespace tarnel {

// The check boxes of the filter view, over the two filter strings. A box that is on means
// download. `presetId` is the preset the view shows; after a toggle the view shows
// matchingPreset of the new strings.

enum class CheckboxState { unchecked, indeterminate, checked };

// On for every entry under "all_files", for the non-temporary groups under "all_except_temp",
// otherwise when the include list holds the entry.
bool isEntryOn(const FilterStrings& strings, std::string_view presetId,
               const ExtensionCategory& category, const std::string& entry);
// The group's head: on as a whole in the two cases above, otherwise by how many of its entries
// the include list holds.
CheckboxState categoryState(const FilterStrings& strings, std::string_view presetId,
                            const ExtensionCategory& category);

// Flip one entry, or a whole group (on unless it is `checked`). The selection that the preset
// only implied is written out first, so that unticking one entry keeps the rest. Entries of the
// temporary group also leave or join the exclude list. Lists are written back sorted, joined
// with ", ".
void toggleEntry(FilterStrings& strings, std::string_view presetId,
                 const ExtensionCategory& category, const std::string& entry);
void toggleCategory(FilterStrings& strings, std::string_view presetId,
                    const ExtensionCategory& category);

}  // namespace tarnel
