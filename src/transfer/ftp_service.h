#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "connections/connection_config.h"
#include "platform/uuid.h"
#include "records/log_service.h"
#include "transfer/curl_transfer_client.h"
#include "transfer/digest.h"
#include "transfer/ftp_file_entry.h"
#include "transfer/server_features.h"

namespace tarnel {

enum class TestStepStatus { pending, running, success, failure };

// What one connection asks of its server: listings, downloads, deletes and the connection test.
// Listings and the test BLOCK and throw FTPError; callers run them on worker threads. Downloads
// and deletes report to a Completion on the transfer's thread, so that the many of a batch
// hold no thread while they wait.
class FTPService {
public:
    // One row of the connection test.
    struct TestStep {
        Uuid id = Uuid::random();
        std::string name;
        TestStepStatus status = TestStepStatus::pending;
        std::optional<std::string> detail;
    };
    using TestProgress = std::function<void(const std::vector<TestStep>&)>;

    FTPService(ConnectionConfig config, LogService& logService,
               std::unique_ptr<CurlTransferClient> client);

    // The files of `remotePath`. A listing no row of which can be read (also an empty one)
    // falls back to a name list with one header request per name for the sizes; the warning
    // that says so is logged once per run of such listings.
    std::vector<FTPFileEntry> listFiles();
    // Files and folders of `atPath`; its name-list fallback has no sizes.
    std::vector<FTPFileEntry> listFiles(const std::string& atPath);
    // Appends the files below `path`, depth first, descending at most `maxDepth` levels and,
    // with `allowedPaths`, only into folders that lie in or lead to one of them. Any failed
    // listing ends the whole walk.
    void collectFiles(const std::string& path, const std::string& relativePath, int depth,
                      int maxDepth, const std::optional<std::vector<std::string>>& allowedPaths,
                      std::vector<FTPFileEntry>& into);

    // Fetches `name` (below `remotePath`), or `remoteURL` as it stands when given, into `to`.
    // With `checksumVerification` the server's own checksum of the file, where it offers one,
    // is compared with the digest of the bytes received: a difference fails the download with
    // FTPError::checksumMismatch; `verdict` (when given) says how it went otherwise.
    void startDownloadFile(const std::string& name, const std::filesystem::path& to,
                           std::int64_t resumeFrom, ProgressCallback onProgress,
                           const std::optional<std::string>& remoteURL,
                           std::shared_ptr<ChecksumVerdict> verdict, Completion done);
    // `name` is a path below `remotePath`.
    void startDeleteFile(const std::string& name, Completion done);
    // `path` is a full path from the server root.
    void startDeleteDirectory(const std::string& path, Completion done);

    // What the server offers beyond plain FTP, asked once (FEAT) and kept for the connection;
    // nothing over SFTP. Blocks on the first call.
    ServerFeatures features();

    // DNS, TCP, login, folder, then what the server offers: each row is reported to `progress` as it changes; the first
    // failure is raised after its row shows it. Returns the number of files in `remotePath`.
    int testConnectionSteps(const TestProgress& progress);

    const ConnectionConfig& config() const { return config_; }
    CurlTransferClient& client() { return *client_; }

private:
    std::vector<FTPFileEntry> entriesFromNames(const std::vector<std::string>& names);
    // The MLSD rows of the folder at `url` where the server speaks MLSD; nullopt where LIST
    // must read it, also after a refused or unreadable MLSD, which turns the connection to LIST.
    std::optional<std::vector<FTPFileEntry>> machineListing(const std::string& url,
                                                            bool includeDirectories);
    void fallBackToLIST(const std::string& why);
    // Runs `then` once the server's features are known: at once, or after asking for them.
    void withFeatures(std::function<void(std::exception_ptr)> then);
    ServerFeatures knownFeatures();
    // Over a connection whose server offers no checksum, said once.
    void tellNoChecksum();
    void log(const std::string& text, LogLevel level);

    ConnectionConfig config_;
    LogService& logService_;
    std::unique_ptr<CurlTransferClient> client_;
    std::atomic<bool> inFallbackRun_{false};  // the last listing of remotePath read no row
    std::mutex featuresMutex_;
    std::optional<ServerFeatures> features_;
    std::atomic<bool> listsWithLIST_{false};     // MLSD failed once: LIST from then on
    std::atomic<bool> toldNoChecksum_{false};
};

}  // namespace tarnel
