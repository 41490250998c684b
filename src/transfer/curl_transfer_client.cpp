#include "transfer/curl_transfer_client.h"

#include <cctype>
#include <cstdio>
#include <cstring>
#include <memory>
#include <mutex>
#include <optional>

#include <netdb.h>
#include <sys/socket.h>

#include "transfer/ftp_error.h"
#include "transfer/text_lines.h"

namespace tarnel {
namespace {

size_t appendToData(char* buffer, size_t size, size_t count, void* data) {
    if (buffer == nullptr || data == nullptr) {
        return 0;
    }
    static_cast<std::string*>(data)->append(buffer, size * count);
    return size * count;
}

size_t writeToFile(char* buffer, size_t size, size_t count, void* stream) {
    if (buffer == nullptr || stream == nullptr) {
        return 0;
    }
    return std::fwrite(buffer, size, count, static_cast<FILE*>(stream));
}

size_t discardBytes(char*, size_t size, size_t count, void*) {
    return size * count;
}

struct ProgressContext {
    std::function<void(std::int64_t, std::int64_t)> callback;
};

int reportProgress(void* context, curl_off_t dltotal, curl_off_t dlnow, curl_off_t, curl_off_t) {
    if (context != nullptr) {
        static_cast<ProgressContext*>(context)->callback(dlnow, dltotal);
    }
    return 0;  // never aborts the transfer
}

bool isFTPFamily(TransferProtocol p) {
    return p == TransferProtocol::ftp || p == TransferProtocol::ftps;
}

// libcurl parses an SFTP quote command itself: a quoted path may hold blanks, with `"` and `\`
// escaped by a backslash.
std::string quotedForSFTP(const std::string& path) {
    std::string quoted = "\"";
    for (char c : path) {
        if (c == '"' || c == '\\') {
            quoted += '\\';
        }
        quoted += c;
    }
    return quoted + "\"";
}

std::string withLeadingSlash(const std::string& path) {
    return path.starts_with('/') ? path : "/" + path;
}

constexpr long receiveBufferSize = 512 * 1024;

}  // namespace

CurlTransferClient::CurlTransferClient(ConnectionConfig config,
                                       std::filesystem::path knownHostsFile)
    : config_(std::move(config)), knownHostsFile_(std::move(knownHostsFile)) {
    static std::once_flag globalInit;
    std::call_once(globalInit, [] { curl_global_init(CURL_GLOBAL_ALL); });
    hostKeyPolicy_ = KnownHostsPolicy{knownHostsFile_, config_.host, config_.port};
}

std::string CurlTransferClient::serverRootURL() const {
    return std::string(config_.transferProtocol == TransferProtocol::sftp ? "sftp" : "ftp") +
           "://" + config_.host + ":" + std::to_string(config_.port) + "/";
}

void CurlTransferClient::configureHandle(CURL* h, const std::string& url) {
    const TransferProtocol protocol = config_.transferProtocol;
    curl_easy_setopt(h, CURLOPT_URL, url.c_str());
    curl_easy_setopt(h, CURLOPT_USERPWD, (config_.username + ":" + config_.password).c_str());
    curl_easy_setopt(h, CURLOPT_CONNECTTIMEOUT, 10L);
    curl_easy_setopt(h, CURLOPT_TIMEOUT, 300L);
    curl_easy_setopt(h, CURLOPT_NOSIGNAL, 1L);
    if (isFTPFamily(protocol)) {
        if (config_.ftpPassiveMode) {
            curl_easy_setopt(h, CURLOPT_FTP_USE_EPSV, 1L);
        } else {
            curl_easy_setopt(h, CURLOPT_FTPPORT, "-");
        }
    }
    if (protocol == TransferProtocol::ftps) {
        curl_easy_setopt(h, CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_ALL));
        const long verify = config_.allowSelfSignedCerts ? 0L : 1L;
        curl_easy_setopt(h, CURLOPT_SSL_VERIFYPEER, verify);
        curl_easy_setopt(h, CURLOPT_SSL_VERIFYHOST, verify * 2);
    }
    if (protocol == TransferProtocol::sftp) {
        if (!config_.sshKeyPath.empty()) {
            curl_easy_setopt(h, CURLOPT_SSH_PRIVATE_KEYFILE, config_.sshKeyPath.c_str());
        }
        curl_easy_setopt(h, CURLOPT_SSH_AUTH_TYPES, static_cast<long>(CURLSSH_AUTH_ANY));
        curl_easy_setopt(h, CURLOPT_SSH_KNOWNHOSTS, knownHostsFile_.c_str());
        curl_easy_setopt(h, CURLOPT_SSH_KEYFUNCTION, checkSshHostKey);
        curl_easy_setopt(h, CURLOPT_SSH_KEYDATA, &hostKeyPolicy_);
    }
    if (config_.maxBandwidthKBps > 0) {
        curl_easy_setopt(h, CURLOPT_MAX_RECV_SPEED_LARGE,
                         static_cast<curl_off_t>(config_.maxBandwidthKBps) * 1024);
    }
}

