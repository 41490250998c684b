#include "connections/list_text.h"

#include <array>

namespace tarnel {

namespace {

// UTF-8 forms of the space separators beyond space itself.
constexpr std::array<std::string_view, 17> wideBlanks = {
    "\u00A0", "\u1680", "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005", "\u2006",
    "\u2007", "\u2008", "\u2009", "\u200A", "\u202F", "\u205F", "\u3000", "\t"};

// Length of the blank that `text` starts with (or ends with, when `atEnd`), 0 if none.
std::size_t blankLength(std::string_view text, bool atEnd) {
    if (text.empty())
        return 0;
    if ((atEnd ? text.back() : text.front()) == ' ')
        return 1;
    for (std::string_view blank : wideBlanks)
        if (atEnd ? text.ends_with(blank) : text.starts_with(blank))
            return blank.size();
    return 0;
}

}  // namespace

std::string trimBlanks(std::string_view text) {
    while (std::size_t n = blankLength(text, false))
        text.remove_prefix(n);
    while (std::size_t n = blankLength(text, true))
        text.remove_suffix(n);
    return std::string(text);
}

std::vector<std::string> splitOnCommas(std::string_view text) {
    std::vector<std::string> pieces;
    for (;;) {
        std::size_t comma = text.find(',');
        pieces.emplace_back(text.substr(0, comma));
        if (comma == std::string_view::npos)
            return pieces;
        text.remove_prefix(comma + 1);
    }
}

std::string lowerCased(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return out;
}

}  // namespace tarnel
