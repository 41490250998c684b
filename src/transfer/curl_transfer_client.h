#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "connections/connection_config.h"
#include "platform/completion.h"
#include "transfer/easy_handle_pool.h"
#include "transfer/ftp_error.h"
#include "transfer/remote_url.h"
#include "transfer/server_features.h"
#include "transfer/session_driver.h"
#include "transfer/ssh_known_hosts.h"

namespace tarnel {

// (downloaded, total) in whole-file bytes; a total of 0 means unknown.
using ProgressCallback = std::function<void(std::int64_t downloaded, std::int64_t total)>;

// What a download asked with a ChecksumQuery brings back, for the caller to compare.
struct DownloadChecksum {
    std::string localDigest;  // of the whole local file, lower-case hex
    std::string replies;      // the server's replies, the digest's last
};

// How long operations may take. A download ends only when no byte has come for `stall`, so that
// a large file under a bandwidth cap still arrives; every other operation ends at `operation`.
struct TransferTimeouts {
    std::chrono::seconds connect{10};
    std::chrono::seconds operation{300};
    std::chrono::seconds stall{60};
    // For every reply of a download that asks the server for its checksum: the server reads the
    // whole file before it answers, half an hour for some hundred GB, where libcurl's own limit
    // of two minutes would fail every attempt at a large file.
    std::chrono::seconds checksumReply{1800};
};

// The one place that talks libcurl. Turns a connection record into libcurl options and offers
// operations that fail with FTPError: listings block, never to be called on the main thread;
// downloads and removals report to a Completion. Callable from several threads at
// once; each operation borrows its own easy handle from a small pool, so consecutive operations
// reuse the session a handle keeps open; they run on the client's driver threads.
// No more than `maxConcurrentDownloads` sessions are open at once: further operations wait
// their turn, and a session that ends one operation goes straight on to the next, without
// waiting for whoever asked for it. A server that refuses a login for too many sessions
// lowers that number to the sessions it accepted. Whatever fails on a driver's thread becomes
// that operation's error; no exception leaves one.
class CurlTransferClient {
public:
    // Told the number of sessions the server accepts, when refused logins have lowered it.
    using SessionLimitListener = std::function<void(int accepted)>;

    // SFTP host keys are trusted on first use and recorded in `knownHostsFile`; a key that
    // differs from the recorded one refuses the connection.
    CurlTransferClient(ConnectionConfig config, std::filesystem::path knownHostsFile,
                       TransferTimeouts timeouts = {});

    CurlTransferClient(const CurlTransferClient&) = delete;
    CurlTransferClient& operator=(const CurlTransferClient&) = delete;

    // Header text of a file below `remotePath`; "" if it is not UTF-8.
    std::string fetchHeaders(const std::string& name);
    // Long listing of the folder at `url` (ending in "/"); "" if it is not UTF-8.
    std::string listDirectory(const std::string& url);
    // Bare names of the folder at `url`; "" if it is not UTF-8.
    std::string listNames(const std::string& url);
    // MLSD of the folder at `url`; "" if it is not UTF-8; nullopt if the server refuses the
    // command itself. FTP only.
    std::optional<std::string> listMachineReadable(const std::string& url);
    // The replies of a session that sent FEAT, in the login folder. FTP only.
    std::string readFeatures();
    // The same, told to `done`; `replies` holds them by then.
    void startReadFeatures(std::shared_ptr<std::string> replies, Completion done);
    // Fetches `url` into `to`, appending from `resumeFrom` when that is above 0. A failed
    // attempt keeps the bytes it received, so that the next one resumes; a first attempt that
    // received none leaves no file.
    // `done` runs on the driver's thread once the file is closed; `onProgress` there too.
    void startDownload(const std::string& url, const std::filesystem::path& to,
                       std::int64_t resumeFrom, ProgressCallback onProgress, Completion done);
    // The same, with the digest of `checksum` computed of the bytes as they are written (those
    // a resume keeps are read once first) and the server asked for its own after the transfer:
    // both are in `answer` when `done` is told of a success. FTP only.
    void startDownload(const std::string& url, const std::filesystem::path& to,
                       std::int64_t resumeFrom, ProgressCallback onProgress,
                       const std::optional<ChecksumQuery>& checksum,
                       std::shared_ptr<DownloadChecksum> answer, Completion done);
    // `path` is the folder's path as the listing named it: `remotePath` and the folders below.
    void startRemoveDirectory(const std::string& path, Completion done);
    // `name` is a path below `remotePath`.
    void startRemoveFile(const std::string& name, Completion done);
    // Both address exactly what listing and download address. Over FTP a URL's path is relative
    // to the login folder (libcurl changes into each of its folders from there, also on a reused
    // session), so the command goes after libcurl has entered the item's folder and names the
    // item alone. SFTP paths are absolute.

