#include "records/partial_download_tracker.h"

#include <nlohmann/json.hpp>
#include <system_error>

#include "platform/private_folder.h"
#include "records/atomic_file.h"

namespace tarnel {

namespace {

const SystemClock wallClock;

// Written by hand rather than built as a JSON object: a record is encoded before each download
// starts, and the object form costs more than the write itself.
std::string encodedRecord(const PartialDownload& p) {
    const auto text = [](const std::string& s) { return nlohmann::json(s).dump(); };
    const auto seconds = [](TimePoint t) { return nlohmann::json(toReferenceSeconds(t)).dump(); };
    return "{\"remotePath\":" + text(p.remotePath) + ",\"localTempPath\":" + text(p.localTempPath) +
           ",\"expectedSize\":" + std::to_string(p.expectedSize) +
           ",\"downloadedBytes\":" + std::to_string(p.downloadedBytes) +
           ",\"connectionId\":" + text(p.connectionId) + ",\"startedAt\":" + seconds(p.startedAt) +
           ",\"lastResumedAt\":" + seconds(p.lastResumedAt) +
           ",\"resumeAttempts\":" + std::to_string(p.resumeAttempts) +
           ",\"placedPath\":" + text(p.placedPath) + "}";
}

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

std::map<std::string, PartialDownload> load(const std::filesystem::path& file) {
    std::map<std::string, PartialDownload> partials;
    auto text = readWholeFile(file);
    if (!text)
        return partials;
    try {
        for (const auto& item : nlohmann::json::parse(*text)) {
            auto p = fromJson(item);
            partials.insert_or_assign(p.remotePath, std::move(p));
        }
    } catch (const nlohmann::json::exception&) {
        partials.clear();  // unreadable: start empty, the next save replaces the file
    }
    return partials;
}

}  // namespace

PartialDownloadTracker::PartialDownloadTracker(std::filesystem::path partialsFile,
                                               const Clock* clock)
    : file_(std::move(partialsFile)),
      clock_(clock ? *clock : wallClock),
      partials_(load(file_)),
      lastWrite_(clock_.now()) {
    makePrivateFolder(file_.parent_path());  // the records name the user's files and folders
    for (const auto& [key, p] : partials_)
        if (!p.placedPath.empty())
            placedByEarlierRun_.insert(key);
}

PartialDownloadTracker::~PartialDownloadTracker() {
    flush();
}

void PartialDownloadTracker::flush() {
    {
        std::lock_guard lock(mutex_);
        if (unsaved_)
            saveLocked();
    }
    queue_.drain();
}

void PartialDownloadTracker::saveLocked() {
    lastWrite_ = clock_.now();
    unsaved_ = false;
    // One paced write in the queue at a time, which takes the records as they are when it runs.
    if (writeQueued_)
        return;
    writeQueued_ = true;
    queue_.async([this] {
        std::lock_guard write(writeMutex_);
        writeNow();
    });
}

void PartialDownloadTracker::writeNow() {
    std::string text;
    {
        std::lock_guard lock(mutex_);
        writeQueued_ = false;
        // Only records that changed since the last write are encoded again.
        std::map<std::string, std::string> encoded;
        text = "[";
        for (const auto& [key, p] : partials_) {
            auto known = encoded_.find(key);
            auto& json = encoded[key] =
                known != encoded_.end() ? std::move(known->second) : encodedRecord(p);
            if (text.size() > 1)
                text += ',';
            text += json;
        }
        text += ']';
        encoded_ = std::move(encoded);
    }
    replaceFileAtomically(file_, text);
}

template <typename Change>
void PartialDownloadTracker::changeAndWrite(Change change) {
    std::lock_guard write(writeMutex_);
    {
        std::lock_guard lock(mutex_);
        if (!change())
            return;
        lastWrite_ = clock_.now();
        unsaved_ = false;
    }
    writeNow();
}

void PartialDownloadTracker::record(std::span<const PartialDownload> partials) {
    changeAndWrite([&] {
        for (const PartialDownload& partial : partials) {
            placedByEarlierRun_.erase(partial.remotePath);
            partials_.insert_or_assign(partial.remotePath, partial);
            encoded_.erase(partial.remotePath);
        }
        return !partials.empty();
    });
}

std::optional<PartialDownload> PartialDownloadTracker::partial(
    const std::string& remotePath) const {
    std::lock_guard lock(mutex_);
    auto it = partials_.find(remotePath);
    if (it == partials_.end())
        return std::nullopt;
    return it->second;
}

void PartialDownloadTracker::updateProgress(const std::string& remotePath, std::int64_t bytes) {
    std::lock_guard lock(mutex_);
    auto it = partials_.find(remotePath);
    if (it == partials_.end())
        return;
    it->second.downloadedBytes = bytes;
    it->second.lastResumedAt = clock_.now();
    encoded_.erase(remotePath);
    unsaved_ = true;
    if (clock_.now() - lastWrite_ >= progressWriteInterval)
        saveLocked();
}

void PartialDownloadTracker::incrementResumeAttempts(const std::string& remotePath) {
    changeAndWrite([&] {
        auto it = partials_.find(remotePath);
        if (it != partials_.end()) {
            it->second.resumeAttempts += 1;
            it->second.lastResumedAt = clock_.now();
            encoded_.erase(remotePath);
        }
        return true;
    });
}

void PartialDownloadTracker::markPlaced(const std::string& remotePath,
                                        const std::string& placedPath) {
    changeAndWrite([&] {
        auto it = partials_.find(remotePath);
        if (it == partials_.end())
            return false;
        it->second.placedPath = placedPath;
        encoded_.erase(remotePath);
        return true;
    });
}

std::vector<PartialDownload> PartialDownloadTracker::takePlacedByEarlierRun(
    const std::string& connectionId) {
    std::vector<PartialDownload> taken;
    changeAndWrite([&] {
        for (auto key = placedByEarlierRun_.begin(); key != placedByEarlierRun_.end();) {
            auto it = partials_.find(*key);
            if (it == partials_.end() || it->second.placedPath.empty()) {
                key = placedByEarlierRun_.erase(key);
            } else if (it->second.connectionId == connectionId) {
                taken.push_back(std::move(it->second));
                partials_.erase(it);
                key = placedByEarlierRun_.erase(key);
            } else {
                ++key;
            }
        }
        return !taken.empty();
    });
    return taken;
}

void PartialDownloadTracker::remove(const std::string& remotePath) {
    // Paced like the byte count, and written with the next record: a record left by a crash
    // claims a temporary file that is no longer there, which the next transfer of that name
    // drops or replaces.
    std::lock_guard lock(mutex_);
    if (partials_.erase(remotePath) == 0)
        return;
    unsaved_ = true;
    if (clock_.now() - lastWrite_ >= progressWriteInterval)
        saveLocked();
}

void PartialDownloadTracker::discard(const std::string& remotePath) {
    changeAndWrite([&] {
        auto it = partials_.find(remotePath);
        if (it == partials_.end())
            return false;
        std::error_code ignored;  // a file that stays is swept as an orphan at the next start
        std::filesystem::remove(it->second.localTempPath, ignored);
        partials_.erase(it);
        return true;
    });
}

std::unique_ptr<PartialDownloadTracker::WritingClaim> PartialDownloadTracker::claimForWriting(
    const std::filesystem::path& tempPath) {
    std::lock_guard lock(claims_->mutex);
    if (!claims_->paths.insert(tempPath).second)
        return nullptr;
    return std::make_unique<WritingClaim>(claims_, tempPath);
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
