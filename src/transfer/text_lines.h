#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tarnel {

// Plain-text helpers for what servers and libcurl send, with Unicode's line ends and blanks
// (UTF-8) counted as such, not only the ASCII ones.

// Pieces between line ends; CRLF gives an empty piece between CR and LF.
std::vector<std::string_view> splitLines(std::string_view text);
// `s` without leading and trailing whitespace and line ends.
std::string_view trimmed(std::string_view s);
// Whether `s` is well-formed UTF-8 (no overlong forms, no surrogates, nothing past U+10FFFF).
bool isValidUtf8(std::string_view s);
// A signed 64-bit decimal with an optional sign and nothing else; nothing on overflow.
std::optional<std::int64_t> parseInt64(std::string_view s);

}  // namespace tarnel
