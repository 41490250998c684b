#include "records/log_service.h"

#include "platform/private_folder.h"

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
    : loop_(loop), clock_(clock), logFile_(std::move(logFile)), file_(logFile_, rotateAtBytes) {
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
    std::string line = formattedLine(entry);
    loop_.post([this, entry = std::move(entry)] {
        entries_.update([&](std::vector<LogEntry>& list) {
            list.push_back(entry);
            if (list.size() > maxEntries) list.erase(list.begin(), list.end() - maxEntries);
        });
    });
    {
        std::lock_guard lock(pendingMutex_);
        pending_.push_back(std::move(line));
        if (writeQueued_) return;  // the write in the queue takes this line too
        writeQueued_ = true;
    }
    queue_.async([this] { writePending(); });
}

void LogService::writePending() {
    std::vector<std::string> lines;
    {
        std::unique_lock lock(pendingMutex_);
        flushing_.wait_until(lock, lastWrite_ + writePace, [this] { return flushers_ > 0; });
        lines.swap(pending_);
        writeQueued_ = false;
    }
    lastWrite_ = std::chrono::steady_clock::now();
    file_.append(lines);
    if (echo_)
        for (const auto& line : lines) echo_(line);
}

void LogService::flush() {
    {
        std::lock_guard lock(pendingMutex_);
        ++flushers_;
    }
    flushing_.notify_all();
    queue_.drain();
    std::lock_guard lock(pendingMutex_);
    --flushers_;
}

void LogService::clear() {
    loop_.post([this] { entries_.set({}); });
}

}  // namespace tarnel
