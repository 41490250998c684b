#include "transfer/text_lines.h"

#include <charconv>

namespace tarnel {
namespace {

// The code point at `pos` of UTF-8 text and its length in bytes; a stray byte is itself.
std::pair<char32_t, std::size_t> codePointAt(std::string_view s, std::size_t pos) {
    const auto b = static_cast<unsigned char>(s[pos]);
    std::size_t len = b < 0x80           ? 1
                      : (b >> 5) == 0x6  ? 2
                      : (b >> 4) == 0xE  ? 3
                      : (b >> 3) == 0x1E ? 4
                                         : 1;
    if (len == 1 || pos + len > s.size()) {
        return {b, 1};
    }
    char32_t cp = b & (0x7F >> len);
    for (std::size_t i = 1; i < len; ++i) {
        cp = (cp << 6) | (static_cast<unsigned char>(s[pos + i]) & 0x3F);
    }
    return {cp, len};
}

bool isLineEnd(char32_t c) {
    return (c >= 0x0A && c <= 0x0D) || c == 0x85 || c == 0x2028 || c == 0x2029;
}

bool isBlank(char32_t c) {
    return isLineEnd(c) || c == ' ' || c == '\t' || c == 0xA0 || c == 0x1680 ||
           (c >= 0x2000 && c <= 0x200A) || c == 0x202F || c == 0x205F || c == 0x3000;
}

// Length of the last code point ending right before `end`.
std::size_t lastCodePointLength(std::string_view s, std::size_t end) {
    std::size_t start = end - 1;
    while (start > 0 && end - start < 4 && (static_cast<unsigned char>(s[start]) & 0xC0) == 0x80) {
        --start;
    }
    const auto [cp, len] = codePointAt(s, start);
    return start + len == end ? len : 1;
}

}  // namespace

std::vector<std::string_view> splitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    for (std::size_t pos = 0; pos < text.size();) {
        const auto [cp, len] = codePointAt(text, pos);
        if (isLineEnd(cp)) {
            lines.push_back(text.substr(start, pos - start));
            start = pos + len;
        }
        pos += len;
    }
    lines.push_back(text.substr(start));
    return lines;
}

std::string_view trimmed(std::string_view s) {
    while (!s.empty()) {
        const auto [cp, len] = codePointAt(s, 0);
        if (!isBlank(cp)) {
            break;
        }
        s.remove_prefix(len);
    }
    while (!s.empty()) {
        const std::size_t len = lastCodePointLength(s, s.size());
        if (!isBlank(codePointAt(s, s.size() - len).first)) {
            break;
        }
        s.remove_suffix(len);
    }
    return s;
}

bool isValidUtf8(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size()) {
        const auto b = static_cast<unsigned char>(s[i]);
        std::size_t len;
        char32_t cp;
        if (b < 0x80) {
            ++i;
            continue;
        } else if (b >= 0xC2 && b <= 0xDF) {
            len = 2, cp = b & 0x1F;
        } else if ((b & 0xF0) == 0xE0) {
            len = 3, cp = b & 0x0F;
        } else if (b >= 0xF0 && b <= 0xF4) {
            len = 4, cp = b & 0x07;
        } else {
            return false;
        }
        if (i + len > s.size()) {
            return false;
        }
        for (std::size_t k = 1; k < len; ++k) {
            const auto c = static_cast<unsigned char>(s[i + k]);
            if ((c & 0xC0) != 0x80) {
                return false;
            }
            cp = (cp << 6) | (c & 0x3F);
        }
        const char32_t smallest = len == 2 ? 0x80 : len == 3 ? 0x800 : 0x10000;
        if (cp < smallest || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) {
            return false;
        }
        i += len;
    }
    return true;
}

std::optional<std::int64_t> parseInt64(std::string_view s) {
    if (s.starts_with('+')) {
        s.remove_prefix(1);
        if (s.starts_with('-')) {
            return std::nullopt;
        }
    }
    std::int64_t value = 0;
    const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
    if (s.empty() || ec != std::errc() || end != s.data() + s.size()) {
        return std::nullopt;
    }
    return value;
}

}  // namespace tarnel
