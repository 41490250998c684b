#include "transfer/curl_transfer_client.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstring>
#include <future>
#include <memory>
#include <mutex>
#include <optional>
#include <system_error>
#include <utility>

#include <netdb.h>
#include <sys/socket.h>

#include "transfer/digest.h"
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

// Where a download's bytes go: the file, and the digest of the file when one is asked for.
struct DownloadSink {
    FILE* file = nullptr;
    std::optional<Digest> digest;
    std::filesystem::path path;
    std::int64_t keptBytes = 0;  // of an earlier attempt, digested before the first new byte
    bool keptDigested = true;

    // The bytes a resumed download keeps are read once, before the first new one is written:
    // no digest state outlives an attempt.
    bool digestKept() {
        if (!keptDigested) keptDigested = digest->updateFromFile(path, keptBytes);
        return keptDigested;
    }
};

size_t writeToFile(char* buffer, size_t size, size_t count, void* data) {
    if (buffer == nullptr || data == nullptr) {
        return 0;
    }
    auto& sink = *static_cast<DownloadSink*>(data);
    if (sink.digest && !sink.digestKept()) return 0;
    const size_t written = std::fwrite(buffer, size, count, sink.file);
    if (sink.digest) sink.digest->update(buffer, written * size);
    return written;
}

size_t discardBytes(char*, size_t size, size_t count, void*) {
    return size * count;
}

struct ProgressContext {
    std::function<void(std::int64_t, std::int64_t)> callback;
    std::exception_ptr error;  // what the callback threw; it ended the transfer
};

int reportProgress(void* context, curl_off_t dltotal, curl_off_t dlnow, curl_off_t, curl_off_t) {
    if (context == nullptr) return 0;
    auto& progress = *static_cast<ProgressContext*>(context);
    // An exception must not cross libcurl: it ends the transfer and becomes its error.
    try {
        progress.callback(dlnow, dltotal);
    } catch (...) {
        progress.error = std::current_exception();
        return 1;
    }
    return 0;
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

long seconds(std::chrono::seconds limit) {
    return static_cast<long>(limit.count());
}

// FTP replies that refuse a login: "421 too many connections" at the greeting, "530" to the
// password, as servers that limit sessions per user or address give them.
bool refusesLogin(long reply) {
    return reply == 421 || reply == 530;
}

}  // namespace

CurlTransferClient::CurlTransferClient(ConnectionConfig config,
                                       std::filesystem::path knownHostsFile,
                                       TransferTimeouts timeouts)
    : config_(std::move(config)),
      knownHostsFile_(std::move(knownHostsFile)),
      timeouts_(timeouts),
      sessionLimit_(std::max(1, config_.maxConcurrentDownloads)) {
    static std::once_flag globalInit;
    std::call_once(globalInit, [] { curl_global_init(CURL_GLOBAL_ALL); });
    hostKeyPolicy_ = KnownHostsPolicy{knownHostsFile_, config_.host, config_.port};
}

std::string CurlTransferClient::serverRootURL() const {
    return std::string(config_.transferProtocol == TransferProtocol::sftp ? "sftp" : "ftp") +
           "://" + config_.host + ":" + std::to_string(config_.port) + "/";
}

