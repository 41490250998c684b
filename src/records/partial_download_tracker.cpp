#include "records/partial_download_tracker.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <system_error>

#include "records/store_migration.h"

namespace tarnel {

namespace {

const SystemClock wallClock;

// Every key but placedPath is required: a record that lacks one makes the whole file unreadable.
PartialDownload fromJson(const nlohmann::json& j) {
    PartialDownload p;
    p.remotePath = j.at("remotePath").get<std::string>();
    p.localTempPath = j.at("localTempPath").get<std::string>();
    p.expectedSize = j.at("expectedSize").get<std::int64_t>();
    p.downloadedBytes = j.at("downloadedBytes").get<std::int64_t>();
    p.connectionId = j.at("connectionId").get<std::string>();
    p.startedAt = fromReferenceSeconds(j.at("startedAt").get<double>());
    p.lastResumedAt = fromReferenceSeconds(j.at("lastResumedAt").get<double>());
    p.resumeAttempts = j.at("resumeAttempts").get<int>();
    p.placedPath = j.value("placedPath", std::string());  // older files lack it
    return p;
}

// The records of an older "partials.json"; one that does not read gives none, as it always has.
std::vector<PartialDownload> decodeStore(const std::string& text) {
    std::vector<PartialDownload> partials;
    try {
        for (const auto& item : nlohmann::json::parse(text))
            partials.push_back(fromJson(item));
    } catch (const nlohmann::json::exception&) {
        partials.clear();
    }
    return partials;
}

void writeRow(Journal& j, const PartialDownload& p) {
    j.statement(
         "INSERT OR REPLACE INTO partials(remote_path, local_temp_path, expected_size, "
         "downloaded_bytes, connection_id, started_at, last_resumed_at, resume_attempts, "
         "placed_path) VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)")
        .bind(1, p.remotePath)
        .bind(2, p.localTempPath)
        .bind(3, p.expectedSize)
        .bind(4, p.downloadedBytes)
        .bind(5, p.connectionId)
        .bind(6, toReferenceSeconds(p.startedAt))
        .bind(7, toReferenceSeconds(p.lastResumedAt))
        .bind(8, std::int64_t{p.resumeAttempts})
        .bind(9, p.placedPath)
        .step();
}

void deleteRow(Journal& j, const std::string& connectionId, const std::string& remotePath) {
    j.statement("DELETE FROM partials WHERE connection_id = ?1 AND remote_path = ?2")
        .bind(1, connectionId)
        .bind(2, remotePath)
        .step();
}

const char* const selectAll =
    "SELECT remote_path, local_temp_path, expected_size, downloaded_bytes, connection_id, "
    "started_at, last_resumed_at, resume_attempts, placed_path FROM partials";
const char* const selectOne =
    "SELECT remote_path, local_temp_path, expected_size, downloaded_bytes, connection_id, "
    "started_at, last_resumed_at, resume_attempts, placed_path FROM partials "
    "WHERE connection_id = ?1 AND remote_path = ?2";

using Key = std::pair<std::string, std::string>;

// The row of `key`, or all of them when it is empty.
std::map<Key, PartialDownload> loadRows(Journal& journal, const Key& key = {}) {
    std::map<Key, PartialDownload> partials;
    try {
        journal.read([&](Journal& j) {
            // Two statements: one condition with an OR would scan the table for one key.
            auto& rows = key.second.empty()
                             ? j.statement(selectAll)
                             : j.statement(selectOne).bind(1, key.first).bind(2, key.second);
            while (rows.step()) {
                PartialDownload p{rows.text(0),
                                  rows.text(1),
                                  rows.integer(2),
                                  rows.integer(3),
                                  rows.text(4),
                                  fromReferenceSeconds(rows.real(5)),
                                  fromReferenceSeconds(rows.real(6)),
                                  static_cast<int>(rows.integer(7)),
                                  rows.text(8)};
                Key found{p.connectionId, p.remotePath};
                partials.emplace(std::move(found), std::move(p));
            }
        });
    } catch (const JournalError&) {
        partials.clear();
    }
    return partials;
}

// Moves the records of an older "partials.json" into the journal.
void migrate(Journal& journal, const std::filesystem::path& partialsFile) {
    migrateStoreFile(journal, partialsFile, [](Journal& j, const std::string& text) {
        const auto partials = decodeStore(text);
        for (const auto& p : partials)
            writeRow(j, p);
        return std::all_of(partials.begin(), partials.end(), [&](const PartialDownload& p) {
            return j.statement(selectOne).bind(1, p.connectionId).bind(2, p.remotePath).step();
        });
    });
}

}  // namespace

PartialDownloadTracker::PartialDownloadTracker(std::shared_ptr<Journal> journal,
                                               const std::filesystem::path& partialsFile,
                                               const Clock* clock)
    : journal_(std::move(journal)), clock_(clock ? *clock : wallClock), lastWrite_(clock_.now()) {
    migrate(*journal_, partialsFile);
    partials_ = loadRows(*journal_);
    for (const auto& [key, p] : partials_)
        if (!p.placedPath.empty())
            placedByEarlierRun_.insert(key);
}

PartialDownloadTracker::PartialDownloadTracker(const std::filesystem::path& partialsFile,
                                               const Clock* clock)
    : PartialDownloadTracker(Journal::open(partialsFile.parent_path() / "journal.db"),
                             partialsFile, clock) {}

PartialDownloadTracker::~PartialDownloadTracker() {
    flush();
}

void PartialDownloadTracker::flush() {
    {
        std::lock_guard lock(mutex_);
        writeHeldBackLocked();
    }
    journal_->commit();
}

void PartialDownloadTracker::writeLocked(const std::vector<Key>& keys, bool commitNow) {
    journal_->write([&](Journal& j) {
        for (const auto& key : keys) {
            heldBack_.erase(key);
            if (auto it = partials_.find(key); it != partials_.end())
                writeRow(j, it->second);
            else
                deleteRow(j, key.first, key.second);
        }
    }, commitNow);
}

void PartialDownloadTracker::writeHeldBackLocked() {
    lastWrite_ = clock_.now();
    if (!heldBack_.empty())
        writeLocked({heldBack_.begin(), heldBack_.end()}, false);
}

void PartialDownloadTracker::record(std::span<const PartialDownload> partials) {
    std::lock_guard lock(mutex_);
    std::vector<Key> keys;
    for (const PartialDownload& partial : partials) {
        Key key{partial.connectionId, partial.remotePath};
        placedByEarlierRun_.erase(key);
        partials_.insert_or_assign(key, partial);
        keys.push_back(std::move(key));
    }
    writeLocked(keys, true);
}

std::optional<PartialDownload> PartialDownloadTracker::partial(
    const std::string& connectionId, const std::string& remotePath) const {
    std::lock_guard lock(mutex_);
    return findLocked({connectionId, remotePath});
}

std::optional<PartialDownload> PartialDownloadTracker::findLocked(const Key& key) const {
    if (auto it = partials_.find(key); it != partials_.end())
        return it->second;
    if (key.second.empty())
        return std::nullopt;
    auto placed = loadRows(*journal_, key);  // a placed file's, kept on disk alone
    if (placed.empty())
        return std::nullopt;
    return std::move(placed.begin()->second);
}

void PartialDownloadTracker::updateProgress(const std::string& connectionId,
                                            const std::string& remotePath, std::int64_t bytes) {
    std::lock_guard lock(mutex_);
    auto it = partials_.find({connectionId, remotePath});
    if (it == partials_.end())
        return;
    it->second.downloadedBytes = bytes;
    it->second.lastResumedAt = clock_.now();
    heldBack_.insert(it->first);
    if (clock_.now() - lastWrite_ >= progressWriteInterval)
        writeHeldBackLocked();
}

void PartialDownloadTracker::incrementResumeAttempts(const std::string& connectionId,
                                                     const std::string& remotePath) {
    std::lock_guard lock(mutex_);
    auto it = partials_.find({connectionId, remotePath});
    if (it == partials_.end())
        return;
    it->second.resumeAttempts += 1;
    it->second.lastResumedAt = clock_.now();
    writeLocked({it->first}, true);
}

void PartialDownloadTracker::markPlaced(const std::string& connectionId,
                                        const std::string& remotePath,
                                        const std::string& placedPath,
                                        std::function<void()> then) {
    std::lock_guard lock(mutex_);
    const Key key{connectionId, remotePath};
    // Only a restart reads it from here on: the row stays until remove(), the memory goes now,
    // so that a batch of many thousand files kept on the server holds none of them. A byte
    // count still held back goes too: written later, it would find no record and drop the row.
    partials_.erase(key);
    heldBack_.erase(key);
    // The row was written when the record was made; a key without one changes nothing.
    journal_->write(
        [&](Journal& j) {
            j.statement("UPDATE partials SET placed_path = ?3 "
                        "WHERE connection_id = ?1 AND remote_path = ?2")
                .bind(1, connectionId)
                .bind(2, remotePath)
                .bind(3, placedPath)
                .step();
        },
        !then);
    if (then)
        journal_->whenCommitted(std::move(then));
}

std::vector<PartialDownload> PartialDownloadTracker::takePlacedByEarlierRun(
    const std::string& connectionId) {
    std::lock_guard lock(mutex_);
    std::vector<PartialDownload> taken;
    std::vector<Key> keys;
    for (auto key = placedByEarlierRun_.begin(); key != placedByEarlierRun_.end();) {
        auto it = partials_.find(*key);
        if (it == partials_.end() || it->second.placedPath.empty()) {
            key = placedByEarlierRun_.erase(key);
        } else if (it->second.connectionId == connectionId) {
            keys.push_back(*key);
            taken.push_back(std::move(it->second));
            partials_.erase(it);
            key = placedByEarlierRun_.erase(key);
        } else {
            ++key;
        }
    }
    if (!keys.empty())
        writeLocked(keys, true);
    return taken;
}

void PartialDownloadTracker::remove(const std::string& connectionId,
                                    const std::string& remotePath) {
    // Committed with the journal's next commit: a record left by a crash claims a temporary
    // file that is no longer there, which the next transfer of that name drops or replaces.
    std::lock_guard lock(mutex_);
    const Key key{connectionId, remotePath};
    partials_.erase(key);
    writeLocked({key}, false);  // also the row of a placed file, which memory lets go of
}

void PartialDownloadTracker::discard(const std::string& connectionId,
                                     const std::string& remotePath) {
    std::lock_guard lock(mutex_);
    const Key key{connectionId, remotePath};
    auto record = findLocked(key);
    if (!record)
        return;
    std::error_code ignored;  // a file that stays is swept as an orphan at the next start
    std::filesystem::remove(record->localTempPath, ignored);
    partials_.erase(key);
    writeLocked({key}, true);
}

void PartialDownloadTracker::removeConnection(const std::string& connectionId) {
    std::lock_guard lock(mutex_);
    std::erase_if(partials_, [&](const auto& item) {
        if (item.second.connectionId != connectionId)
            return false;
        heldBack_.erase(item.first);
        return true;
    });
    journal_->write([&](Journal& j) {
        j.statement("DELETE FROM partials WHERE connection_id = ?1").bind(1, connectionId).step();
    });
}

std::unique_ptr<PartialDownloadTracker::WritingClaim> PartialDownloadTracker::claimForWriting(
    const std::filesystem::path& path) {
    std::lock_guard lock(claims_->mutex);
    if (!claims_->paths.insert(path).second)
        return nullptr;
    return std::make_unique<WritingClaim>(claims_, path);
}

bool PartialDownloadTracker::isClaimed(const std::filesystem::path& path) const {
    std::lock_guard lock(claims_->mutex);
    return claims_->paths.contains(path);
}

PartialDownloadTracker::WritingClaim::~WritingClaim() {
    if (auto claims = claims_.lock()) {
        std::lock_guard lock(claims->mutex);
        claims->paths.erase(path_);
    }
}

std::vector<std::filesystem::path> PartialDownloadTracker::orphanedFiles(
    const std::filesystem::path& directory) const {
    std::vector<std::filesystem::path> candidates;
    std::error_code ec;
    for (std::filesystem::directory_iterator it(directory, ec), end; !ec && it != end;
         it.increment(ec)) {
        const auto& path = it->path();
        const auto name = path.filename().string();
        if (!name.starts_with(".") && path.extension() == ".tarnel-partial")
            candidates.push_back(path);
    }
    if (ec)
        return {};

    std::lock_guard lock(mutex_);
    std::erase_if(candidates, [&](const std::filesystem::path& path) {
        for (const auto& [key, p] : partials_)
            if (p.localTempPath == path.string())
                return true;
        return false;
    });
    return candidates;
}

}  // namespace tarnel
