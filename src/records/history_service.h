#pragma once

#include <atomic>
#include <deque>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/main_loop.h"
#include "platform/observable.h"
#include "platform/serial_queue.h"
#include "platform/uuid.h"

namespace tarnel {

enum class TransferStatus { success, error, retryExhausted };

// "success", "error", "retryExhausted": the form in the history file.
const char* rawValue(TransferStatus status);
std::optional<TransferStatus> transferStatusFromRaw(const std::string& raw);
// "Success", "Error", "Retry Failed", localised.
std::string displayText(TransferStatus status);

struct HistoryEntry {
    Uuid id;
    TimePoint timestamp;
    std::string filename;
    std::string finalFilename;
    std::int64_t sizeBytes = 0;
    std::string sourceHost;
    std::string sourcePath;
    std::string destinationPath;
    std::string connectionName;
    TransferStatus status = TransferStatus::success;
    std::optional<std::string> errorMessage;

    bool operator==(const HistoryEntry&) const = default;
};

// The last 500 transfers, good and bad, newest first, kept in "history.json" for the history
// window. The list lives on the main loop; its own writer thread replaces the file after each
// change with a snapshot of the list.
class HistoryService {
public:
    static constexpr std::size_t maxEntries = 500;

    HistoryService(MainLoop& loop, std::filesystem::path historyFile);

    // Callable from any thread.
    void add(HistoryEntry entry);
    // Empties the list; the file then holds an empty array.
    void clear();

    const Observable<std::vector<HistoryEntry>>& entries() const { return entries_; }

    // Whether `entry` shows under a search text (in its file name, connection or host, any
    // case) and an optional status.
    static bool matches(const HistoryEntry& entry, const std::string& text,
                        std::optional<TransferStatus> status);
    std::vector<HistoryEntry> filtered(const std::string& text,
                                       std::optional<TransferStatus> status) const;

    // Waits until every change handed to the writer is in the file (tests, shutdown).
    void flush() { queue_.drain(); }

private:
    void save();

    MainLoop& loop_;
    std::filesystem::path file_;
    Observable<std::vector<HistoryEntry>> entries_;
    std::deque<std::string> encoded_;  // the entries' JSON, in the same order
    std::atomic<std::uint64_t> savedGeneration_{0};
    SerialQueue queue_;  // last: its thread stops before the members its jobs use go
};

}  // namespace tarnel
