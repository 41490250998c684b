#include "records/download_tracker.h"

#include <algorithm>
#include <cstring>
#include <memory_resource>
#include <string_view>
#include <unordered_set>

#include <nlohmann/json.hpp>

#include "records/atomic_file.h"
#include "records/store_migration.h"

namespace tarnel {

namespace {

void insertEntry(Journal& j, const std::string& connectionId, const std::string& entry) {
    j.statement("INSERT OR IGNORE INTO downloaded(connection_id, entry) VALUES(?1, ?2)")
        .bind(1, connectionId)
        .bind(2, entry)
        .step();
}

bool hasEntry(Journal& j, const std::string& connectionId, const std::string& entry) {
    return j.statement("SELECT 1 FROM downloaded WHERE connection_id = ?1 AND entry = ?2")
        .bind(1, connectionId)
        .bind(2, entry)
        .step();
}

// The settings value of older versions, moved into the journal all or nothing; it leaves the
// settings only once its backup (a file of its name beside the journal) is written. Done again
// at the next start if anything fails on the way.
void migrateDownloadedSet(Journal& journal, SettingsStore& store, const std::string& connectionId) {
    const std::string key = "downloaded_files_" + connectionId;
    const auto entries = store.stringListValue(key);
    if (!entries)
        return;
    const bool moved = journal.transaction([&](Journal& j) {
        for (const auto& entry : *entries)
            insertEntry(j, connectionId, entry);
        return std::all_of(entries->begin(), entries->end(),
                           [&](const auto& entry) { return hasEntry(j, connectionId, entry); });
    });
    if (moved && replaceFileAtomically(migratedBackup(journal.file().parent_path() / key),
                                       nlohmann::json(*entries).dump()))
        store.remove(key);
}

}  // namespace

// One listing's known entries, nodes and characters together in blocks of their own. Kept one
// by one, a hundred thousand entries booked during a batch sat scattered among the batch's
// freed memory and held most of its pages; these blocks go back as a whole.
struct DownloadTracker::KnownEntries {
    explicit KnownEntries(std::size_t expected) : arena(64 + expected * 64) {
        entries.reserve(expected);
    }

    bool contains(std::string_view entry) const { return entries.contains(entry); }
    void add(std::string_view entry) {
        if (contains(entry))
            return;
        auto* chars = static_cast<char*>(arena.allocate(entry.size(), 1));
        std::memcpy(chars, entry.data(), entry.size());
        entries.emplace(chars, entry.size());
    }
    void remove(std::string_view entry) { entries.erase(entry); }

    std::pmr::monotonic_buffer_resource arena;  // first: the set's nodes live in it
    std::pmr::unordered_set<std::string_view> entries{&arena};
};

DownloadTracker::DownloadTracker(std::shared_ptr<Journal> journal, SettingsStore& store,
                                 std::string connectionId)
    : journal_(std::move(journal)),
      connectionId_(std::move(connectionId)),
      knownInListing_(std::make_unique<KnownEntries>(0)) {
    migrateDownloadedSet(*journal_, store, connectionId_);
}

DownloadTracker::~DownloadTracker() = default;

std::string DownloadTracker::downloadedKey(const std::string& trackingKey, std::int64_t size) {
    return trackingKey + "|" + std::to_string(size);
}

bool DownloadTracker::isDownloaded(const std::string& trackingKey, std::int64_t size) const {
    const auto entry = downloadedKey(trackingKey, size);
    if (knownInListing_->contains(entry))
        return true;
    bool known = knownInLastListing_ && knownInLastListing_->contains(entry);
    if (!known) {
        try {
            known = journal_->read([&](Journal& j) { return hasEntry(j, connectionId_, entry); });
        } catch (const JournalError&) {
            // Unreadable for now: the file waits, as a growing one would, rather than come twice.
            return true;
        }
    }
    if (known)
        knownInListing_->add(entry);
    return known;
}

void DownloadTracker::markDownloaded(const std::string& trackingKey, std::int64_t size) {
    const auto entry = downloadedKey(trackingKey, size);
    journal_->write([&](Journal& j) { insertEntry(j, connectionId_, entry); });
    // Listed now, so most likely in the next listing too: that poll need not ask the journal.
    knownInListing_->add(entry);
}

void DownloadTracker::commit() {
    journal_->commit();
}

void DownloadTracker::forget(const std::string& trackingKey, std::int64_t size) {
    const auto entry = downloadedKey(trackingKey, size);
    knownInListing_->remove(entry);
    if (knownInLastListing_)
        knownInLastListing_->remove(entry);
    // At once: an entry that a crash left behind would keep a later file of that name and size
    // from ever being fetched.
    journal_->write(
        [&](Journal& j) {
            j.statement("DELETE FROM downloaded WHERE connection_id = ?1 AND entry = ?2")
                .bind(1, connectionId_)
                .bind(2, entry)
                .step();
        },
        true);
}

void DownloadTracker::newListing() {
    const std::size_t expected = knownInListing_->entries.size();
    knownInLastListing_ = std::move(knownInListing_);
    knownInListing_ = std::make_unique<KnownEntries>(expected);
}

void DownloadTracker::listingChecked() {
    knownInLastListing_.reset();
}

void DownloadTracker::forgetConnection(Journal& journal, const std::string& connectionId) {
    journal.write([&](Journal& j) {
        j.statement("DELETE FROM downloaded WHERE connection_id = ?1").bind(1, connectionId).step();
    });
}

}  // namespace tarnel
