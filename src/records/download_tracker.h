#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/settings_store.h"
#include "records/journal.h"

namespace tarnel {

// The files one connection has fetched, so that a server that keeps its files does not hand
// them over twice. Entries are "key|size"; a file that comes back with another size is new.
// One row per entry in the journal, under the connection's id; owned by its engine, on the main
// loop. Memory follows the listing, not the past: the entries booked or found known in the
// latest listing are kept at hand, so that polls over files all fetched before do not ask the
// journal again; an entry that the next listing does not hold is let go of.
class DownloadTracker {
public:
    // Moves an older "downloaded_files_" + id settings value into the journal first.
    DownloadTracker(std::shared_ptr<Journal> journal, SettingsStore& store,
                    std::string connectionId);
    ~DownloadTracker();

    static std::string downloadedKey(const std::string& trackingKey, std::int64_t size);

    bool isDownloaded(const std::string& trackingKey, std::int64_t size) const;

    // Adds the entry: one row, committed with the journal's next commit.
    void markDownloaded(const std::string& trackingKey, std::int64_t size);
    // Commits the entries added so far (before a file they name leaves the server).
    void commit();
    // Drops the entry (a file deleted on the server), committed before it returns.
    void forget(const std::string& trackingKey, std::int64_t size);
    // A new listing is being checked: the entries kept so far serve it until listingChecked(),
    // which lets go of those it did not hold.
    void newListing();
    void listingChecked();

    // Deletes every row of `connectionId` (a deleted connection).
    static void forgetConnection(Journal& journal, const std::string& connectionId);

private:
    struct KnownEntries;

    std::shared_ptr<Journal> journal_;
    std::string connectionId_;
    std::unique_ptr<KnownEntries> knownInListing_;
    std::unique_ptr<KnownEntries> knownInLastListing_;  // only while a listing is checked
};

}  // namespace tarnel
