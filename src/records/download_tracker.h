#pragma once

#include <cstdint>
#include <string>
#include <unordered_set>

#include "platform/settings_store.h"

namespace tarnel {

// The files one connection has fetched, so that a server that keeps its files does not hand
// them over twice. Entries are "key|size"; a file that comes back with another size is new.
// Stored under "downloaded_files_" + the connection's id; owned by its engine, on the main loop.
class DownloadTracker {
public:
    DownloadTracker(SettingsStore& store, std::string connectionId);

    static std::string downloadedKey(const std::string& trackingKey, std::int64_t size);

    const std::unordered_set<std::string>& downloaded() const { return downloaded_; }
    bool isDownloaded(const std::string& trackingKey, std::int64_t size) const {
        return downloaded_.contains(downloadedKey(trackingKey, size));
    }

    // Adds the entry and stores the whole set at once.
    void markDownloaded(const std::string& trackingKey, std::int64_t size);
    // Drops the entry (a file deleted on the server) and stores the set if it changed.
    void forget(const std::string& trackingKey, std::int64_t size);

private:
    void store();

    SettingsStore& store_;
    std::string key_;
    std::unordered_set<std::string> downloaded_;
};

}  // namespace tarnel
