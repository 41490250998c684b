#include "memory_remote.h"

#include <fstream>

namespace tarnel::testing {

Task<std::vector<FTPFileEntry>> MemoryRemote::listFiles() {
    auto server = server_;
    ++server->listings;
    server->maxListingsInFlight = std::max(server->maxListingsInFlight, ++server->listingsInFlight);
    if (server->listingDelay.count() > 0) co_await delay(loop_, server->listingDelay);
    --server->listingsInFlight;
    if (server->failListingWith) throw *server->failListingWith;
    if (server->beforeListing) server->beforeListing();
    std::vector<FTPFileEntry> out;
    for (const auto& [name, content] : server->files)
        out.push_back({name, static_cast<std::int64_t>(content.size()), false, ""});
    co_return out;
}

Task<std::vector<FTPFileEntry>> MemoryRemote::listFilesAtPath(std::string) {
    co_return co_await listFiles();
}

Task<std::vector<FTPFileEntry>> MemoryRemote::collectFiles(std::string, int,
                                                           std::optional<std::vector<std::string>>) {
    auto rows = co_await listFiles();
    for (auto& r : rows) r.relativePath = r.name;
    co_return rows;
}

Task<ChecksumVerdict> MemoryRemote::downloadFile(std::string name, std::filesystem::path to,
                                      std::int64_t resumeFrom, ProgressCallback onProgress,
                                      std::optional<std::string>) {
    // The engine names the temporary file: the remote file is the name without its suffix and
    // the tag before it, "name.0123456789ab.tarnel-partial".
    if (name.ends_with(".tarnel-partial")) name.resize(name.size() - 15);
    const auto dot = name.rfind('.');
    if (dot != std::string::npos && name.size() - dot == 13 &&
        name.find_first_not_of("0123456789abcdef", dot + 1) == std::string::npos)
        name.resize(dot);
    if (server_->beforeDownload) server_->beforeDownload(name);
    auto server = server_;
    if (server->bytesPerSecond > 0 && server->files.contains(name)) {
        const auto size = static_cast<std::int64_t>(server->files[name].size());
        co_await delay(loop_, std::chrono::seconds(1) * size / server->bytesPerSecond);
    }
    auto it = server->files.find(name);
    if (it == server_->files.end()) throw FTPError::curlExitCode(78, "no such file");
    std::ofstream out(to, resumeFrom > 0 ? std::ios::app | std::ios::binary : std::ios::binary);
    out << it->second.substr(static_cast<std::size_t>(resumeFrom));
    const auto total = static_cast<std::int64_t>(it->second.size());
    if (onProgress) onProgress(total, total);
    co_return ChecksumVerdict{};  // a server in memory offers no checksum
}

Task<void> MemoryRemote::deleteFile(std::string name) {
    server_->files.erase(name);
    co_return;
}

Task<void> MemoryRemote::deleteDirectory(std::string) {
    co_return;
}

}  // namespace tarnel::testing
