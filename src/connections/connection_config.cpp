#include "connections/connection_config.h"

#include "connections/extension_list.h"
#include "connections/list_text.h"
#include "platform/foundation_path.h"
#include "platform/localized.h"

namespace tarnel {

const char* protocolName(TransferProtocol p) {
    switch (p) {
        case TransferProtocol::ftp:
            return "FTP";
        case TransferProtocol::sftp:
            return "SFTP";
        case TransferProtocol::ftps:
            return "FTPS";
    }
    return "FTP";
}

int defaultPort(TransferProtocol p) {
    return p == TransferProtocol::sftp ? 22 : 21;
}

std::string displayText(SubdirectoryOrganization organization) {
    switch (organization) {
        case SubdirectoryOrganization::mirrorStructure:
            return localized("Mirror remote structure");
        case SubdirectoryOrganization::flatAll:
            return localized("All files flat (one folder)");
        case SubdirectoryOrganization::lastLevel:
            return localized("Only last folder level");
        case SubdirectoryOrganization::customPerFolder:
            return localized("Custom mapping per folder");
    }
    return {};
}

std::string ConnectionConfig::remoteURL(const std::string& path) const {
    std::string p = path.starts_with('/') ? path : "/" + path;
    // FTPS rides on the ftp scheme: TLS is asked for by an option, explicitly, on the FTP port.
    std::string url = (transferProtocol == TransferProtocol::sftp ? "sftp://" : "ftp://") + host +
                      ":" + std::to_string(port) + p;
    if (!url.ends_with('/'))
        url += '/';
    return url;
}

bool ConnectionConfig::isWithinSchedule(const Clock& clock) const {
    if (!scheduleEnabled)
        return true;
    const std::tm now = clock.localTime(clock.now());
    if (scheduleDays.size() == 7) {
        const int mondayFirst = (now.tm_wday + 6) % 7;  // tm_wday: Sunday 0
        if (!scheduleDays[mondayFirst])
            return false;
    }
    const int h = now.tm_hour, s = scheduleStartHour, e = scheduleEndHour;
    // The end hour belongs to the window, whole; a window over midnight tests today's day only.
    if (e >= s)
        return s <= h && h <= e;
    return h >= s || h <= e;
}

std::optional<std::string> ConnectionConfig::scheduleStatusText(const Clock& clock) const {
    if (!scheduleEnabled || isWithinSchedule(clock))
        return std::nullopt;
    return localized("Scheduled ") + std::to_string(scheduleStartHour) + ":00\u2013" +
           std::to_string(scheduleEndHour) + ":00";
}

bool ConnectionConfig::shouldDownload(std::string_view filename) const {
    const std::string ext = lowerCased(pathExtension(filename));
    const std::string lower = lowerCased(filename);
    auto holds = [&](const std::set<std::string>& entries) {
        return entries.contains(ext) || entries.contains(lower);
    };
    // Both lists are parsed on each call: the record may change between polls, and a few
    // thousand names a poll cost little.
    if (!excludedExtensions.empty() && holds(parseExtensionList(excludedExtensions)))
        return false;
    if (!extensionFilter.empty() && holds(parseExtensionList(extensionFilter)))
        return true;
    return downloadUnspecifiedExtensions;
}

}  // namespace tarnel
