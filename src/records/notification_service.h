#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/notifier.h"
#include "records/app_settings.h"

namespace tarnel {

// Turns engine events into user notifications, as the settings allow. Keeps no state: folder
// problems and connection errors carry a fixed identifier per connection, so a repeating
// problem shows once; the others accumulate. Called on the main loop.
class NotificationService {
public:
    NotificationService(AppSettings& settings, Notifier& notifier);

    void notifyLocalFolderProblem(const std::string& connection, const std::string& message);
    void notifyNewFolder(const std::string& connection, const std::string& message);
    void notifyTransferFailed(const std::string& connection, const std::string& file, int attempts);
    // Silent below `notifyMinFileCount` files.
    void notifyDownloaded(const std::vector<std::string>& names, std::int64_t totalBytes,
                          const std::string& connection);
    // Also needs `notifyErrors`; the caller decides from which failed attempt on to report.
    void notifyConnectionError(const std::string& connection, const std::string& message);

private:
    void post(const std::string& identifier, const std::string& title, const std::string& body,
              bool withSound = true);

    AppSettings& settings_;
    Notifier& notifier_;
};

}  // namespace tarnel
