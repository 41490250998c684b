#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/task.h"
#include "transfer/ftp_file_entry.h"
#include "transfer/server_features.h"

namespace tarnel {

// What an engine asks of its server, as operations it can await on the main loop. The program
// uses FtpRemoteService (libcurl on the worker pool); fast engine tests use a remote in memory.
// Every operation may throw FTPError.
class RemoteService {
public:
    using ProgressCallback = std::function<void(std::int64_t downloaded, std::int64_t total)>;

    virtual ~RemoteService() = default;

    // Files of the watched folder.
    virtual Task<std::vector<FTPFileEntry>> listFiles() = 0;
    // Files and folders of `path`.
    virtual Task<std::vector<FTPFileEntry>> listFilesAtPath(std::string path) = 0;
    // The walk below `path`, depth-first, descending only towards `allowedPaths`.
    virtual Task<std::vector<FTPFileEntry>> collectFiles(
        std::string path, int maxDepth, std::optional<std::vector<std::string>> allowedPaths) = 0;
    // `onProgress` is called on the thread that moves the bytes, not on the loop. With checksum
    // verification, a server checksum that differs fails with FTPError::checksumMismatch; the
    // verdict says how the file was vouched for otherwise.
    virtual Task<ChecksumVerdict> downloadFile(std::string name, std::filesystem::path to,
                                               std::int64_t resumeFrom,
                                               ProgressCallback onProgress,
                                               std::optional<std::string> remoteURL) = 0;
    virtual Task<void> deleteFile(std::string name) = 0;
    virtual Task<void> deleteDirectory(std::string path) = 0;
};

}  // namespace tarnel