void CurlTransferClient::fail(CURLcode code) const {
    if (code == CURLE_PEER_FAILED_VERIFICATION &&
        config_.transferProtocol == TransferProtocol::sftp) {
        throw FTPError::hostKeyChanged(config_.host, knownHostsFile_);
    }
    throw FTPError::curlExitCode(code, curl_easy_strerror(code));
}

CURLcode CurlTransferClient::perform(CurlSession& session) {
    const CURLcode code = session.perform();
    long opened = 0;
    curl_easy_getinfo(session.easy(), CURLINFO_NUM_CONNECTS, &opened);
    connectionsOpened_ += opened;
    return code;
}

CURLcode CurlTransferClient::perform(EasyHandlePool::Lease& lease) {
    const CURLcode code = perform(*lease.get());
    if (code != CURLE_OK) {
        // One refused CWD or a cut connection can leave the session where every later
        // operation fails; a fresh login costs little beside that.
        lease.discard();
    }
    return code;
}

CURL* CurlTransferClient::handleOf(const EasyHandlePool::Lease& lease) {
    if (!lease) {
        throw FTPError::curlExitCode(-1, "Failed to initialize libcurl");
    }
    return lease.get()->easy();
}

std::string CurlTransferClient::readText(const std::string& url, bool namesOnly, bool headersOnly) {
    auto lease = pool_.acquire();
    CURL* h = handleOf(lease);
    configureHandle(h, url);
    if (namesOnly) {
        curl_easy_setopt(h, CURLOPT_DIRLISTONLY, 1L);
    }
    if (headersOnly) {
        curl_easy_setopt(h, CURLOPT_NOBODY, 1L);
        curl_easy_setopt(h, CURLOPT_HEADER, 1L);
    }
    std::string text;
    curl_easy_setopt(h, CURLOPT_WRITEFUNCTION, appendToData);
    curl_easy_setopt(h, CURLOPT_WRITEDATA, &text);
    if (const CURLcode code = perform(lease); code != CURLE_OK) {
        fail(code);
    }
    return isValidUtf8(text) ? text : std::string{};
}

std::string CurlTransferClient::fetchHeaders(const std::string& name) {
    return readText(config_.baseRemoteURL() + percentEncodedPath(name), false, true);
}

std::string CurlTransferClient::listDirectory(const std::string& url) {
    return readText(url, false, false);
}

std::string CurlTransferClient::listNames(const std::string& url) {
    return readText(url, true, false);
}

void CurlTransferClient::download(const std::string& url, const std::filesystem::path& to,
                                  std::int64_t resumeFrom, const ProgressCallback& onProgress) {
    auto lease = pool_.acquire();
    CURL* h = handleOf(lease);
    configureHandle(h, url);
    // A fresh download truncates any older file here, before the server is contacted.
    std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(to.c_str(), resumeFrom > 0 ? "ab" : "wb"),
                                               std::fclose);
    if (!file) {
        throw FTPError::localFolderNotWritable(to.string());
    }
    if (resumeFrom > 0) {
        curl_easy_setopt(h, CURLOPT_RESUME_FROM_LARGE, static_cast<curl_off_t>(resumeFrom));
    } else if (isFTPFamily(config_.transferProtocol)) {
        // No SIZE before RETR: one round trip less per file. The listing gave the size, and the
        // caller checks the file against it; a resume still asks, to find where to go on from.
        curl_easy_setopt(h, CURLOPT_IGNORE_CONTENT_LENGTH, 1L);
    }
    curl_easy_setopt(h, CURLOPT_WRITEFUNCTION, writeToFile);
    curl_easy_setopt(h, CURLOPT_WRITEDATA, file.get());
    // libssh2 keeps more SFTP reads in flight with a larger buffer: about 40% faster over
    // SFTP (bench/README.md). A cut connection may then lose up to one buffer of bytes.
    curl_easy_setopt(h, CURLOPT_BUFFERSIZE, receiveBufferSize);
    std::optional<ProgressContext> context;
    if (onProgress) {
        // The caller sees whole-file figures: the offset is added to both, unless the total is
        // still unknown (0).
        context.emplace(ProgressContext{[&](std::int64_t downloaded, std::int64_t total) {
            onProgress(downloaded + resumeFrom, total > 0 ? total + resumeFrom : total);
        }});
        curl_easy_setopt(h, CURLOPT_NOPROGRESS, 0L);
        curl_easy_setopt(h, CURLOPT_XFERINFODATA, &*context);
        curl_easy_setopt(h, CURLOPT_XFERINFOFUNCTION, reportProgress);
    }
    if (const CURLcode code = perform(lease); code != CURLE_OK) {
        // Only a first attempt leaves nothing behind; a resumed one keeps what it gained.
        if (resumeFrom == 0) {
            std::error_code ignored;
            std::filesystem::remove(to, ignored);
        }
        fail(code);
    }
}

