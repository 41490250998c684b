#pragma once

#include <optional>
#include <string>

#include "platform/uuid.h"

namespace tarnel {

enum class RuleMatchType { allFiles, fileType, nameContains, nameStartsWith, customPattern };

// Raw value is the file manager's label number.
enum class FinderTagColor { gray = 1, green = 2, purple = 3, blue = 4, yellow = 5, red = 6, orange = 7 };

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
};

}  // namespace tarnel
