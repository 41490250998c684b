#include "transfer/ssh_known_hosts.h"

#include <cstdio>
#include <mutex>
#include <system_error>

#include <openssl/evp.h>

namespace tarnel {
namespace {

// Appends from all clients of the process go one at a time, so no line is torn.
std::mutex appendMutex;

std::string base64(const std::string& bytes) {
    std::string out(4 * ((bytes.size() + 2) / 3) + 1, '\0');
    const int n = EVP_EncodeBlock(reinterpret_cast<unsigned char*>(out.data()),
                                  reinterpret_cast<const unsigned char*>(bytes.data()),
                                  static_cast<int>(bytes.size()));
    out.resize(static_cast<std::size_t>(n));
    return out;
}

// An SSH key blob opens with its type as a length-prefixed string ("ssh-ed25519").
std::string keyTypeOf(const std::string& blob) {
    if (blob.size() < 4) {
        return {};
    }
    const auto* b = reinterpret_cast<const unsigned char*>(blob.data());
    const std::size_t len = (std::size_t{b[0]} << 24) | (b[1] << 16) | (b[2] << 8) | b[3];
    return len <= blob.size() - 4 ? blob.substr(4, len) : std::string{};
}

void record(const KnownHostsPolicy& policy, const std::string& line) {
    std::lock_guard lock(appendMutex);
    std::error_code ec;
    std::filesystem::create_directories(policy.file.parent_path(), ec);
    if (FILE* f = std::fopen(policy.file.c_str(), "ae")) {
        std::fputs((line + "\n").c_str(), f);
        std::fclose(f);
    }
}

}  // namespace

std::string knownHostsLine(const std::string& host, int port, const std::string& keyBlob) {
    std::string name = host;
    if (name.size() > 2 && name.front() == '[' && name.back() == ']') {
        name = name.substr(1, name.size() - 2);  // an IPv6 literal as the URL writes it
    }
    if (port != 22) {
        name = "[" + name + "]:" + std::to_string(port);
    }
    return name + " " + keyTypeOf(keyBlob) + " " + base64(keyBlob);
}

int checkSshHostKey(CURL*, const curl_khkey*, const curl_khkey* foundKey, curl_khmatch match,
                    void* policy) {
    switch (match) {
        case CURLKHMATCH_OK:
            return CURLKHSTAT_FINE;
        case CURLKHMATCH_MISSING: {
            // libcurl hands the server's key as raw bytes (len > 0). Recording it ourselves,
            // appended, keeps "[host]:port" apart from other ports of the same host, and keeps
            // concurrent first connections from rewriting each other's file.
            const auto& p = *static_cast<const KnownHostsPolicy*>(policy);
            if (foundKey != nullptr && foundKey->len > 0) {
                record(p,
                       knownHostsLine(p.host, p.port, std::string(foundKey->key, foundKey->len)));
            }
            return CURLKHSTAT_FINE;
        }
        default:
            return CURLKHSTAT_REJECT;
    }
}

}  // namespace tarnel
