#include "engine/ftp_remote_service.h"

namespace tarnel {

FtpRemoteService::FtpRemoteService(Runtime& runtime, std::unique_ptr<FTPService> service)
    : runtime_(runtime), service_(std::move(service)) {}

Task<std::vector<FTPFileEntry>> FtpRemoteService::listFiles() {
    co_return co_await onWorker(runtime_, [this] { return service_->listFiles(); });
}

Task<std::vector<FTPFileEntry>> FtpRemoteService::listFilesAtPath(std::string path) {
    co_return co_await onWorker(runtime_, [this, &path] { return service_->listFiles(path); });
}

Task<std::vector<FTPFileEntry>> FtpRemoteService::collectFiles(
    std::string path, int maxDepth, std::optional<std::vector<std::string>> allowedPaths) {
    co_return co_await onWorker(runtime_, [&] {
        std::vector<FTPFileEntry> into;
        service_->collectFiles(path, "", 0, maxDepth, allowedPaths, into);
        return into;
    });
}

// Downloads and deletes hold no worker thread while they wait: the client's driver runs them.
Task<ChecksumVerdict> FtpRemoteService::downloadFile(std::string name, std::filesystem::path to,
                                                     std::int64_t resumeFrom,
                                                     ProgressCallback onProgress,
                                                     std::optional<std::string> remoteURL) {
    auto verdict = std::make_shared<ChecksumVerdict>();
    co_await whenComplete(runtime_, [&](Completion done) {
        service_->startDownloadFile(name, to, resumeFrom, std::move(onProgress), remoteURL,
                                    verdict, std::move(done));
    });
    co_return *verdict;
}

Task<void> FtpRemoteService::deleteFile(std::string name) {
    co_await whenComplete(runtime_,
                          [&](Completion done) { service_->startDeleteFile(name, std::move(done)); });
}

Task<void> FtpRemoteService::deleteDirectory(std::string path) {
    co_await whenComplete(
        runtime_, [&](Completion done) { service_->startDeleteDirectory(path, std::move(done)); });
}

}  // namespace tarnel
