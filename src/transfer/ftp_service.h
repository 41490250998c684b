#pragma once

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "connections/connection_config.h"
#include "platform/uuid.h"
#include "records/log_service.h"
#include "transfer/curl_transfer_client.h"
#include "transfer/ftp_file_entry.h"

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
    void startDownloadFile(const std::string& name, const std::filesystem::path& to,
                           std::int64_t resumeFrom, ProgressCallback onProgress,
                           const std::optional<std::string>& remoteURL, Completion done);
    // `name` is a path below `remotePath`.
    void startDeleteFile(const std::string& name, Completion done);
    // `path` is a full path from the server root.
    void startDeleteDirectory(const std::string& path, Completion done);

    // DNS, TCP, login, folder: each row is reported to `progress` as it changes; the first
    // failure is raised after its row shows it. Returns the number of files in `remotePath`.
    int testConnectionSteps(const TestProgress& progress);

    const ConnectionConfig& config() const { return config_; }
    CurlTransferClient& client() { return *client_; }

private:
    std::vector<FTPFileEntry> entriesFromNames(const std::vector<std::string>& names);
    void log(const std::string& text, LogLevel level);

    ConnectionConfig config_;
    LogService& logService_;
    std::unique_ptr<CurlTransferClient> client_;
    std::atomic<bool> inFallbackRun_{false};  // the last listing of remotePath read no row
};

}  // namespace tarnel
