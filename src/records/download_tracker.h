#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_set>

#include "platform/settings_store.h"
#include "records/journal.h"

namespace tarnel {

// The files one connection has fetched, so that a server that keeps its files does not hand
// them over twice. Entries are "key|size"; a file that comes back with another size is new.
// One row per entry in the journal, under the connection's id; owned by its engine, on the main
// loop. Memory follows the listing, not the past: the entries booked or found known in the
// latest listing are kept at hand, so that polls over files all fetched before do not ask the
// journal again; an entry that two listings in a row did not hold is let go of.
class DownloadTracker {
public:
    // Moves an older "downloaded_files_" + id settings value into the journal first.
    DownloadTracker(std::shared_ptr<Journal> journal, SettingsStore& store,
                    std::string connectionId);

    static std::string downloadedKey(const std::string& trackingKey, std::int64_t size);

    bool isDownloaded(const std::string& trackingKey, std::int64_t size) const;

    // Adds the entry: one row.
    void markDownloaded(const std::string& trackingKey, std::int64_t size);
    // Drops the entry (a file deleted on the server).
    void forget(const std::string& trackingKey, std::int64_t size);
    // A new listing is being checked: entries that the previous one held and this one does
    // not are let go of.
    void newListing();

    // Deletes every row of `connectionId` (a deleted connection).
    static void forgetConnection(Journal& journal, const std::string& connectionId);

private:
    std::shared_ptr<Journal> journal_;
    std::string connectionId_;
    mutable std::unordered_set<std::string> knownInListing_;
    mutable std::unordered_set<std::string> knownInLastListing_;
};

}  // namespace tarnel
