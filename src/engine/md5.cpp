#include "engine/md5.h"

#include <openssl/evp.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <vector>

namespace tarnel {

std::string computeMD5(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return "error";
    std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> ctx(EVP_MD_CTX_new(), EVP_MD_CTX_free);
    if (!ctx || EVP_DigestInit_ex(ctx.get(), EVP_md5(), nullptr) != 1) return "error";
    std::vector<char> buffer(65536);
    while (in) {
        in.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
        if (in.bad()) return "error";
        if (in.gcount() > 0) EVP_DigestUpdate(ctx.get(), buffer.data(), static_cast<std::size_t>(in.gcount()));
    }
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

}  // namespace tarnel
