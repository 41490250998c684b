#pragma once

#include <filesystem>
#include <string>

#include <curl/curl.h>

namespace tarnel {

// Trust on first use for SFTP host keys, in an OpenSSH-format known-hosts file of our own.
// Handed to libcurl as the key function's data; it must outlive every transfer that uses it.
struct KnownHostsPolicy {
    std::filesystem::path file;
    std::string host;
    int port = 22;
};

// libcurl's CURLOPT_SSH_KEYFUNCTION: a recorded key that matches passes, an unknown one is
// recorded and passes, a changed one is refused (libcurl then fails with
// CURLE_PEER_FAILED_VERIFICATION).
int checkSshHostKey(CURL* handle, const curl_khkey* knownKey, const curl_khkey* foundKey,
                    curl_khmatch match, void* policy);

// The known-hosts line for a raw key blob: "[host]:port" off port 22, then the key's type as
// the blob names it, then the blob in base64.
std::string knownHostsLine(const std::string& host, int port, const std::string& keyBlob);

}  // namespace tarnel
