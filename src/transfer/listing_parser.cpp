#include "transfer/listing_parser.h"

#include <algorithm>
#include <cctype>

#include "transfer/text_lines.h"

namespace tarnel {
namespace {

// Pieces of `line` between runs of blanks (the blank character only: tabs do not split). With a
// limit, the last piece is the whole rest of the line, inner blanks kept.
std::vector<std::string_view> splitOnBlanks(std::string_view line, std::size_t limit = 0) {
    std::vector<std::string_view> pieces;
    std::size_t pos = 0;
    while (pos < line.size()) {
        pos = line.find_first_not_of(' ', pos);
        if (pos == std::string_view::npos) {
            break;
        }
        if (limit != 0 && pieces.size() + 1 == limit) {
            pieces.push_back(line.substr(pos));
            break;
        }
        const std::size_t end = std::min(line.find(' ', pos), line.size());
        pieces.push_back(line.substr(pos, end - pos));
        pos = end;
    }
    return pieces;
}

std::string joinedFrom(const std::vector<std::string_view>& pieces, std::size_t first) {
    std::string joined;
    for (std::size_t i = first; i < pieces.size(); ++i) {
        if (i > first) {
            joined += ' ';
        }
        joined += pieces[i];
    }
    return joined;
}

}  // namespace

std::vector<FTPFileEntry> parseListing(std::string_view text, bool includeDirectories) {
    const auto lines = splitLines(text);
    // One entry a row at most: a listing of many thousand rows grows no copies on the way.
    std::vector<FTPFileEntry> entries;
    entries.reserve(lines.size());
    for (std::string_view line : lines) {
        line = trimmed(line);
        if (line.empty()) {
            continue;
        }
        auto entry = parseUnixLine(line);
        if (!entry) {
            entry = parseDosLine(line);
        }
        if (entry && (includeDirectories || !entry->isDirectory)) {
            entries.push_back(std::move(*entry));
        }
    }
    return entries;
}

std::optional<FTPFileEntry> parseUnixLine(std::string_view line) {
    if (line.empty() || (line[0] != '-' && line[0] != 'd' && line[0] != 'l')) {
        return std::nullopt;
    }
    const auto pieces = splitOnBlanks(line, 9);
    if (pieces.size() < 9) {
        return std::nullopt;
    }
    const auto size = parseInt64(pieces[4]);
    if (!size || pieces[8].starts_with('.')) {
        return std::nullopt;
    }
    // Cut at the first arrow on every row, links or not: a file named "a -> b" lists as "a".
    std::string_view name = pieces[8];
    name = name.substr(0, name.find(" -> "));
    return FTPFileEntry{std::string(name), *size, line[0] == 'd', ""};
}

std::optional<FTPFileEntry> parseDosLine(std::string_view line) {
    if (line.size() < 11 || line[2] != '-' || line[5] != '-') {
        return std::nullopt;
    }
    const bool isDirectory = line.find("<DIR>") != std::string_view::npos;
    const auto pieces = splitOnBlanks(line);
    if (pieces.size() < 4) {
        return std::nullopt;
    }
    // The name is put back together from pieces, so runs of blanks in it become one blank.
    std::string name = joinedFrom(pieces, 3);
    if (name.starts_with('.')) {
        return std::nullopt;
    }
    if (isDirectory) {
        return FTPFileEntry{std::move(name), 0, true, ""};
    }
    const auto size = parseInt64(pieces[2]);
    if (!size) {
        return std::nullopt;
    }
    return FTPFileEntry{std::move(name), *size, false, ""};
}

namespace {

std::string lowered(std::string_view s) {
    std::string out(s);
    for (char& c : out) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return out;
}

// One MLSD line: nullopt if it is no row; a row without an entry (cdir, pdir, hidden, a device)
// is read and left out.
std::optional<std::optional<FTPFileEntry>> parseMachineLine(std::string_view line) {
    const auto blank = line.find(' ');
    if (blank == std::string_view::npos || blank == 0 || line[blank - 1] != ';') {
        return std::nullopt;
    }
    std::string type;
    std::optional<std::int64_t> size;
    for (std::string_view facts = line.substr(0, blank); !facts.empty();) {
        const auto end = facts.find(';');
        const std::string_view fact = facts.substr(0, end);
        facts.remove_prefix(end + 1);
        const auto equals = fact.find('=');
        if (equals == std::string_view::npos) return std::nullopt;
        const std::string key = lowered(fact.substr(0, equals));
        if (key == "type") type = lowered(fact.substr(equals + 1));
        if (key == "size") size = parseInt64(fact.substr(equals + 1));
    }
    if (type.empty()) return std::nullopt;
    // Taken whole: what follows the one blank after the facts, to the end of the line.
    const std::string_view name = line.substr(blank + 1);
    const bool isDirectory = type == "dir";
    const bool isFile = type == "file" || type.starts_with("os.unix=slink") ||
                        type.starts_with("os.unix=symlink");
    if (name.empty() || name.starts_with('.') || (!isDirectory && !isFile)) {
        return std::optional<FTPFileEntry>{};
    }
    if (isFile && !size) return std::nullopt;
    return FTPFileEntry{std::string(name), isFile ? *size : 0, isDirectory, ""};
}

}  // namespace

std::optional<std::vector<FTPFileEntry>> parseMachineListing(std::string_view text,
                                                             bool includeDirectories) {
    std::vector<FTPFileEntry> entries;
    bool anyLine = false;
    bool anyRow = false;
    for (std::string_view line : splitLines(text)) {
        if (trimmed(line).empty()) continue;
        anyLine = true;
        const auto row = parseMachineLine(line);
        if (!row) continue;
        anyRow = true;
        if (*row && (includeDirectories || !(*row)->isDirectory)) entries.push_back(**row);
    }
    if (anyLine && !anyRow) return std::nullopt;
    return entries;
}

std::optional<std::int64_t> parseContentLength(std::string_view headers) {
    static constexpr std::string_view key = "content-length:";
    for (std::string_view line : splitLines(headers)) {
        if (line.size() < key.size() ||
            !std::equal(key.begin(), key.end(), line.begin(), [](char k, char c) {
                return k == std::tolower(static_cast<unsigned char>(c));
            })) {
            continue;
        }
        const std::string_view value = trimmed(line.substr(key.size()));
        if (value.empty()) {
            return std::nullopt;
        }
        return parseInt64(value);
    }
    return std::nullopt;
}

std::vector<std::string> parseNameList(std::string_view text) {
    std::vector<std::string> names;
    for (std::string_view line : splitLines(text)) {
        line = trimmed(line);
        if (!line.empty() && !line.starts_with('.')) {
            names.emplace_back(line);
        }
    }
    return names;
}

}  // namespace tarnel
