#pragma once

#include <deque>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
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
// window. The list lives on the main loop; its own writer thread replaces the file after a
// change, at most once per `writeInterval`: a burst of small files costs a few writes of the
// whole list, not one each.
class HistoryService {
public:
    static constexpr std::size_t maxEntries = 500;
    static constexpr Duration writeInterval{250};

    HistoryService(MainLoop& loop, std::filesystem::path historyFile);
    ~HistoryService();  // writes a change that pacing held back

    // Callable from any thread.
    void add(HistoryEntry entry);
    // Empties the list; the file then holds an empty array.
    void clear();

    // A deque: each new entry goes in front without moving the 500 behind it.
    const Observable<std::deque<HistoryEntry>>& entries() const { return entries_; }

    // Whether `entry` shows under a search text (in its file name, connection or host, any
    // case) and an optional status.
    static bool matches(const HistoryEntry& entry, const std::string& text,
                        std::optional<TransferStatus> status);
    std::vector<HistoryEntry> filtered(const std::string& text,
                                       std::optional<TransferStatus> status) const;

    // Waits until every change made on the loop so far is in the file. Call on the loop.
    void flush();

private:
    // On the loop: has the list written now, or when the interval since the last write ends.
    void save();
    void queueWrite();
    // On the writer thread.
    void write();

    MainLoop& loop_;
    std::filesystem::path file_;
    Observable<std::deque<HistoryEntry>> entries_;
    std::mutex encodedMutex_;
    std::deque<std::string> encoded_;  // the entries' JSON, in the same order
    bool writeQueued_ = false;
    std::unique_ptr<Timer> pacing_;  // while set, changes wait for it
    bool heldBack_ = false;          // a change waits for the pacing timer
    SerialQueue queue_;  // last: its thread stops before the members its jobs use go
};

}  // namespace tarnel
