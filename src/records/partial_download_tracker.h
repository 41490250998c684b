#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/serial_queue.h"

namespace tarnel {

// One download under way or interrupted, whose ".tarnel-partial" file may be continued.
struct PartialDownload {
    std::string remotePath;  // the tracking key, not a full path
    std::string localTempPath;
    std::int64_t expectedSize = 0;
    std::int64_t downloadedBytes = 0;
    std::string connectionId;
    TimePoint startedAt;
    TimePoint lastResumedAt;
    int resumeAttempts = 0;

    bool operator==(const PartialDownload&) const = default;
};

// The records of partial downloads of all engines, kept across restarts in "partials.json".
// Records are keyed by tracking key alone: two connections with the same key share one record.
// Every operation is callable from any thread and changes the records at once; the writer
// thread replaces the file soon after, one write covering all changes made meanwhile.
// updateProgress, which transfers call on every progress callback, writes at most once per
// `progressWriteInterval`, so the file holds a recent byte count without a write per packet.
class PartialDownloadTracker {
public:
    static constexpr std::chrono::milliseconds progressWriteInterval{1000};

    // `clock` stamps the records and paces the writes; the wall clock if none is given.
    explicit PartialDownloadTracker(std::filesystem::path partialsFile,
                                    const Clock* clock = nullptr);
    ~PartialDownloadTracker();  // writes a byte count that pacing held back

    PartialDownloadTracker(const PartialDownloadTracker&) = delete;
    PartialDownloadTracker& operator=(const PartialDownloadTracker&) = delete;

    // Inserts or replaces the record under its remotePath.
    void record(const PartialDownload& partial);
    std::optional<PartialDownload> partial(const std::string& remotePath) const;
    void updateProgress(const std::string& remotePath, std::int64_t bytes);
    void incrementResumeAttempts(const std::string& remotePath);
    // Drops the record; the temporary file stays.
    void remove(const std::string& remotePath);
    // Drops the record and deletes its temporary file.
    void discard(const std::string& remotePath);

    // The ".tarnel-partial" files directly in `directory` that no record claims, hidden ones
    // left out. The caller deletes them.
    std::vector<std::filesystem::path> orphanedFiles(const std::filesystem::path& directory) const;

    const std::filesystem::path& storageURL() const { return file_; }

    // Writes what pacing held back and waits until it is on disk (shutdown).
    void flush();

private:
    // Called with mutex_ held: have the records written, soon, by the writer thread.
    void saveLocked();

    std::filesystem::path file_;
    const Clock& clock_;
    mutable std::mutex mutex_;
    std::map<std::string, PartialDownload> partials_;
    TimePoint lastWrite_;
    bool unsaved_ = false;
    bool writeQueued_ = false;
    SerialQueue queue_;  // last: its thread must stop before the rest goes
};

}  // namespace tarnel
