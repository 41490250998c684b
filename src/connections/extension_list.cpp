#include "connections/extension_list.h"

#include "connections/list_text.h"

namespace tarnel {

namespace {

std::set<std::string> parseEntries(std::string_view list, bool dropLeadingDot) {
    std::set<std::string> entries;
    for (const std::string& piece : splitOnCommas(list)) {
        std::string entry = lowerCased(trimBlanks(piece));
        if (dropLeadingDot && entry.starts_with('.'))
            entry.erase(0, 1);
        if (!entry.empty())
            entries.insert(std::move(entry));
    }
    return entries;
}

}  // namespace

std::set<std::string> parseExtensionList(std::string_view list) {
    return parseEntries(list, true);
}

std::set<std::string> parseFilterTokens(std::string_view list) {
    return parseEntries(list, false);
}

}  // namespace tarnel
