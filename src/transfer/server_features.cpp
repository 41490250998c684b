#include "transfer/server_features.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "transfer/text_lines.h"

namespace tarnel {
namespace {

constexpr std::array strongestFirst{DigestAlgorithm::sha256, DigestAlgorithm::sha1,
                                    DigestAlgorithm::md5, DigestAlgorithm::crc32};

// The FEAT keyword of each algorithm's own command.
std::string_view checksumCommand(DigestAlgorithm algorithm) {
    switch (algorithm) {
        case DigestAlgorithm::sha256:
            return "XSHA256";
        case DigestAlgorithm::sha1:
            return "XSHA1";
        case DigestAlgorithm::md5:
            return "XMD5";
        case DigestAlgorithm::crc32:
            return "XCRC";
    }
    return "";
}

std::string upper(std::string_view s) {
    std::string out(s);
    for (char& c : out) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return out;
}

bool contains(const std::vector<DigestAlgorithm>& list, DigestAlgorithm algorithm) {
    return std::find(list.begin(), list.end(), algorithm) != list.end();
}

// "CRC32;MD5;SHA-1*;SHA-256;SHA-512;": the known ones, and the one marked as selected.
void readHashList(std::string_view list, ServerFeatures& features) {
    while (!list.empty()) {
        const auto end = std::min(list.find(';'), list.size());
        std::string name = upper(trimmed(list.substr(0, end)));
        list.remove_prefix(std::min(end + 1, list.size()));
        const bool selected = name.ends_with('*');
        if (selected) name.pop_back();
        for (DigestAlgorithm algorithm : strongestFirst) {
            if (name != digestName(algorithm)) continue;
            features.hashAlgorithms.push_back(algorithm);
            if (selected) features.hashSelected = algorithm;
        }
    }
}

bool isReplyCode(std::string_view line, char separator) {
    return line.size() >= 4 && std::isdigit(static_cast<unsigned char>(line[0])) &&
           std::isdigit(static_cast<unsigned char>(line[1])) &&
           std::isdigit(static_cast<unsigned char>(line[2])) && line[3] == separator;
}

}  // namespace

ServerFeatures parseFeatures(std::string_view replies) {
    ServerFeatures features;
    bool inFeatures = false;
    for (std::string_view line : splitLines(replies)) {
        if (!inFeatures) {
            inFeatures = line.starts_with("211-");
            continue;
        }
        if (line.starts_with("211 ")) break;
        line = trimmed(line);
        const auto blank = std::min(line.find(' '), line.size());
        const std::string keyword = upper(line.substr(0, blank));
        if (keyword == "HASH") {
            readHashList(line.substr(blank), features);
        } else if (keyword == "MLST") {
            features.machineListings = true;
        } else {
            for (DigestAlgorithm algorithm : strongestFirst)
                if (keyword == checksumCommand(algorithm))
                    features.checksumCommands.push_back(algorithm);
        }
    }
    return features;
}

std::optional<DigestAlgorithm> offeredChecksum(const ServerFeatures& features) {
    for (DigestAlgorithm algorithm : strongestFirst)
        if (contains(features.hashAlgorithms, algorithm) ||
            contains(features.checksumCommands, algorithm))
            return algorithm;
    return std::nullopt;
}

std::optional<ChecksumQuery> checksumQuery(const ServerFeatures& features, std::string_view name) {
    const auto algorithm = offeredChecksum(features);
    if (!algorithm) return std::nullopt;
    ChecksumQuery query{*algorithm, {}};
    // HASH names the algorithm and the range in its answer, and takes the rest of the line as
    // the path, blanks and all.
    if (contains(features.hashAlgorithms, *algorithm)) {
        if (features.hashSelected != algorithm)
            query.commands.push_back("*OPTS HASH " + std::string(digestName(*algorithm)));
        query.commands.push_back("*HASH " + std::string(name));
    } else {
        query.commands.push_back("*" + std::string(checksumCommand(*algorithm)) + " " +
                                 std::string(name));
    }
    return query;
}

std::string lastReply(std::string_view replies) {
    const auto lines = splitLines(replies);
    for (auto line = lines.rbegin(); line != lines.rend(); ++line)
        if (!trimmed(*line).empty()) return std::string(trimmed(*line));
    return {};
}

std::optional<std::string> digestInReply(std::string_view replies, DigestAlgorithm algorithm) {
    const std::string reply = lastReply(replies);
    if (!isReplyCode(reply, ' ') || reply[0] != '2') return std::nullopt;
    // "213 SHA-256 0-1234 <digest> name" (HASH) or "250 <DIGEST>" (XSHA256 and the like).
    std::string_view rest = std::string_view(reply).substr(4);
    while (!rest.empty()) {
        const auto end = std::min(rest.find(' '), rest.size());
        const std::string_view token = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (token.size() != digestHexLength(algorithm) ||
            !std::all_of(token.begin(), token.end(),
                         [](char c) { return std::isxdigit(static_cast<unsigned char>(c)); }))
            continue;
        std::string digest(token);
        for (char& c : digest) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        return digest;
    }
    return std::nullopt;
}

}  // namespace tarnel
