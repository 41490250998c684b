#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "transfer/digest.h"

namespace tarnel {

// What an FTP server's FEAT reply offers that the client makes use of.
struct ServerFeatures {
    std::vector<DigestAlgorithm> hashAlgorithms;    // through HASH, after OPTS HASH
    std::optional<DigestAlgorithm> hashSelected;    // HASH's algorithm until OPTS changes it
    std::vector<DigestAlgorithm> checksumCommands;  // XSHA256, XSHA1, XMD5, XCRC
    bool machineListings = false;                   // MLST, and with it MLSD

    bool operator==(const ServerFeatures&) const = default;
};

// The features in the replies of a session that sent FEAT (every reply of the session may be
// in `replies`; only FEAT's counts). A server that refused FEAT offers nothing.
ServerFeatures parseFeatures(std::string_view replies);

// The strongest checksum the server offers, SHA-256 first, then SHA-1, MD5, CRC32.
std::optional<DigestAlgorithm> offeredChecksum(const ServerFeatures& features);

// How to ask the server for its digest of one file, after the download, in the file's folder.
struct ChecksumQuery {
    DigestAlgorithm algorithm;
    // The last command's reply carries the digest. Each starts with "*": a server that cannot
    // answer fails nothing, its reply says so.
    std::vector<std::string> commands;
};
std::optional<ChecksumQuery> checksumQuery(const ServerFeatures& features, std::string_view name);

// How a downloaded file was vouched for besides its size.
struct ChecksumVerdict {
    std::optional<DigestAlgorithm> algorithm;  // the server's digest in it equals the file's
    std::string digest;
    // The server offers a checksum, but its reply for this file held none: that reply.
    std::string unanswered;
    // Where the server offers no checksum: the file's MD5, taken as its bytes were written.
    std::string localMD5;
};

// The digest of `algorithm` in the last reply of `replies`, lower case; nullopt if that reply
// is no success or holds none.
std::optional<std::string> digestInReply(std::string_view replies, DigestAlgorithm algorithm);

// The last reply line of `replies`, for messages.
std::string lastReply(std::string_view replies);

}  // namespace tarnel
