#include "records/download_tracker.h"

#include <vector>

namespace tarnel {

DownloadTracker::DownloadTracker(SettingsStore& store, std::string connectionId)
    : store_(store), key_("downloaded_files_" + connectionId) {
    if (auto stored = store_.stringListValue(key_))
        downloaded_.insert(stored->begin(), stored->end());
}

std::string DownloadTracker::downloadedKey(const std::string& trackingKey, std::int64_t size) {
    return trackingKey + "|" + std::to_string(size);
}

void DownloadTracker::markDownloaded(const std::string& trackingKey, std::int64_t size) {
    downloaded_.insert(downloadedKey(trackingKey, size));
    store();
}

void DownloadTracker::forget(const std::string& trackingKey, std::int64_t size) {
    if (downloaded_.erase(downloadedKey(trackingKey, size)) != 0) store();
}

void DownloadTracker::store() {
    store_.setValue(key_, std::vector<std::string>(downloaded_.begin(), downloaded_.end()));
}

}  // namespace tarnel
