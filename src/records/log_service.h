#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/main_loop.h"
#include "platform/observable.h"
#include "platform/serial_queue.h"
#include "platform/uuid.h"
#include "records/log_file.h"

namespace tarnel {

enum class LogLevel { info, success, warning, error };

// "INFO", "OK", "WARN", "ERR": the level's word in the file.
const char* logLevelWord(LogLevel level);

struct LogEntry {
    Uuid id;
    TimePoint timestamp;
    LogLevel level = LogLevel::info;
    std::string message;
};

// The one sink for what the program tells about its work: the last 100 entries in memory for
// the log window, every entry appended to the log file by its own writer thread. A file that has
// reached `rotateAtBytes` becomes "<name>.1" (replacing the one before) and a new file begins, so
// months of unattended running keep to about twice that.
class LogService {
public:
    static constexpr std::size_t maxEntries = 100;
    static constexpr std::uintmax_t defaultRotateAtBytes = 10'000'000;
    static constexpr std::chrono::milliseconds writePace{100};

    LogService(MainLoop& loop, const Clock& clock, std::filesystem::path logFile,
               std::uintmax_t rotateAtBytes = defaultRotateAtBytes);

    // Callable from any thread. Callers compose "[name] text"; the service adds time and level.
    void log(const std::string& message, LogLevel level = LogLevel::info);
    // Empties the in-memory list; the file stays.
    void clear();

    // "[yyyy-MM-dd HH:mm:ss] WORD message", without the newline.
    std::string formattedLine(const LogEntry& entry) const;

    // Also hands each formatted line to `echo` (on the writer thread): the headless runner
    // prints the log on standard output.
    void setEcho(std::function<void(const std::string&)> echo);

    const Observable<std::vector<LogEntry>>& entries() const { return entries_; }
    const std::filesystem::path& logFileURL() const { return logFile_; }

    // Waits until every line logged so far is in the file (tests, shutdown).
    void flush();

private:
    // On the writer thread: every line given since the last write, in one write, at most one
    // write per `writePace`: a burst of lines costs one wake-up of the writer, not one a line.
    void writePending();

    MainLoop& loop_;
    const Clock& clock_;
    std::filesystem::path logFile_;
    Observable<std::vector<LogEntry>> entries_;
    std::mutex pendingMutex_;
    std::condition_variable flushing_;  // cuts a paced wait short
    std::vector<std::string> pending_;
    bool writeQueued_ = false;
    int flushers_ = 0;
    std::chrono::steady_clock::time_point lastWrite_;  // the writer's
    LogFile file_;  // the writer's; goes after the queue has stopped
    std::function<void(const std::string&)> echo_;
    SerialQueue queue_;  // last: its thread stops before the members its jobs use go
};

}  // namespace tarnel
