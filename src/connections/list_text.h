#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnel {

// The small text steps shared by the filter lists, rule values and the legacy filename filter.

// `text` without leading and trailing blanks: spaces, tabs and the other Unicode space
// separators (no-break space and the like). Line breaks stay.
std::string trimBlanks(std::string_view text);

// The pieces between commas, empty ones included: "" gives one empty piece.
std::vector<std::string> splitOnCommas(std::string_view text);

// ASCII letters lower-cased; other bytes, UTF-8 included, unchanged.
std::string lowerCased(std::string_view text);

}  // namespace tarnel
