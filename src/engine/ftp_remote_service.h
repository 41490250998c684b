#pragma once

#include <memory>

#include "engine/remote_service.h"
#include "platform/runtime.h"
#include "transfer/ftp_service.h"

namespace tarnel {

// The engine's remote over FTPService: each blocking libcurl operation runs on the worker pool
// while the engine's task waits on the loop.
class FtpRemoteService final : public RemoteService {
public:
    FtpRemoteService(Runtime& runtime, std::unique_ptr<FTPService> service);

    Task<std::vector<FTPFileEntry>> listFiles() override;
    Task<std::vector<FTPFileEntry>> listFilesAtPath(std::string path) override;
    Task<std::vector<FTPFileEntry>> collectFiles(
        std::string path, int maxDepth, std::optional<std::vector<std::string>> allowedPaths) override;
    Task<ChecksumVerdict> downloadFile(std::string name, std::filesystem::path to,
                                       std::int64_t resumeFrom, ProgressCallback onProgress,
                                       std::optional<std::string> remoteURL) override;
    Task<void> deleteFile(std::string name) override;
    Task<void> deleteDirectory(std::string path) override;

private:
    Runtime& runtime_;
    std::unique_ptr<FTPService> service_;
};

}  // namespace tarnel
