#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/uuid.h"

namespace tarnel {

enum class RuleMatchType { allFiles, fileType, nameContains, nameStartsWith, customPattern };

// Raw value is the file manager's label number.
enum class FinderTagColor {
    gray = 1,
    green = 2,
    purple = 3,
    blue = 4,
    yellow = 5,
    red = 6,
    orange = 7
};

enum class FallbackBehavior { useLocalFolder, ignore, useSpecificFolder };

struct RoutingRule {
    Uuid id = Uuid::random();
    RuleMatchType matchType = RuleMatchType::allFiles;
    std::string matchValue;
    std::optional<std::string> destinationPath;
    std::optional<FinderTagColor> tagColor;
    std::optional<std::string> tagName;
    bool isEnabled = true;

    bool operator==(const RoutingRule&) const = default;

    // Every kind of rule as globs; none means the rule never matches. A file-type entry "jpg"
    // becomes "*.jpg"; contains and starts-with values keep their glob characters, unescaped.
    std::vector<std::string> globPatterns() const;
    // Whether any of the rule's globs takes this bare file name, case aside.
    bool matches(std::string_view filename) const;
    // The rule's line in the list of rules, e.g. "jpg, pdf" or "…invoice…".
    std::string displaySummary() const;
};

// fnmatch with case folding: `*` also takes dots and a leading dot, `?` one character,
// brackets and backslash escapes as the system has them. A malformed glob matches nothing.
bool globMatches(const std::string& pattern, const std::string& filename);

// "All files", "File type", ... as the editor's type picker shows them.
std::string title(RuleMatchType type);
// The hint under the value field; nothing for `allFiles`, which has no value.
std::optional<std::string> helpText(RuleMatchType type);
// "Save to main folder" and its kin.
std::string displayText(FallbackBehavior behavior);

}  // namespace tarnel
