#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <span>
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
    // Where the file was placed, once it has been: until its booking is surely on disk, a
    // restart books it from here rather than fetching it again.
    std::string placedPath;

    bool operator==(const PartialDownload&) const = default;
};

// The records of partial downloads of all engines, kept across restarts in "partials.json".
// Records are keyed by tracking key alone: two connections with the same key share one record.
// Every operation is callable from any thread. A record is on disk when record() returns, before
// the download it describes writes a byte, and its removal with its file when discard()
// returns, so that a crash never leaves a temporary file that no record claims. The rest is
// paced: the writer thread writes removals and the byte count (which transfers update on every
// progress callback) at most once per `progressWriteInterval`, unless a record goes first.
// It also knows which temporary files are being written, by any engine of the fleet, so that no
// two transfers ever write one.
class PartialDownloadTracker {
public:
    static constexpr std::chrono::milliseconds progressWriteInterval{1000};

    // `clock` stamps the records and paces the writes; the wall clock if none is given.
    explicit PartialDownloadTracker(std::filesystem::path partialsFile,
                                    const Clock* clock = nullptr);
    ~PartialDownloadTracker();  // writes a byte count that pacing held back

    PartialDownloadTracker(const PartialDownloadTracker&) = delete;
    PartialDownloadTracker& operator=(const PartialDownloadTracker&) = delete;

    // Inserts or replaces each record under its remotePath, in one write.
    void record(std::span<const PartialDownload> partials);
    void record(const PartialDownload& partial) { record({&partial, 1}); }
    std::optional<PartialDownload> partial(const std::string& remotePath) const;
    void updateProgress(const std::string& remotePath, std::int64_t bytes);
    void incrementResumeAttempts(const std::string& remotePath);
    void markPlaced(const std::string& remotePath, const std::string& placedPath);
    // Removes and returns the records of `connectionId` that an earlier run of the program had
    // marked placed: that run may have ended before the files' bookings reached the disk.
    std::vector<PartialDownload> takePlacedByEarlierRun(const std::string& connectionId);
    // Drops the record, on disk at a paced rate; the temporary file stays.
    void remove(const std::string& remotePath);
    // Drops the record and deletes its temporary file.
    void discard(const std::string& remotePath);

    // A temporary file held for one transfer until the claim is destroyed. A claim may outlive
    // the tracker (a transfer's frame freed late at shutdown): it then lets go of nothing.
    class WritingClaim;
    // The claim of `tempPath`, or nothing while another transfer holds it.
    std::unique_ptr<WritingClaim> claimForWriting(const std::filesystem::path& tempPath);

    // The ".tarnel-partial" files directly in `directory` that no record claims, hidden ones
    // left out. The caller deletes them.
    std::vector<std::filesystem::path> orphanedFiles(const std::filesystem::path& directory) const;

    const std::filesystem::path& storageURL() const { return file_; }

    // Writes what pacing held back and waits until it is on disk (shutdown).
    void flush();

private:
    // Called with mutex_ held: have the records written, soon, by the writer thread.
    void saveLocked();
    // Writes the records as they are now. Called with writeMutex_ held and mutex_ not held.
    void writeNow();
    // Applies `change` to the records and writes them before returning.
    template <typename Change>
    void changeAndWrite(Change change);

    std::filesystem::path file_;
    const Clock& clock_;
    // Taken before mutex_: a snapshot and its write are one step, so no write of older records
    // lands after a newer one.
    std::mutex writeMutex_;
    mutable std::mutex mutex_;
    std::map<std::string, PartialDownload> partials_;
    // Each record's JSON as last written; a record that changes loses its entry.
    std::map<std::string, std::string> encoded_;
    std::set<std::string> placedByEarlierRun_;  // keys, as loaded
    struct Claims {
        std::mutex mutex;
        std::set<std::filesystem::path> paths;
    };
    std::shared_ptr<Claims> claims_ = std::make_shared<Claims>();
    TimePoint lastWrite_;
    bool unsaved_ = false;
    bool writeQueued_ = false;
    SerialQueue queue_;  // last: its thread must stop before the rest goes
};

class PartialDownloadTracker::WritingClaim {
public:
    WritingClaim(std::weak_ptr<Claims> claims, std::filesystem::path path)
        : claims_(std::move(claims)), path_(std::move(path)) {}
    ~WritingClaim();
    WritingClaim(const WritingClaim&) = delete;
    WritingClaim& operator=(const WritingClaim&) = delete;

private:
    std::weak_ptr<Claims> claims_;
    std::filesystem::path path_;
};

}  // namespace tarnel