void CurlTransferClient::removeItem(const std::string& folder, const std::string& item,
                                    const char* ftpVerb, const char* sftpVerb) {
    auto lease = pool_.acquire();
    CURL* h = handleOf(lease);
    std::string command;
    if (isFTPFamily(config_.transferProtocol)) {
        configureHandle(h, config_.remoteURL(percentEncodedPath(folder)));
        // A leading "*" would tell libcurl to ignore the command's failure.
        command = std::string(ftpVerb) + " " + (item.starts_with('*') ? "./" + item : item);
    } else {
        configureHandle(h, serverRootURL());
        std::string path = withLeadingSlash(folder);
        if (!path.ends_with('/')) {
            path += '/';
        }
        command = std::string(sftpVerb) + " " + quotedForSFTP(path + item);
    }
    std::unique_ptr<curl_slist, void (*)(curl_slist*)> commands(
        curl_slist_append(nullptr, command.c_str()), curl_slist_free_all);
    // FTP: after libcurl's own CWDs into the folder; no body, so no listing follows.
    curl_easy_setopt(h, isFTPFamily(config_.transferProtocol) ? CURLOPT_POSTQUOTE : CURLOPT_QUOTE,
                     commands.get());
    curl_easy_setopt(h, CURLOPT_NOBODY, 1L);
    curl_easy_setopt(h, CURLOPT_WRITEFUNCTION, discardBytes);
    if (const CURLcode code = perform(lease); code != CURLE_OK) {
        fail(code);
    }
}

namespace {
// "a/b/c" -> {"a/b", "c"}; "c" -> {"", "c"}.
std::pair<std::string, std::string> splitLast(const std::string& path) {
    std::string p = path;
    while (p.size() > 1 && p.ends_with('/')) {
        p.pop_back();
    }
    const auto slash = p.rfind('/');
    if (slash == std::string::npos) {
        return {"", p};
    }
    return {p.substr(0, slash), p.substr(slash + 1)};
}
}  // namespace

void CurlTransferClient::removeDirectory(const std::string& path) {
    const auto [folder, item] = splitLast(path);
    removeItem(folder, item, "RMD", "rmdir");
}

void CurlTransferClient::removeFile(const std::string& name) {
    const auto [below, item] = splitLast(name);
    std::string folder = config_.remotePath;
    if (!below.empty()) {
        folder += (folder.ends_with('/') ? "" : "/") + below;
    }
    removeItem(folder, item, "DELE", "rm");
}

void CurlTransferClient::probeConnection() {
    CurlSession session;
    if (!session) {
        throw FTPError::curlExitCode(-1, "Failed to initialize libcurl");
    }
    CURL* h = session.easy();
    curl_easy_setopt(h, CURLOPT_URL, serverRootURL().c_str());
    curl_easy_setopt(h, CURLOPT_CONNECTTIMEOUT, 5L);
    curl_easy_setopt(h, CURLOPT_TIMEOUT, 10L);
    curl_easy_setopt(h, CURLOPT_NOBODY, 1L);
    curl_easy_setopt(h, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(h, CURLOPT_WRITEFUNCTION, discardBytes);
    const CURLcode code = perform(session);
    // A refused login still proves that something answers on the port.
    if (code != CURLE_OK && code != CURLE_LOGIN_DENIED) {
        fail(code);
    }
}

std::string percentEncodedPath(std::string_view name) {
    static constexpr std::string_view allowedMarks = "!$&'()*+,-./:;=@_~";
    static constexpr char hex[] = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : name) {
        const auto b = static_cast<unsigned char>(c);
        if (std::isalnum(b) != 0 && b < 0x80) {
            encoded += c;
        } else if (allowedMarks.find(c) != std::string_view::npos) {
            encoded += c;
        } else {
            encoded += '%';
            encoded += hex[b >> 4];
            encoded += hex[b & 0xF];
        }
    }
    return encoded.empty() ? std::string(name) : encoded;
}

bool resolveHost(const std::string& host) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* result = nullptr;
    const int rc = getaddrinfo(host.c_str(), nullptr, &hints, &result);
    if (result != nullptr) {
        freeaddrinfo(result);
    }
    return rc == 0 && result != nullptr;
}

}  // namespace tarnel
