#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "engine/remote_service.h"
#include "platform/main_loop.h"
#include "transfer/ftp_error.h"

namespace tarnel::testing {

// A server in memory for fast engine tests: a flat folder of named contents. Listings take
// `listingDelay` of virtual time, so a test can hold a poll in flight while time moves.
struct MemoryServer {
    std::map<std::string, std::string> files;
    Duration listingDelay{0};
    std::int64_t bytesPerSecond = 0;  // a download takes size / rate of virtual time; 0: none
    std::optional<FTPError> failListingWith;  // every listing fails while set
    // Called before each listing and download; may throw anything.
    std::function<void()> beforeListing;
    std::function<void(const std::string& name)> beforeDownload;
    int listings = 0;
    int listingsInFlight = 0;
    int maxListingsInFlight = 0;
};

class MemoryRemote final : public RemoteService {
public:
    MemoryRemote(MainLoop& loop, std::shared_ptr<MemoryServer> server)
        : loop_(loop), server_(std::move(server)) {}

    Task<std::vector<FTPFileEntry>> listFiles() override;
    Task<std::vector<FTPFileEntry>> listFilesAtPath(std::string path) override;
    Task<std::vector<FTPFileEntry>> collectFiles(
        std::string path, int maxDepth, std::optional<std::vector<std::string>> allowed) override;
    Task<ChecksumVerdict> downloadFile(std::string name, std::filesystem::path to,
                                       std::int64_t resumeFrom, ProgressCallback onProgress,
                                       std::optional<std::string> remoteURL) override;
    Task<void> deleteFile(std::string name) override;
    Task<void> deleteDirectory(std::string path) override;

private:
    MainLoop& loop_;
    std::shared_ptr<MemoryServer> server_;
};

}  // namespace tarnel::testing