    // Reaches the server without logging in; a refused login counts as an answer. Always on a
    // new handle, so it proves the server is there now.
    void probeConnection();

    // Set before the first operation.
    void onSessionLimit(SessionLimitListener listener) { sessionLimitListener_ = std::move(listener); }

    // Drops the sessions kept open, so the next operation logs in afresh.
    void closeIdleConnections() { pool_.closeAll(); }
    // At quit: ends every operation, running or waiting for its turn, without telling whoever
    // asked for it, and refuses later ones the same way. A download's temporary file stays
    // as far as it came, for the next start to resume; a blocking call fails.
    void stop();
    // Connections libcurl has opened so far: a reused session opens none, though each FTP
    // transfer opens its data connection.
    std::int64_t connectionsOpened() const { return connectionsOpened_; }

    const ConnectionConfig& config() const { return config_; }
    const std::filesystem::path& knownHostsFile() const { return knownHostsFile_; }

    // scheme://host:port/ — FTPS rides on the ftp scheme.
    std::string serverRootURL() const;

private:
    struct Operation;
    using Options = std::function<void(Operation&, CURL*)>;

    void configureHandle(CURL* handle, const std::string& url, bool endsOnStall);
    // Runs `op` on `url` with the connection's options and then its own, on a session of its
    // own as soon as one is free; its `done` is told the result, on a driver's thread.
    void launch(std::shared_ptr<Operation> op);
    // launch(), then waits for the result and throws its failure.
    void run(const std::shared_ptr<Operation>& op);
    // Starts `op` on a session; the caller holds one of the `sessionLimit_` turns for it. An
    // operation that cannot start is told why, and its turn goes on.
    void begin(std::shared_ptr<Operation> op);
    // After an operation: counts its connections and gives its session back, unless the
    // operation failed: such a session is not used again. Then tells the caller, and passes
    // the turn on to the operation that has waited longest.
    void end(const std::shared_ptr<Operation>& op, CURLcode code);
    // Gives up the caller's turn: the operation that has waited longest gets it, if the session
    // limit still has room for it.
    std::shared_ptr<Operation> nextTurn();
    // A login refused while other sessions of this connection are open: the server limits
    // sessions. `op` waits for a running one to end, and the limit becomes what the server
    // took. False for a refusal of this login alone.
    bool waitForSession(std::shared_ptr<Operation> op, CURLcode code, long opened, long reply);
    // Tells the listener the session limit, once an operation that waited for a session has
    // worked under it: each refusal of a burst of logins lowers it, the last to what holds.
    void announceSessionLimit();
    // Adds the connections `handle` opened to the count, and returns them.
    long countConnections(CURL* handle);
    // Tells the caller of `op` its result, once; nothing leaves here.
    static void tell(Operation& op, std::exception_ptr error) noexcept;
    enum class Reading { listing, names, machineListing, headers };
    // nullopt only for a machine listing the server refuses.
    std::optional<std::string> readText(const std::string& url, Reading reading);
    // Sends FEAT; its replies go to `replies` once the operation has ended.
    std::shared_ptr<Operation> featuresOperation(std::shared_ptr<std::string> replies);
    // Removes `item` of `folder` (a path from the server root) with the FTP command `ftpVerb`
    // or the SFTP command `sftpVerb`.
    void startRemoveItem(const std::string& folder, const std::string& item, const char* ftpVerb,
                         const char* sftpVerb, Completion done);
    // The FTPError users read for `code`.
    // `detail`: the session's own words for the failure, when it has any.
    FTPError failure(CURLcode code, const std::string& detail = {}) const;

    ConnectionConfig config_;
    std::filesystem::path knownHostsFile_;
    TransferTimeouts timeouts_;
    KnownHostsPolicy hostKeyPolicy_;
    EasyHandlePool pool_;
    std::atomic<std::int64_t> connectionsOpened_{0};
    SessionLimitListener sessionLimitListener_;
    std::mutex turnsMutex_;
    int sessionLimit_;                              // turns there are
    bool sessionLimitUntold_ = false;               // lowered since the listener last heard
    int sessionsInUse_ = 0;                         // turns held
    std::deque<std::shared_ptr<Operation>> waiting_;  // for a turn, oldest first
    // After the pool: operations they end on going give their sessions back to a pool still there.
    SessionDrivers drivers_;
};

// Whether the system resolver knows `host`.
bool resolveHost(const std::string& host);

}  // namespace tarnel
