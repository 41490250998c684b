#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "records/journal.h"

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

// The records of partial downloads of all engines, one row each in the journal, keyed by
// connection and tracking key: two connections often fetch the same remote path ("/scan.pdf"
// from two servers), and neither may resume, place or book by the other's record.
// Every operation is callable from any thread. A record is committed when record() returns,
// before the download it describes writes a byte, and its removal with its file when discard()
// returns, so that a crash never leaves a temporary file that no record claims. The byte count
// (which transfers update on every progress callback) is written at most once per
// `progressWriteInterval`; removals go with the journal's next commit.
// It also knows which temporary files are being written, and which names files are about to be
// placed under, by any engine of the fleet, so that no two transfers ever write one.
class PartialDownloadTracker {
public:
    static constexpr std::chrono::milliseconds progressWriteInterval{1000};

    // `partialsFile` is the store of older versions, moved into the journal at the first start.
    // `clock` stamps the records and paces the writes; the wall clock if none is given.
    PartialDownloadTracker(std::shared_ptr<Journal> journal,
                           const std::filesystem::path& partialsFile,
                           const Clock* clock = nullptr);
    // With the journal "journal.db" beside `partialsFile`.
    explicit PartialDownloadTracker(const std::filesystem::path& partialsFile,
                                    const Clock* clock = nullptr);
    ~PartialDownloadTracker();  // writes a byte count that pacing held back

    PartialDownloadTracker(const PartialDownloadTracker&) = delete;
    PartialDownloadTracker& operator=(const PartialDownloadTracker&) = delete;

    // Inserts or replaces each record under its connection and remotePath, in one commit.
    void record(std::span<const PartialDownload> partials);
    void record(const PartialDownload& partial) { record({&partial, 1}); }
    std::optional<PartialDownload> partial(const std::string& connectionId,
                                           const std::string& remotePath) const;
    void updateProgress(const std::string& connectionId, const std::string& remotePath,
                        std::int64_t bytes);
    void incrementResumeAttempts(const std::string& connectionId, const std::string& remotePath);
    // Marks the record placed at `placedPath`; the file may go there once the mark is on disk.
    // Without `then`, that is when this returns; with it, when `then` is called, from any thread:
    // marks made close together then share a commit.
    void markPlaced(const std::string& connectionId, const std::string& remotePath,
                    const std::string& placedPath, std::function<void()> then = {});
    // Removes and returns the records of `connectionId` that an earlier run of the program had
    // marked placed: that run may have ended before the files' bookings reached the disk.
    std::vector<PartialDownload> takePlacedByEarlierRun(const std::string& connectionId);
    // Drops the record; the temporary file stays.
    void remove(const std::string& connectionId, const std::string& remotePath);
    // Drops the record and deletes its temporary file.
    void discard(const std::string& connectionId, const std::string& remotePath);
    // Drops the records of a deleted connection; their files are orphans from then on.
    void removeConnection(const std::string& connectionId);

    // A file held for one transfer until the claim is destroyed: a temporary file being written,
    // or the name a file is about to be placed under. A claim may outlive the tracker (a
    // transfer's frame freed late at shutdown): it then lets go of nothing.
    class WritingClaim;
    // The claim of `path`, or nothing while another transfer holds it.
    std::unique_ptr<WritingClaim> claimForWriting(const std::filesystem::path& path);
    bool isClaimed(const std::filesystem::path& path) const;

    // The ".tarnel-partial" files directly in `directory` that no record claims, hidden ones
    // left out. The caller deletes them.
    std::vector<std::filesystem::path> orphanedFiles(const std::filesystem::path& directory) const;

    const std::shared_ptr<Journal>& journal() const { return journal_; }

    // Writes what pacing held back and waits until it is committed (shutdown).
    void flush();

private:
    using Key = std::pair<std::string, std::string>;  // connection id, remote path

    // Writes the rows of `keys` as they are in memory now (none left: the row goes).
    // Called with mutex_ held.
    void writeLocked(const std::vector<Key>& keys, bool commitNow);
    void writeHeldBackLocked();
    // The record in memory, or a placed file's on disk.
    std::optional<PartialDownload> findLocked(const Key& key) const;

    std::shared_ptr<Journal> journal_;
    const Clock& clock_;
    mutable std::mutex mutex_;
    std::map<Key, PartialDownload> partials_;
    std::set<Key> placedByEarlierRun_;  // as loaded
    std::set<Key> heldBack_;            // records whose byte count waits for pacing
    struct Claims {
        std::mutex mutex;
        std::set<std::filesystem::path> paths;
    };
    std::shared_ptr<Claims> claims_ = std::make_shared<Claims>();
    TimePoint lastWrite_;
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
