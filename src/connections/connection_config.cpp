#include "connections/connection_config.h"

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

std::string ConnectionConfig::remoteURL(const std::string& path) const {
    std::string p = path.starts_with('/') ? path : "/" + path;
    // FTPS rides on the ftp scheme: TLS is asked for by an option, explicitly, on the FTP port.
    std::string url = (transferProtocol == TransferProtocol::sftp ? "sftp://" : "ftp://") + host +
                      ":" + std::to_string(port) + p;
    if (!url.ends_with('/')) url += '/';
    return url;
}

bool ConnectionConfig::isWithinSchedule(const Clock& clock) const {
    if (!scheduleEnabled) return true;
    const std::tm now = clock.localTime(clock.now());
    if (scheduleDays.size() == 7) {
        const int mondayFirst = (now.tm_wday + 6) % 7;  // tm_wday: Sunday 0
        if (!scheduleDays[mondayFirst]) return false;
    }
    const int h = now.tm_hour, s = scheduleStartHour, e = scheduleEndHour;
    // The end hour belongs to the window, whole; a window over midnight tests today's day only.
    if (e >= s) return s <= h && h <= e;
    return h >= s || h <= e;
}

std::optional<std::string> ConnectionConfig::scheduleStatusText(const Clock& clock) const {
    if (!scheduleEnabled || isWithinSchedule(clock)) return std::nullopt;
    return localized("Scheduled ") + std::to_string(scheduleStartHour) + ":00\u2013" +
           std::to_string(scheduleEndHour) + ":00";
}

}  // namespace tarnel
