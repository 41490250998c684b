#include "transfer/digest.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

#include <zlib.h>

namespace tarnel {
namespace {

// Fetched once for the process: given OpenSSL's built-in names instead, each digest of each file
// looks its algorithm up again.
const EVP_MD* evpOf(DigestAlgorithm algorithm) {
    static EVP_MD* const sha256 = EVP_MD_fetch(nullptr, "SHA256", nullptr);
    static EVP_MD* const sha1 = EVP_MD_fetch(nullptr, "SHA1", nullptr);
    static EVP_MD* const md5 = EVP_MD_fetch(nullptr, "MD5", nullptr);
    switch (algorithm) {
        case DigestAlgorithm::sha256:
            return sha256;
        case DigestAlgorithm::sha1:
            return sha1;
        case DigestAlgorithm::md5:
            return md5;
        case DigestAlgorithm::crc32:
            break;
    }
    return nullptr;
}

std::string hexOf(const unsigned char* bytes, std::size_t count) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string hex;
    hex.reserve(count * 2);
    for (std::size_t i = 0; i < count; ++i) {
        hex += digits[bytes[i] >> 4];
        hex += digits[bytes[i] & 0x0F];
    }
    return hex;
}

}  // namespace

std::string_view digestName(DigestAlgorithm algorithm) {
    switch (algorithm) {
        case DigestAlgorithm::sha256:
            return "SHA-256";
        case DigestAlgorithm::sha1:
            return "SHA-1";
        case DigestAlgorithm::md5:
            return "MD5";
        case DigestAlgorithm::crc32:
            return "CRC32";
    }
    return "";
}

std::size_t digestHexLength(DigestAlgorithm algorithm) {
    switch (algorithm) {
        case DigestAlgorithm::sha256:
            return 64;
        case DigestAlgorithm::sha1:
            return 40;
        case DigestAlgorithm::md5:
            return 32;
        case DigestAlgorithm::crc32:
            return 8;
    }
    return 0;
}

Digest::Digest(DigestAlgorithm algorithm)
    : algorithm_(algorithm), context_(nullptr, EVP_MD_CTX_free) {
    if (const EVP_MD* md = evpOf(algorithm)) {
        context_.reset(EVP_MD_CTX_new());
        if (context_ && EVP_DigestInit_ex(context_.get(), md, nullptr) != 1) context_.reset();
    } else {
        crc_ = ::crc32(0L, Z_NULL, 0);
    }
}

void Digest::update(const void* bytes, std::size_t count) {
    if (evpOf(algorithm_) != nullptr) {
        if (context_) EVP_DigestUpdate(context_.get(), bytes, count);
        return;
    }
    // zlib takes at most a uInt at once.
    const auto* at = static_cast<const Bytef*>(bytes);
    while (count > 0) {
        const auto piece = static_cast<uInt>(std::min<std::size_t>(count, 1u << 30));
        crc_ = ::crc32(crc_, at, piece);
        at += piece;
        count -= piece;
    }
}

bool Digest::updateFromFile(const std::filesystem::path& file, std::optional<std::int64_t> length) {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> in(std::fopen(file.c_str(), "rbe"),
                                                       &std::fclose);
    if (!in) return false;
    std::vector<unsigned char> buffer(65536);
    std::int64_t left = length.value_or(-1);
    while (left != 0) {
        const std::size_t wanted =
            left < 0 ? buffer.size()
                     : static_cast<std::size_t>(std::min<std::int64_t>(left, buffer.size()));
        const std::size_t n = std::fread(buffer.data(), 1, wanted, in.get());
        if (n == 0) break;
        update(buffer.data(), n);
        if (left > 0) left -= static_cast<std::int64_t>(n);
    }
    return !std::ferror(in.get()) && left <= 0;
}

std::string Digest::hex() {
    if (evpOf(algorithm_) == nullptr) {
        const std::array<unsigned char, 4> bytes{static_cast<unsigned char>(crc_ >> 24),
                                                 static_cast<unsigned char>(crc_ >> 16),
                                                 static_cast<unsigned char>(crc_ >> 8),
                                                 static_cast<unsigned char>(crc_)};
        return hexOf(bytes.data(), bytes.size());
    }
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned int length = 0;
    if (!context_ || EVP_DigestFinal_ex(context_.get(), digest.data(), &length) != 1) return {};
    return hexOf(digest.data(), length);
}

}  // namespace tarnel
