#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/main_loop.h"
#include "platform/observable.h"
#include "platform/uuid.h"
#include "records/journal.h"

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

// The last 500 transfers, good and bad, newest first, for the history window. The list lives
// on the main loop; each entry is also a row of the journal, written by the caller and committed
// with the journal's next commit: an entry costs a row, not a rewrite. The journal keeps entries
// beyond the 500 for `keptFor`, then drops them when the program starts.
class HistoryService {
public:
    static constexpr std::size_t maxEntries = 500;
    static constexpr std::chrono::hours keptFor{24 * 365};

    // `historyFile` is the store of older versions, moved into the journal at the first start.
    HistoryService(MainLoop& loop, std::shared_ptr<Journal> journal,
                   const std::filesystem::path& historyFile);
    // With the journal "journal.db" beside `historyFile`.
    HistoryService(MainLoop& loop, const std::filesystem::path& historyFile);

    // Callable from any thread.
    void add(HistoryEntry entry);
    // Empties the list and the journal's history.
    void clear();

    // A deque: each new entry goes in front without moving the 500 behind it.
    const Observable<std::deque<HistoryEntry>>& entries() const { return entries_; }

    // Whether `entry` shows under a search text (in its file name, connection or host, any
    // case) and an optional status.
    static bool matches(const HistoryEntry& entry, const std::string& text,
                        std::optional<TransferStatus> status);
    std::vector<HistoryEntry> filtered(const std::string& text,
                                       std::optional<TransferStatus> status) const;

    // Waits until every change made on the loop so far is committed. Call on the loop.
    void flush();

private:
    MainLoop& loop_;
    std::shared_ptr<Journal> journal_;
    Observable<std::deque<HistoryEntry>> entries_;
};

}  // namespace tarnel
