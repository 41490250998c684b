#include "engine/md5.h"

#include <array>
#include <cstdio>
#include <memory>
#include <vector>

#include <openssl/evp.h>

namespace tarnel {

std::string computeMD5(const std::filesystem::path& file) {
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> in(std::fopen(file.c_str(), "rbe"),
                                                       &std::fclose);
    if (!in) return "error";
    std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> ctx(EVP_MD_CTX_new(), EVP_MD_CTX_free);
    if (!ctx || EVP_DigestInit_ex(ctx.get(), EVP_md5(), nullptr) != 1) return "error";
    std::vector<unsigned char> buffer(65536);
    while (const auto n = std::fread(buffer.data(), 1, buffer.size(), in.get()))
        EVP_DigestUpdate(ctx.get(), buffer.data(), n);
    if (std::ferror(in.get())) return "error";
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned int length = 0;
    if (EVP_DigestFinal_ex(ctx.get(), digest.data(), &length) != 1) return "error";
    std::string hex;
    char pair[3];
    for (unsigned int i = 0; i < length; ++i) {
        std::snprintf(pair, sizeof pair, "%02x", digest[i]);
        hex += pair;
    }
    return hex;
}

Task<std::string> computeMD5(Runtime& runtime, std::filesystem::path file) {
    // Named, not temporary: g++ 12 destroys a temporary awaiter that owns a path twice.
    auto hashing = onWorker(runtime, [file = std::move(file)] { return computeMD5(file); });
    co_return co_await hashing;
}

}  // namespace tarnel
