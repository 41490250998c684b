#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "connections/routing_rule.h"
#include "platform/clock.h"
#include "platform/localized.h"
#include "platform/uuid.h"

namespace tarnel {

enum class TransferProtocol { ftp, sftp, ftps };

enum class SubdirectoryOrganization { mirrorStructure, flatAll, lastLevel, customPerFolder };

inline constexpr const char* defaultExcludedExtensions =
    "tmp, temp, part, crdownload, download, partial, filepart, thumbs.db, ds_store";

// The whole definition of one watched server. A plain value: copied, never shared; the engine
// and the transfer service each hold their own copy. Fields in their stored order.
struct ConnectionConfig {
    Uuid id = Uuid::random();
    std::string name = localized("New Connection");
    bool enabled = true;
    TransferProtocol transferProtocol = TransferProtocol::ftp;
    std::string host;
    int port = 21;
    std::string username;
    std::string password;
    std::string sshKeyPath;
    std::string remotePath = "/";
    std::string localPath;
    double pollInterval = 30.0;
    int requiredStableChecks = 2;
    std::string extensionFilter;
    std::string excludedExtensions = defaultExcludedExtensions;
    bool extensionFilterExclude = false;
    bool deleteAfterDownload = true;
    bool organizeByDate = false;
    std::string renamePattern;
    bool postActionEnabled = false;
    std::string postActionPath;
    int maxRetries = 3;
    std::string filenameFilter;
    std::int64_t minFileSize = 0;
    bool organizeByConnection = false;
    bool checksumVerification = false;
    int maxBandwidthKBps = 0;
    bool autoDecompress = false;
    bool autoConnectOnLaunch = true;
    bool scheduleEnabled = false;
    int scheduleStartHour = 8;
    int scheduleEndHour = 20;
    std::vector<bool> scheduleDays = std::vector<bool>(7, true);  // index 0 is Monday
    bool ftpPassiveMode = true;
    bool exploreSubdirectories = false;
    std::vector<std::string> selectedRemotePaths;
    SubdirectoryOrganization subdirectoryOrganization = SubdirectoryOrganization::mirrorStructure;
    std::map<std::string, std::string> customFolderMappings;
    int maxDepth = 3;
    bool autoMonitorNewFolders = false;
    bool deleteEmptyRemoteFolders = false;
    int maxResumeAttempts = 5;
    int maxConcurrentDownloads = 4;
    bool allowSelfSignedCerts = false;
    std::vector<RoutingRule> routingRules;
    FallbackBehavior fallbackBehavior = FallbackBehavior::useLocalFolder;
    std::string fallbackPath;
    std::string sectorHint;
    bool downloadUnspecifiedExtensions = true;

    bool operator==(const ConnectionConfig&) const = default;

    // scheme://host:port/path/ — always ending in "/"; host and path go in unescaped.
    std::string remoteURL(const std::string& path) const;
    std::string baseRemoteURL() const { return remoteURL(remotePath); }

    // Whether `clock`'s present lies in the schedule; the end hour is inclusive, whole.
    bool isWithinSchedule(const Clock& clock) const;
    // "Scheduled 8:00–20:00" while outside the window, nothing otherwise.
    std::optional<std::string> scheduleStatusText(const Clock& clock) const;

    // Whether a listed file is wanted at all: an excluded entry refuses it, then an included
    // one takes it, and a file in neither list gets `downloadUnspecifiedExtensions`. An entry
    // matches the file's extension or its whole name, case aside. Safe on any thread.
    bool shouldDownload(std::string_view filename) const;
};

// "FTP", "SFTP" or "FTPS": the stored raw value and the word shown to users.
const char* protocolName(TransferProtocol p);

// The port the editor sets when the protocol is chosen: FTPS keeps FTP's, TLS being explicit.
int defaultPort(TransferProtocol p);

// "Mirror remote structure" and its kin, as the editor's picker shows them.
std::string displayText(SubdirectoryOrganization organization);

}  // namespace tarnel
