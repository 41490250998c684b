#include "engine/md5.h"

#include "transfer/digest.h"

namespace tarnel {

std::string computeMD5(const std::filesystem::path& file) {
    Digest md5(DigestAlgorithm::md5);
    if (!md5.updateFromFile(file)) return "error";
    const std::string hex = md5.hex();
    return hex.empty() ? "error" : hex;
}

Task<std::string> computeMD5(Runtime& runtime, std::filesystem::path file) {
    // Named, not temporary: g++ 12 destroys a temporary awaiter that owns a path twice.
    auto hashing = onWorker(runtime, [file = std::move(file)] { return computeMD5(file); });
    co_return co_await hashing;
}

}  // namespace tarnel
