#include "records/notification_service.h"

#include <algorithm>

#include "platform/localized.h"
#include "platform/uuid.h"
#include "records/byte_count_format.h"

namespace tarnel {

namespace {

constexpr std::size_t listedNames = 5;

std::string tagged(const std::string& connection, const std::string& text) {
    return "[" + connection + "] " + text;
}

}  // namespace

NotificationService::NotificationService(AppSettings& settings, Notifier& notifier)
    : settings_(settings), notifier_(notifier) {}

void NotificationService::post(const std::string& identifier, const std::string& title,
                               const std::string& body, bool withSound) {
    if (!settings_.notificationsEnabled())
        return;
    notifier_.post(identifier, title, body, withSound);
}

void NotificationService::notifyLocalFolderProblem(const std::string& connection,
                                                   const std::string& message) {
    post("folder-" + connection, localized("Tarnel: Local folder problem"),
         tagged(connection, message));
}

void NotificationService::notifyNewFolder(const std::string& connection,
                                          const std::string& message) {
    post(Uuid::random().toString(), localized("Tarnel: New folder detected"),
         tagged(connection, message));
}

void NotificationService::notifyTransferFailed(const std::string& connection,
                                               const std::string& file, int attempts) {
    post(Uuid::random().toString(), localized("Tarnel: Transfer failed"),
         tagged(connection, file + " " + localizedCount("failed after %n attempts", attempts)));
}

void NotificationService::notifyDownloaded(const std::vector<std::string>& names,
                                           std::int64_t totalBytes, const std::string& connection) {
    const auto n = names.size();
    if (n < static_cast<std::size_t>(std::max(1, settings_.notifyMinFileCount())))
        return;

    const int count = static_cast<int>(n);
    const std::string title = localizedCount("Tarnel: %n file(s) downloaded", count);
    std::string body;
    if (settings_.groupNotifications() && n >= 2) {
        body = tagged(connection, localizedCount("%n file(s)", count) + " (" +
                                      formatFileByteCount(totalBytes) + ")");
    } else {
        body = "[" + connection + "] ";
        for (std::size_t i = 0; i < std::min(n, listedNames); ++i)
            body += (i ? "\n" : "") + names[i];
        if (n > listedNames)
            body += "\n" + localizedCount("...and %n more", count - static_cast<int>(listedNames));
    }
    post(Uuid::random().toString(), title, body, settings_.playSoundOnDownload());
}

void NotificationService::notifyConnectionError(const std::string& connection,
                                                const std::string& message) {
    if (!settings_.notifyErrors())
        return;
    post("error-" + connection, localized("Tarnel: Connection error"), tagged(connection, message));
}

}  // namespace tarnel
