#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <openssl/evp.h>

namespace tarnel {

// The checksums servers offer, strongest first.
enum class DigestAlgorithm { sha256, sha1, md5, crc32 };

// The name servers use for it in FEAT and HASH: "SHA-256", "SHA-1", "MD5", "CRC32".
std::string_view digestName(DigestAlgorithm algorithm);
// Hexadecimal digits of its digest.
std::size_t digestHexLength(DigestAlgorithm algorithm);

// A digest computed piece by piece, as bytes arrive: OpenSSL for the hashes, zlib for CRC32.
class Digest {
public:
    explicit Digest(DigestAlgorithm algorithm);

    DigestAlgorithm algorithm() const { return algorithm_; }
    void update(const void* bytes, std::size_t count);
    // Feeds the first `length` bytes of `file` (all of it when nullopt), in 64 KiB blocks
    // through one buffer; false if they cannot all be read.
    bool updateFromFile(const std::filesystem::path& file,
                        std::optional<std::int64_t> length = std::nullopt);
    // The digest as lower-case hexadecimal; the digest is finished after this.
    std::string hex();

private:
    DigestAlgorithm algorithm_;
    std::unique_ptr<EVP_MD_CTX, void (*)(EVP_MD_CTX*)> context_;
    unsigned long crc_ = 0;
};

}  // namespace tarnel