void CurlTransferClient::configureHandle(CURL* h, const std::string& url, bool endsOnStall) {
    const TransferProtocol protocol = config_.transferProtocol;
    curl_easy_setopt(h, CURLOPT_URL, url.c_str());
    curl_easy_setopt(h, CURLOPT_USERPWD, (config_.username + ":" + config_.password).c_str());
    curl_easy_setopt(h, CURLOPT_CONNECTTIMEOUT, seconds(timeouts_.connect));
    if (endsOnStall) {
        // Less than a byte a second over the whole stall time: nothing is coming any more.
        curl_easy_setopt(h, CURLOPT_LOW_SPEED_LIMIT, 1L);
        curl_easy_setopt(h, CURLOPT_LOW_SPEED_TIME, seconds(timeouts_.stall));
        // With no time limit at all, libcurl (7.88) closes an SFTP file by polling its socket
        // without waiting, thousands of times until the server answers: a core spinning at every
        // download's end. The longest limit it takes (24 days) ends no real transfer; one that
        // reached it would resume.
        if (protocol == TransferProtocol::sftp)
            curl_easy_setopt(h, CURLOPT_TIMEOUT_MS, static_cast<long>(INT_MAX));
    } else {
        curl_easy_setopt(h, CURLOPT_TIMEOUT, seconds(timeouts_.operation));
    }
    curl_easy_setopt(h, CURLOPT_NOSIGNAL, 1L);
    // Each FTP data connection resolves "address:port" anew, and libcurl (before 8.1) keeps every
    // such entry for a minute in a seven-bucket table that it scans at each resolve: at a
    // thousand files a second, tens of thousands of entries and a rate that halves. A session
    // resolves its host once and keeps its connection, so the cache saves nothing.
    curl_easy_setopt(h, CURLOPT_DNS_CACHE_TIMEOUT, 0L);
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

// What an operation keeps alive until it has ended: its session and whatever libcurl was given
// pointers to.
struct CurlTransferClient::Operation {
    explicit Operation(std::string at, Options set = {})
        : url(std::move(at)), options(std::move(set)) {}
    std::string url;
    Options options;
    bool endsOnStall = false;  // a download: no limit on the whole, only on silence
    bool waitedForSession = false;  // refused for the sessions others held, and waited
    // What the operation does once it has ended, before its caller is told; may throw.
    std::function<void(Operation&, CURLcode)> finish;
    Completion done;  // told the result once
    std::optional<EasyHandlePool::Lease> lease;
    long reply = 0;       // the server's last reply code
    std::string text;     // what a listing receives
    std::string replies;  // the server's replies, where the operation asks for them
    std::unique_ptr<FILE, int (*)(FILE*)> file{nullptr, std::fclose};
    DownloadSink sink;
    std::unique_ptr<curl_slist, void (*)(curl_slist*)> commands{nullptr, curl_slist_free_all};
    std::optional<ProgressContext> progress;
};

FTPError CurlTransferClient::failure(CURLcode code, const std::string& detail) const {
    if (code == CURLE_PEER_FAILED_VERIFICATION &&
        config_.transferProtocol == TransferProtocol::sftp) {
        return FTPError::hostKeyChanged(config_.host, knownHostsFile_);
    }
    return FTPError::curlExitCode(code, detail.empty() ? curl_easy_strerror(code) : detail);
}

long CurlTransferClient::countConnections(CURL* handle) {
    long opened = 0;
    curl_easy_getinfo(handle, CURLINFO_NUM_CONNECTS, &opened);
    connectionsOpened_ += opened;
    return opened;
}

void CurlTransferClient::tell(Operation& op, std::exception_ptr error) noexcept {
    Completion done = std::move(op.done);
    op.done = nullptr;
    if (!done) return;
    // A driver's thread has no one to hand an exception to: what the caller's own completion
    // throws ends there.
    try {
        done(std::move(error));
    } catch (...) {
    }
}

void CurlTransferClient::launch(std::shared_ptr<Operation> op) {
    {
        std::lock_guard lock(turnsMutex_);
        if (sessionsInUse_ >= sessionLimit_) {
            waiting_.push_back(std::move(op));
            return;
        }
        ++sessionsInUse_;
    }
    begin(std::move(op));
}

void CurlTransferClient::begin(std::shared_ptr<Operation> op) {
    // An operation that cannot start fails alone: its turn goes to the next, which may start.
    for (; op; op = nextTurn()) {
        try {
            op->lease.emplace(pool_.acquire());
            if (!*op->lease) throw FTPError::curlExitCode(-1, "Failed to initialize libcurl");
            CurlSession& session = *op->lease->get();
            configureHandle(session.easy(), op->url, op->endsOnStall);
            if (op->options) op->options(*op, session.easy());
            drivers_.start(session, [this, op](CURLcode code) { end(op, code); });
            return;
        } catch (...) {
            // The session's state is unknown: it is not lent again.
            if (op->lease) op->lease->discard();
            op->lease.reset();
            tell(*op, std::current_exception());
        }
    }
}

void CurlTransferClient::end(const std::shared_ptr<Operation>& op, CURLcode code) {
    CURL* easy = op->lease->get()->easy();
    // Read now: once back in the pool, the session may serve another operation.
    const std::string detail = op->lease->get()->errorText();
    const long opened = countConnections(easy);
    long reply = 0;
    curl_easy_getinfo(easy, CURLINFO_RESPONSE_CODE, &reply);
    op->reply = reply;
    if (code != CURLE_OK) {
        // One refused CWD or a cut connection can leave the session where every later
        // operation fails; a fresh login costs little beside that.
        op->lease->discard();
    }
    // Back in the pool before anyone learns of the end, so that the next operation finds it.
    op->lease->end();
    if (waitForSession(op, code, opened, reply)) return;
    if (code == CURLE_OK && op->waitedForSession) announceSessionLimit();
    std::exception_ptr error;
    try {
        if (op->finish) op->finish(*op, code);
        if (code != CURLE_OK) throw failure(code, detail);
    } catch (...) {
        error = std::current_exception();
    }
    tell(*op, std::move(error));
    begin(nextTurn());
}

std::shared_ptr<CurlTransferClient::Operation> CurlTransferClient::nextTurn() {
    std::lock_guard lock(turnsMutex_);
    if (!waiting_.empty() && sessionsInUse_ <= sessionLimit_) {
        auto next = std::move(waiting_.front());
        waiting_.pop_front();
        return next;
    }
    --sessionsInUse_;
    return nullptr;
}

bool CurlTransferClient::waitForSession(std::shared_ptr<Operation> op, CURLcode code,
                                        long opened, long reply) {
    // Only a new login can be refused for the sessions others hold.
    if (code == CURLE_OK || opened == 0 || !refusesLogin(reply) ||
        !isFTPFamily(config_.transferProtocol)) {
        return false;
    }
    {
        std::lock_guard lock(turnsMutex_);
        // The sessions this connection has open besides this one: those at work, and those
        // kept idle, which the next operation rides on without a login.
        const int open = sessionsInUse_ - 1 + static_cast<int>(pool_.idleCount());
        // Alone, the refusal is this login's own: a wrong password, or a server full of others.
        if (open < 1) return false;
        // Each refusal takes a session off the limit, and leaves no more than are open: of a
        // burst of logins, those the server took remain. Others at work may be refused too.
        sessionLimit_ = std::max(1, std::min(sessionLimit_ - 1, open));
        sessionLimitUntold_ = true;
        op->waitedForSession = true;
        waiting_.push_front(std::move(op));
    }
    begin(nextTurn());
    return true;
}

void CurlTransferClient::announceSessionLimit() {
    int accepted = 0;
    {
        std::lock_guard lock(turnsMutex_);
        if (!std::exchange(sessionLimitUntold_, false)) return;
        accepted = sessionLimit_;
    }
    if (!sessionLimitListener_) return;
    try {
        sessionLimitListener_(accepted);
    } catch (...) {
        // Only a log line is lost.
    }
}

void CurlTransferClient::stop() {
    std::deque<std::shared_ptr<Operation>> waiting;
    {
        std::lock_guard lock(turnsMutex_);
        waiting.swap(waiting_);
    }
    drivers_.stop();
}

void CurlTransferClient::run(const std::shared_ptr<Operation>& op) {
    // Shared: at stop() the waiter returns while the operation may still be telling its end.
    auto error = std::make_shared<std::exception_ptr>();
    const CURLcode code = drivers_.waitForResult([&](SessionDriver::Done wake) {
        op->done = [error, wake = std::move(wake)](std::exception_ptr e) {
            *error = std::move(e);
            wake(CURLE_OK);
        };
        launch(op);
    });
    if (code != CURLE_OK) throw failure(code);  // the drivers stopped: the program quits
    if (*error) std::rethrow_exception(*error);
}

std::optional<std::string> CurlTransferClient::readText(const std::string& url, Reading reading) {
    auto op = std::make_shared<Operation>(url, [reading](Operation& o, CURL* h) {
        if (reading == Reading::names) {
            curl_easy_setopt(h, CURLOPT_DIRLISTONLY, 1L);
        }
        if (reading == Reading::machineListing) {
            curl_easy_setopt(h, CURLOPT_CUSTOMREQUEST, "MLSD");
        }
        if (reading == Reading::headers) {
            curl_easy_setopt(h, CURLOPT_NOBODY, 1L);
            curl_easy_setopt(h, CURLOPT_HEADER, 1L);
        }
        curl_easy_setopt(h, CURLOPT_WRITEFUNCTION, appendToData);
        curl_easy_setopt(h, CURLOPT_WRITEDATA, &o.text);
    });
    try {
        run(op);
    } catch (const FTPError&) {
        // 500 to 504: the server knows no such command, or not with these arguments.
        if (reading == Reading::machineListing && op->reply >= 500 && op->reply <= 504)
            return std::nullopt;
        throw;
    }
    return isValidUtf8(op->text) ? std::move(op->text) : std::string{};
}

std::string CurlTransferClient::fetchHeaders(const std::string& name) {
    return *readText(remoteFileURL(config_, config_.remotePath, name), Reading::headers);
}

std::string CurlTransferClient::listDirectory(const std::string& url) {
    return *readText(url, Reading::listing);
}

std::string CurlTransferClient::listNames(const std::string& url) {
    return *readText(url, Reading::names);
}

std::optional<std::string> CurlTransferClient::listMachineReadable(const std::string& url) {
    return readText(url, Reading::machineListing);
}

std::shared_ptr<CurlTransferClient::Operation> CurlTransferClient::featuresOperation(
    std::shared_ptr<std::string> replies) {
    // In the watched folder, where the listings go next on the same session.
    auto op = std::make_shared<Operation>(
        remoteFolderURL(config_, config_.remotePath), [](Operation& o, CURL* h) {
            curl_easy_setopt(h, CURLOPT_QUOTE, o.commands.get());
            curl_easy_setopt(h, CURLOPT_NOBODY, 1L);
            curl_easy_setopt(h, CURLOPT_WRITEFUNCTION, discardBytes);
            curl_easy_setopt(h, CURLOPT_HEADERFUNCTION, appendToData);
            curl_easy_setopt(h, CURLOPT_HEADERDATA, &o.replies);
        });
    // A server that knows no FEAT answers 500, which fails nothing: it offers nothing.
    op->commands.reset(curl_slist_append(nullptr, "*FEAT"));
    op->finish = [replies = std::move(replies)](Operation& o, CURLcode) { *replies = o.replies; };
    return op;
}

std::string CurlTransferClient::readFeatures() {
    auto replies = std::make_shared<std::string>();
    run(featuresOperation(replies));
    return *replies;
}

void CurlTransferClient::startReadFeatures(std::shared_ptr<std::string> replies, Completion done) {
    auto op = featuresOperation(std::move(replies));
    op->done = std::move(done);
    launch(std::move(op));
}

void CurlTransferClient::startDownload(const std::string& url, const std::filesystem::path& to,
                                       std::int64_t resumeFrom, ProgressCallback onProgress,
                                       Completion done) {
    startDownload(url, to, resumeFrom, std::move(onProgress), std::nullopt, nullptr,
                  std::move(done));
}

void CurlTransferClient::startDownload(const std::string& url, const std::filesystem::path& to,
                                       std::int64_t resumeFrom, ProgressCallback onProgress,
                                       const std::optional<ChecksumQuery>& checksum,
                                       std::shared_ptr<DownloadChecksum> answer,
                                       Completion done) {
    const bool ftp = isFTPFamily(config_.transferProtocol);
    const long checksumReply = seconds(timeouts_.checksumReply);
    auto op = std::make_shared<Operation>(url, [ftp, resumeFrom, checksumReply](Operation& o,
                                                                                CURL* h) {
        if (resumeFrom > 0) {
            curl_easy_setopt(h, CURLOPT_RESUME_FROM_LARGE, static_cast<curl_off_t>(resumeFrom));
        } else if (ftp) {
            // No SIZE before RETR: one round trip less per file. The listing gave the size, and
            // the caller checks the file against it; a resume still asks, to find where to go on
            // from.
            curl_easy_setopt(h, CURLOPT_IGNORE_CONTENT_LENGTH, 1L);
        }
        curl_easy_setopt(h, CURLOPT_WRITEFUNCTION, writeToFile);
        curl_easy_setopt(h, CURLOPT_WRITEDATA, &o.sink);
        if (o.commands) {
            // Asked in the file's folder once its bytes are all sent; the replies carry the
            // server's digest.
            curl_easy_setopt(h, CURLOPT_POSTQUOTE, o.commands.get());
            curl_easy_setopt(h, CURLOPT_SERVER_RESPONSE_TIMEOUT, checksumReply);
            curl_easy_setopt(h, CURLOPT_HEADERFUNCTION, appendToData);
            curl_easy_setopt(h, CURLOPT_HEADERDATA, &o.replies);
        }
        // libssh2 keeps more SFTP reads in flight with a larger buffer: about 40% faster over
        // SFTP (bench/README.md). A cut connection may then lose up to one buffer of bytes.
        curl_easy_setopt(h, CURLOPT_BUFFERSIZE, receiveBufferSize);
        if (o.progress) {
            curl_easy_setopt(h, CURLOPT_NOPROGRESS, 0L);
            curl_easy_setopt(h, CURLOPT_XFERINFODATA, &*o.progress);
            curl_easy_setopt(h, CURLOPT_XFERINFOFUNCTION, reportProgress);
        }
    });
    // A fresh download truncates any older file here, before the server is contacted.
    op->file.reset(std::fopen(to.c_str(), resumeFrom > 0 ? "abe" : "wbe"));
    if (!op->file) {
        throw FTPError::localFolderNotWritable(to.string());
    }
    op->sink.file = op->file.get();
    if (checksum && answer) {
        op->sink.digest.emplace(checksum->algorithm);
        op->sink.path = to;
        op->sink.keptBytes = std::max<std::int64_t>(resumeFrom, 0);
        op->sink.keptDigested = op->sink.keptBytes == 0;
        for (const std::string& command : checksum->commands)
            op->commands.reset(curl_slist_append(op->commands.release(), command.c_str()));
    }
    if (onProgress) {
        // The caller sees whole-file figures: the offset is added to both, unless the total is
        // still unknown (0).
        op->progress.emplace().callback = [onProgress = std::move(onProgress), resumeFrom](
                                              std::int64_t downloaded, std::int64_t total) {
            onProgress(downloaded + resumeFrom, total > 0 ? total + resumeFrom : total);
        };
    }
    op->endsOnStall = true;
    op->finish = [to, resumeFrom, answer = std::move(answer)](Operation& o, CURLcode code) {
        o.file.reset();  // closed, so that whoever is told finds every byte in it
        if (o.progress && o.progress->error) std::rethrow_exception(o.progress->error);
        if (code == CURLE_OK && o.sink.digest && o.sink.digestKept()) {
            answer->localDigest = o.sink.digest->hex();
            answer->replies = std::move(o.replies);
        }
        // A failed attempt keeps what it received: the next one resumes from there instead of
        // starting a large file over. A first attempt that received nothing leaves nothing.
        std::error_code ec;
        if (code != CURLE_OK && resumeFrom <= 0 && std::filesystem::file_size(to, ec) == 0 && !ec)
            std::filesystem::remove(to, ec);
    };
    op->done = std::move(done);
    launch(std::move(op));
}

void CurlTransferClient::startRemoveItem(const std::string& folder, const std::string& item,
                                         const char* ftpVerb, const char* sftpVerb,
                                         Completion done) {
    const bool ftp = isFTPFamily(config_.transferProtocol);
    std::string command;
    std::string url;
    if (ftp) {
        url = remoteFolderURL(config_, folder);
        // A leading "*" would tell libcurl to ignore the command's failure.
        command = std::string(ftpVerb) + " " + (item.starts_with('*') ? "./" + item : item);
    } else {
        url = serverRootURL();
        std::string path = withLeadingSlash(folder);
        if (!path.ends_with('/')) {
            path += '/';
        }
        command = std::string(sftpVerb) + " " + quotedForSFTP(path + item);
    }
    auto op = std::make_shared<Operation>(url, [ftp](Operation& o, CURL* h) {
        // FTP: after libcurl's own CWDs into the folder; no body, so no listing follows.
        curl_easy_setopt(h, ftp ? CURLOPT_POSTQUOTE : CURLOPT_QUOTE, o.commands.get());
        curl_easy_setopt(h, CURLOPT_NOBODY, 1L);
        curl_easy_setopt(h, CURLOPT_WRITEFUNCTION, discardBytes);
    });
    op->commands.reset(curl_slist_append(nullptr, command.c_str()));
    op->done = std::move(done);
    launch(std::move(op));
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

void CurlTransferClient::startRemoveDirectory(const std::string& path, Completion done) {
    const auto [folder, item] = splitLast(path);
    startRemoveItem(folder, item, "RMD", "rmdir", std::move(done));
}

void CurlTransferClient::startRemoveFile(const std::string& name, Completion done) {
    const auto [below, item] = splitLast(name);
    std::string folder = config_.remotePath;
    if (!below.empty()) {
        folder += (folder.ends_with('/') ? "" : "/") + below;
    }
    startRemoveItem(folder, item, "DELE", "rm", std::move(done));
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
    const CURLcode code = drivers_.waitForResult(
        [&](SessionDriver::Done done) { drivers_.start(session, std::move(done)); });
    countConnections(h);
    // A refused login still proves that something answers on the port.
    if (code != CURLE_OK && code != CURLE_LOGIN_DENIED) {
        throw failure(code, session.errorText());
    }
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
