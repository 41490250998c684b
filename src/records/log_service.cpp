#include "records/log_service.h"

#include "platform/private_folder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <system_error>

namespace tarnel {

const char* logLevelWord(LogLevel level) {
    switch (level) {
        case LogLevel::info:
            return "INFO";
        case LogLevel::success:
            return "OK";
        case LogLevel::warning:
            return "WARN";
        case LogLevel::error:
            return "ERR";
    }
    return "INFO";
}

LogService::LogService(MainLoop& loop, const Clock& clock, std::filesystem::path logFile,
                       std::uintmax_t rotateAtBytes)
    : loop_(loop), clock_(clock), logFile_(std::move(logFile)), rotateAtBytes_(rotateAtBytes) {
    // The log names hosts, users and folders: for its owner's eyes, like the other stores.
    makePrivateFolder(logFile_.parent_path());
}

std::string LogService::formattedLine(const LogEntry& entry) const {
    return "[" + formatLocalTimestamp(clock_, entry.timestamp) + "] " + logLevelWord(entry.level) +
           " " + entry.message;
}

void LogService::setEcho(std::function<void(const std::string&)> echo) {
    queue_.sync([&] { echo_ = std::move(echo); });
}

void LogService::log(const std::string& message, LogLevel level) {
    LogEntry entry{Uuid::random(), clock_.now(), level, message};
    loop_.post([this, entry] {
        auto list = entries_.value();
        list.push_back(entry);
        if (list.size() > maxEntries) list.erase(list.begin(), list.end() - maxEntries);
        entries_.set(std::move(list));
    });
    queue_.async([this, line = formattedLine(entry)] {
        // Appending creates the file when it is missing, e.g. deleted while we run. Failures to
        // write the log are never reported.
        std::error_code ec;
        if (const auto size = std::filesystem::file_size(logFile_, ec); !ec && size >= rotateAtBytes_)
            std::filesystem::rename(logFile_, std::filesystem::path(logFile_) += ".1", ec);
        const std::string text = line + '\n';
        if (const int fd = ::open(logFile_.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
            fd >= 0) {
            ::fchmod(fd, 0600);  // a log an older version made stays readable by others otherwise
            [[maybe_unused]] auto written = ::write(fd, text.data(), text.size());
            ::close(fd);
        }
        if (echo_) echo_(line);
    });
}

void LogService::clear() {
    loop_.post([this] { entries_.set({}); });
}

}  // namespace tarnel
