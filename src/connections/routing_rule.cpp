#include "connections/routing_rule.h"

#include <fnmatch.h>

#include "connections/list_text.h"
#include "platform/localized.h"

namespace tarnel {

namespace {

// File-type entries: trimmed, lower-cased, one leading dot dropped, in the order typed.
std::vector<std::string> fileTypeEntries(std::string_view value) {
    std::vector<std::string> entries;
    for (const std::string& piece : splitOnCommas(value)) {
        std::string entry = lowerCased(trimBlanks(piece));
        if (entry.starts_with('.'))
            entry.erase(0, 1);
        if (!entry.empty())
            entries.push_back(std::move(entry));
    }
    return entries;
}

}  // namespace

std::vector<std::string> RoutingRule::globPatterns() const {
    switch (matchType) {
        case RuleMatchType::allFiles:
            return {"*"};
        case RuleMatchType::fileType: {
            std::vector<std::string> patterns;
            for (const std::string& entry : fileTypeEntries(matchValue))
                patterns.push_back("*." + entry);
            return patterns;
        }
        case RuleMatchType::nameContains:
            if (trimBlanks(matchValue).empty())
                return {};
            return {"*" + matchValue + "*"};
        case RuleMatchType::nameStartsWith:
            if (trimBlanks(matchValue).empty())
                return {};
            return {matchValue + "*"};
        case RuleMatchType::customPattern:
            if (matchValue.empty())
                return {};
            return {matchValue};
    }
    return {};
}

bool RoutingRule::matches(std::string_view filename) const {
    const std::string name(filename);
    for (const std::string& pattern : globPatterns())
        if (globMatches(pattern, name))
            return true;
    return false;
}

std::string RoutingRule::displaySummary() const {
    switch (matchType) {
        case RuleMatchType::allFiles:
            return title(matchType);
        case RuleMatchType::fileType: {
            std::string summary;
            for (const std::string& entry : fileTypeEntries(matchValue))
                summary += (summary.empty() ? "" : ", ") + entry;
            return summary.empty() ? title(matchType) : summary;
        }
        case RuleMatchType::nameContains:
            return matchValue.empty() ? title(matchType) : "\u2026" + matchValue + "\u2026";
        case RuleMatchType::nameStartsWith:
            return matchValue.empty() ? title(matchType) : matchValue + "\u2026";
        case RuleMatchType::customPattern:
            return matchValue.empty() ? title(matchType) : matchValue;
    }
    return {};
}

bool globMatches(const std::string& pattern, const std::string& filename) {
    return fnmatch(pattern.c_str(), filename.c_str(), FNM_CASEFOLD) == 0;
}

std::string title(RuleMatchType type) {
    switch (type) {
        case RuleMatchType::allFiles:
            return localized("All files");
        case RuleMatchType::fileType:
            return localized("File type");
        case RuleMatchType::nameContains:
            return localized("Filename contains");
        case RuleMatchType::nameStartsWith:
            return localized("Filename starts with");
        case RuleMatchType::customPattern:
            return localized("Custom pattern (glob)");
    }
    return {};
}

std::optional<std::string> helpText(RuleMatchType type) {
    switch (type) {
        case RuleMatchType::allFiles:
            return std::nullopt;
        case RuleMatchType::fileType:
            return localized("Comma-separated extensions. Example: jpg, pdf, raw, cr3");
        case RuleMatchType::nameContains:
            return localized("Matches any file whose name contains this text");
        case RuleMatchType::nameStartsWith:
            return localized("Matches any file whose name starts with this text");
        case RuleMatchType::customPattern:
            return localized(
                "Unix glob pattern: * matches any characters, ? matches one character");
    }
    return std::nullopt;
}

std::string displayText(FallbackBehavior behavior) {
    switch (behavior) {
        case FallbackBehavior::useLocalFolder:
            return localized("Save to main folder");
        case FallbackBehavior::ignore:
            return localized("Ignore (don't download)");
        case FallbackBehavior::useSpecificFolder:
            return localized("Save to specific folder");
    }
    return {};
}

}  // namespace tarnel
