#pragma once

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "engine/ftp_remote_service.h"
#include "engine_fixture.h"
#include "transfer/curl_transfer_client.h"
#include "transfer/ftp_service.h"

namespace tarnel::testing {

// An engine of the fixture's `config` that talks to a real server, with the fixture's syncer
// or `fileSyncer`.
inline std::shared_ptr<SyncEngine> makeServerEngine(EngineFixture& f, FileSyncer* fileSyncer = nullptr) {
    auto client = std::make_unique<CurlTransferClient>(f.config, f.dir / "known_hosts");
    auto service = std::make_unique<FTPService>(f.config, f.logService, std::move(client));
    return std::make_shared<SyncEngine>(
        f.config, std::make_unique<FtpRemoteService>(f.runtime, std::move(service)),
        std::make_unique<DownloadTracker>(f.partials.journal(), f.settingsStore,
                                          f.config.id.toString()),
        f.engineServices(fileSyncer));
}

// Every file below `root`, as sorted relative paths.
inline std::vector<std::string> filesBelow(const std::filesystem::path& root) {
    std::vector<std::string> out;
    std::error_code ec;
    for (auto it = std::filesystem::recursive_directory_iterator(root, ec);
         it != std::filesystem::recursive_directory_iterator(); ++it)
        if (it->is_regular_file()) out.push_back(std::filesystem::relative(it->path(), root).string());
    std::sort(out.begin(), out.end());
    return out;
}

}  // namespace tarnel::testing
