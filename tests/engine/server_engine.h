#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
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
inline std::shared_ptr<SyncEngine> makeServerEngine(EngineFixture& f,
                                                    FileSyncer* fileSyncer = nullptr) {
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

// Writes `content` to `file`, making its folders.
inline void writeFile(const std::filesystem::path& file, const std::string& content) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

// Content in which no two offsets repeat, so any misplaced byte shows.
inline std::string pattern(std::size_t size, unsigned salt = 0) {
    std::string s(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
        s[i] = static_cast<char>((i * 7919 + i / 251 + salt) & 0xFF);
    return s;
}

}  // namespace tarnel::testing
