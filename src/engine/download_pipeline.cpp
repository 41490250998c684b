// The download of one stable file, from routing to the remote delete, and the bookkeeping of a
// poll's batch.
#include <atomic>
#include <chrono>
#include <algorithm>
#include <cmath>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <map>
#include <system_error>

#include <fcntl.h>

#include "connections/routing.h"
#include "engine/destination.h"
#include "platform/file_syncer.h"
#include "platform/foundation_path.h"
#include "connections/finder_tags.h"
#include "engine/md5.h"
#include "engine/sync_engine.h"
#include "platform/runtime.h"
#include "platform/sliding_window.h"
#include "platform/sound_player.h"
#include "records/app_settings.h"
#include "records/byte_count_format.h"
#include "records/download_tracker.h"
#include "records/history_service.h"
#include "records/notification_service.h"
#include "records/partial_download_tracker.h"
#include "records/stats_service.h"
#include "transfer/curl_transfer_client.h"
#include "transfer/speed_calculator.h"

namespace tarnel {

namespace fs = std::filesystem;

namespace {
constexpr std::chrono::duration<double> maximumRetryWait{100.0 * 365 * 24 * 3600};
// The popover redraws a few times a second; more progress tasks than that only load the loop.
constexpr auto progressPostInterval = std::chrono::milliseconds(100);

// A local file operation that failed, in words a user can act on.
struct LocalFailure {
    std::string text;
};

void throwIfFailed(const std::error_code& ec, const std::string& what, const fs::path& path) {
    if (ec) throw LocalFailure{what + " '" + path.string() + "': " + ec.message()};
}

// The words of a failure of any kind.
std::string failureText(const std::exception_ptr& error) {
    try {
        std::rethrow_exception(error);
    } catch (const FTPError& e) {
        return e.errorDescription();
    } catch (const LocalFailure& e) {
        return e.text;
    } catch (const std::exception& e) {
        return e.what();
    } catch (...) {
        return "an unexpected error";
    }
}

void makeFolder(const fs::path& folder) {
    std::error_code ec;
    fs::create_directories(folder, ec);
    throwIfFailed(ec, "Could not create the folder", folder);
}

void moveFile(const fs::path& from, const fs::path& to) {
    std::error_code ec;
    fs::rename(from, to, ec);
    throwIfFailed(ec, "Could not move the file to", to);
}

// Moves `from` to `to` unless something is there: false then. A file that came between the
// choice of the name and the move is never overwritten.
bool moveUnlessTaken(const fs::path& from, const fs::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno == EEXIST) return false;
    // A file system that cannot refuse to replace (some network ones): moved as before.
    if (errno == EINVAL) {
        moveFile(from, to);
        return true;
    }
    throwIfFailed(std::error_code(errno, std::generic_category()), "Could not move the file to",
                  to);
    return true;
}

}  // namespace

Task<std::vector<TransferResult>> SyncEngine::downloadStableFiles(std::vector<TrackedFile> stable) {
    // Records go to disk a block at a time, ahead of the transfers they describe: one write of
    // the store for many small files instead of one each.
    std::size_t started = 0;
    // A limit below 1 (an edited file) downloads one at a time rather than waiting for ever.
    co_return co_await slidingWindow<TransferResult>(
        services_.runtime.loop, stable, config_.maxConcurrentDownloads,
        [this, &stable, &started](const TrackedFile& file, WindowSlot slot) {
            if (!stopped_ && started % recordsWrittenAhead == 0) recordAhead(stable, started);
            ++started;
            return transferFile(file, ++renameCounter_, std::move(slot));
        });
}

void SyncEngine::recordAhead(const std::vector<TrackedFile>& files, std::size_t from) {
    auto& partials = services_.partialTracker;
    const auto now = services_.runtime.clock.now();
    std::vector<PartialDownload> records;
    const std::size_t end = std::min(files.size(), from + recordsWrittenAhead);
    for (std::size_t i = from; i < end; ++i) {
        const TrackedFile& file = files[i];
        const std::string key = trackingKey(file.name, file.relativePath);
        // A record of an earlier attempt decides on resuming; the transfer reads it then.
        if (ownPartial(key)) continue;
        const Placement placement = placementOf(file);
        if (placement.refusal || placement.ignoredByRouting) continue;
        const auto tempPath =
            partialFileURL(placement.folder, file.name, config_.id.toString(), key).string();
        records.push_back({key, tempPath, file.size, 0, config_.id.toString(), now, now, 0, ""});
        recordedAhead_.insert_or_assign(key, tempPath);
    }
    partials.record(records);
}

std::optional<PartialDownload> SyncEngine::ownPartial(const std::string& key) const {
    return services_.partialTracker.partial(config_.id.toString(), key);
}

SyncEngine::Placement SyncEngine::placementOf(const TrackedFile& file) const {
    Placement placement;
    placement.folder = !file.relativePath.empty() && config_.exploreSubdirectories
                           ? destinationDirectory(config_, file.relativePath, file.firstSeen,
                                                  services_.runtime.clock)
                           : baseLocalDestination(config_, file.firstSeen, services_.runtime.clock);
    // No remote name may place a file outside the folder it lands in.
    placement.refusal = remotePathProblem(file.name);
    if (!placement.refusal)
        placement.refusal = remotePathProblem(trackingKey(file.name, file.relativePath));
    if (placement.refusal) return placement;
    if (config_.routingRules.empty() &&
        config_.fallbackBehavior == FallbackBehavior::useLocalFolder)
        return placement;
    RuleFolders ruleURLs;
    std::optional<fs::path> fallbackURL;
    if (auto manager = connectionsManager_.lock()) {
        ruleURLs = manager->ruleDestinations(config_.id);
        fallbackURL = manager->fallbackDestination(config_.id);
    }
    auto routing = route(file.name, placement.folder, config_.routingRules,
                         config_.fallbackBehavior, ruleURLs, fallbackURL);
    if (!routing.destinationURL) {
        placement.ignoredByRouting = true;
        return placement;
    }
    placement.folder = routing.destinationURL->string();
    placement.matchedRule = routing.matchedRule;
    return placement;
}

std::string SyncEngine::remoteFileURL(const TrackedFile& file) const {
    return tarnel::remoteFileURL(config_, config_.remotePath,
                                 trackingKey(file.name, file.relativePath));
}

RemoteService::ProgressCallback SyncEngine::progressReporter(const Uuid& rowId,
                                                             const std::string& key,
                                                             std::int64_t listedSize) {
    struct Shared {
        explicit Shared(const Clock& c) : speed(c) {}
        SpeedCalculator speed;
        // A transfer that ends within the first interval posts nothing: its row goes with it.
        std::atomic<std::int64_t> lastPost{
            std::chrono::steady_clock::now().time_since_epoch().count()};
        // libcurl calls back while it waits, too: the record changes only with new bytes.
        std::atomic<std::int64_t> lastReceived{-1};
    };
    auto shared = std::make_shared<Shared>(services_.runtime.clock);
    std::weak_ptr<SyncEngine> weak = weak_from_this();
    auto& partials = services_.partialTracker;
    auto& loop = services_.runtime.loop;
    // Runs on the transfer's thread: it touches no engine state, only posts to the loop.
    return [=, &partials, &loop, connectionId = config_.id.toString()](std::int64_t received,
                                                                       std::int64_t expected) {
        shared->speed.addSample(received);
        if (shared->lastReceived.exchange(received) != received)
            partials.updateProgress(connectionId, key, received);
        const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
        const auto last = shared->lastPost.load();
        // The end of the download removes the row, so its last sample need not go through.
        if (now - last < std::chrono::steady_clock::duration(progressPostInterval).count())
            return;
        shared->lastPost = now;
        const double speed = shared->speed.currentSpeed();
        const std::int64_t total = expected >= 1 ? expected : listedSize;
        loop.post([weak, rowId, received, total, speed] {
            auto self = weak.lock();
            if (!self) return;
            auto rows = self->activeDownloads_();
            for (auto& row : rows) {
                if (row.id != rowId) continue;
                row.downloadedBytes = received;
                row.totalBytes = total;
                row.speed = speed;
                self->activeDownloads_.set(std::move(rows));
                return;
            }
        });
    };
}

void SyncEngine::removeProgressRow(const Uuid& rowId) {
    auto rows = activeDownloads_();
    std::erase_if(rows, [&](const DownloadProgress& r) { return r.id == rowId; });
    activeDownloads_.set(std::move(rows));
}

Task<TransferResult> SyncEngine::transferFile(TrackedFile file, int counter, WindowSlot slot) {
    auto self = shared_from_this();
    const Clock& clock = services_.runtime.clock;
    auto& partials = services_.partialTracker;
    const std::string key = trackingKey(file.name, file.relativePath);
    const std::string connectionId = config_.id.toString();
    TransferResult result{file.name, file.name, file.size, false, config_.localPath,
                          std::nullopt, key, false, false};
    // A stopped engine (replaced or removed) begins nothing: its successor takes the file up.
    if (stopped_) {
        result.wasDeferred = true;
        co_return result;
    }

    // Whatever fails in here, of whatever kind, fails this file and nothing more.
    std::optional<std::string> failure;
    Uuid rowId;
    try {
        const Placement placement = placementOf(file);
        const std::string& folder = placement.folder;
        const std::optional<RoutingRule>& matchedRule = placement.matchedRule;
        if (placement.refusal) {
            log("Refused " + key + ": " + *placement.refusal + "; left on the server",
                LogLevel::warning);
            result.success = result.wasIgnored = true;
            result.destinationPath = folder;
            co_return result;
        }
        if (placement.ignoredByRouting) {
            log("Ignored by routing rule: " + key);
            result.success = result.wasIgnored = true;
            result.destinationPath = folder;
            co_return result;
        }
        const fs::path tempPath = partialFileURL(folder, file.name, connectionId, key);

        // An engine replaced by an edit may still be writing this file; it is left alone
        // until that transfer has ended.
        const auto claim = partials.claimForWriting(tempPath);
        if (!claim) {
            log("Still being written by an earlier transfer, left for the next poll: " + key);
            result.wasDeferred = true;
            co_return result;
        }
        // That transfer may have placed it since this poll listed it.
        if (downloadTracker_->isDownloaded(key, file.size)) {
            log("Placed meanwhile by an earlier transfer: " + key);
            result.wasDeferred = true;
            co_return result;
        }

        // A record written ahead for this very temporary file stands for a fresh download.
        bool recordedAhead = false;
        if (auto ahead = recordedAhead_.find(key); ahead != recordedAhead_.end()) {
            recordedAhead = ahead->second == tempPath.string();
            recordedAhead_.erase(ahead);
        }
        // Resume, when a temporary file of this very remote file is there and not yet whole.
        bool resume = false;
        std::int64_t offset = 0;
        if (config_.maxResumeAttempts >= 1 && !recordedAhead) {
            if (auto record = ownPartial(key)) {
                std::error_code ec;
                // Temporary files of top-level files once had no tag: such a file is taken over
                // under its present name by the connection whose record names it.
                const fs::path untagged = fs::path(folder) / (file.name + ".tarnel-partial");
                if (record->localTempPath == untagged.string() && !fs::exists(tempPath, ec)) {
                    fs::rename(untagged, tempPath, ec);
                    if (!ec) {
                        record->localTempPath = tempPath.string();
                        partials.record(*record);
                    }
                }
                if (record->localTempPath != tempPath.string() || !fs::exists(tempPath, ec)) {
                    partials.remove(connectionId, key);
                } else {
                    auto size = fs::file_size(tempPath, ec);
                    const std::int64_t local = ec ? 0 : static_cast<std::int64_t>(size);
                    if (local > 0 && local < file.size && record->expectedSize == file.size) {
                        if (record->resumeAttempts >= config_.maxResumeAttempts) {
                            log("Resume exhausted for " + key + " after " +
                                    std::to_string(record->resumeAttempts) +
                                    " attempts, starting fresh",
                                LogLevel::warning);
                            partials.discard(connectionId, key);
                        } else {
                            partials.incrementResumeAttempts(connectionId, key);
                            log("Resuming: " + key + " from " + formatFileByteCount(local) +
                                " (attempt " + std::to_string(record->resumeAttempts + 1) + "/" +
                                std::to_string(config_.maxResumeAttempts) + ")");
                            resume = true;
                            offset = local;
                        }
                    } else {
                        log("Remote file changed, discarding partial: " + key);
                        partials.discard(connectionId, key);
                    }
                }
            }
        }

        makeFolder(folder);
        if (!resume && !recordedAhead) {
            const auto now = clock.now();
            partials.record(
                {key, tempPath.string(), file.size, 0, connectionId, now, now, 0, ""});
        }
        DownloadProgress row;
        row.fileName = file.name;
        row.connectionName = config_.name;
        row.totalBytes = file.size;
        row.downloadedBytes = offset;
        row.startTime = clock.now();
        row.isResuming = resume;
        rowId = row.id;
        auto rows = activeDownloads_();
        rows.push_back(row);
        activeDownloads_.set(std::move(rows));

        const std::string url = remoteFileURL(file);
        ChecksumVerdict verdict;
        try {
            verdict = co_await ftpService_->downloadFile(tempPath.filename().string(), tempPath,
                                                         offset,
                                                         progressReporter(rowId, key, file.size),
                                                         url);
        } catch (const FTPError& e) {
            // Bytes the server disowns: none of them is kept to resume from.
            if (e.kind() == FTPError::Kind::checksumMismatch) partials.discard(connectionId, key);
            throw;
        }
        removeProgressRow(rowId);

        std::error_code ec;
        const auto localSize = fs::file_size(tempPath, ec);
        throwIfFailed(ec, "Could not read the downloaded file", tempPath);
        const auto local = static_cast<std::int64_t>(localSize);
        const std::int64_t expected = file.size;
        result.destinationPath = folder;
        result.wasResumed = resume;
        if (expected < 1 && local == 0) {
            log("Empty file after download: " + key, LogLevel::error);
            std::error_code removeError;
            fs::remove(tempPath, removeError);
            if (removeError)
                log("Could not remove empty partial " + tempPath.filename().string() + ": " +
                        removeError.message(),
                    LogLevel::warning);
            partials.remove(connectionId, key);
            result.errorMessage = FTPError::emptyFile(file.name).errorDescription();
            co_return result;
        }
        if (expected >= 1 && local != expected) {
            // The temporary file and its record stay: the next attempt resumes or starts over.
            log("Size mismatch: " + key + " \u2014 remote: " + formatFileByteCount(expected) +
                    ", local: " + formatFileByteCount(local),
                LogLevel::error);
            result.errorMessage = FTPError::sizeMismatch(expected, local).errorDescription();
            co_return result;
        }

        // The download is over: the next file starts while this one is placed.
        slot.release();

        // Read before placing: nothing may wait between placing a file and booking it, or a quit
        // meanwhile would leave a moved file placed, unbooked and still on the server.
        std::optional<std::string> md5;
        if (!verdict.localMD5.empty())
            md5 = verdict.localMD5;
        else if (!verdict.algorithm && config_.checksumVerification)
            md5 = co_await computeMD5(services_.runtime, tempPath);

        // A file that stays on the server keeps its record, marked placed, until its booking is
        // written: the two go to disk in one commit, and a crash before it books the file at the
        // next start instead of fetching it again. One that is moved off the server loses its
        // record first, so no record can ever stand for a later file of the same name.
        if (config_.deleteAfterDownload) partials.remove(connectionId, key);
        fs::path placed = co_await placeDownloadedFile(tempPath, fs::path(folder) / file.name, key);

        // Verified and in its folder, the file is downloaded: a step below that fails leaves it
        // where it is under the name it has, and never fetches it again.
        result.finalName = file.name;
        result.size = local;
        result.success = true;
        const auto afterPlacing = [&](const std::string& step, auto&& run) {
            try {
                run();
            } catch (...) {
                log(step + " failed for " + key + ", it stays as " + placed.filename().string() +
                        ": " + failureText(std::current_exception()),
                    LogLevel::warning);
            }
        };
        afterPlacing("Tagging", [&] {
            if (matchedRule) applyFinderTags(placed, matchedRule->tagColor, matchedRule->tagName);
        });
        log(std::string("Verified") + (resume ? " (resumed)" : "") + ": " + key + " \u2014 " +
            formatFileByteCount(local));
        if (verdict.algorithm) {
            log(std::string(digestName(*verdict.algorithm)) + " matches the server: " + key +
                " = " + verdict.digest);
        } else if (md5) {
            if (!verdict.unanswered.empty())
                log("The server gave no checksum for " + key + " (" + verdict.unanswered +
                        "); verified by its size",
                    LogLevel::warning);
            log("MD5: " + key + " = " + *md5);
        }

        afterPlacing("Renaming", [&] {
            const std::string newName = applyRenamePattern(config_, file.name, counter, clock);
            if (newName == file.name) return;
            if (auto bad = remotePathProblem(newName)) throw LocalFailure{*bad};
            fs::path renamed = freeName(placed.parent_path() / newName);
            if (!config_.deleteAfterDownload)
                partials.markPlaced(connectionId, key, renamed.string());
            moveFile(placed, renamed);
            log("Renamed: " + file.name + " \u2192 " + renamed.filename().string());
            placed = renamed;
            result.finalName = newName;
        });
        // Booked now, before anything else can fail or the program end: a placed file is never
        // fetched again and always has its history entry.
        recordTransfer(result);
        if (!config_.deleteAfterDownload) partials.remove(connectionId, key);
        if (config_.autoDecompress) {
            // Its own failures are warnings already; anything else is one too.
            try {
                co_await decompressIfNeeded(placed);
            } catch (...) {
                log("Decompression failed for " + key + ", it stays as " +
                        placed.filename().string() + ": " +
                        failureText(std::current_exception()),
                    LogLevel::warning);
            }
        }

        // The next download waits for a session only while every one is busy, and takes over
        // this delete's session the moment the delete is done.
        if (config_.deleteAfterDownload) {
            std::optional<std::string> deleteError;
            // The source goes only once the placed file is safe on disk and booked: no record
            // stands in for the booking of a moved file.
            downloadTracker_->commit();
            try {
                co_await services_.fileSyncer.makeDurable(placed);
            } catch (...) {
                deleteError = failureText(std::current_exception());
            }
            if (!deleteError) {
                try {
                    co_await ftpService_->deleteFile(key);
                } catch (const FTPError& e) {
                    deleteError = e.errorDescription();
                }
            }
            if (deleteError) {
                // Still counted as downloaded: a server that refuses deletes never fills the disk
                // with copies.
                undeletedFiles_.insert(key);
                log("Downloaded OK but delete failed: " + key + " \u2014 " + *deleteError +
                        "; the file stays on the server and is not fetched again unless its "
                        "size changes",
                    LogLevel::warning);
            } else {
                // Gone from the server: a new file of that name and size is a new file.
                undeletedFiles_.erase(key);
                downloadTracker_->forget(key, local);
                log("Moved: " + key + " \u2192 " + folder, LogLevel::success);
                if (config_.deleteEmptyRemoteFolders && !file.relativePath.empty())
                    co_await removeEmptyRemoteFolders(file.relativePath);
            }
        } else {
            log("Copied: " + key + " \u2192 " + folder, LogLevel::success);
        }
        co_return result;
    } catch (...) {
        failure = failureText(std::current_exception());
    }

    // A failure after the file was placed (the remote delete's folder walk) leaves it placed.
    if (result.success) {
        log("After placing " + key + ": " + *failure, LogLevel::warning);
        co_return result;
    }
    auto rows = activeDownloads_();
    std::erase_if(rows, [&](const DownloadProgress& r) {
        return r.fileName == file.name && r.connectionName == config_.name;
    });
    activeDownloads_.set(std::move(rows));
    log("Failed: " + key + " \u2014 " + *failure, LogLevel::error);
    result.finalName = file.name;
    result.size = file.size;
    result.destinationPath = config_.localPath;
    result.errorMessage = failure;
    result.wasResumed = false;
    result.success = false;
    co_return result;
}

fs::path SyncEngine::freeName(const fs::path& wanted) const {
    return uniqueDestinationURL(
        wanted, [&](const fs::path& path) { return services_.partialTracker.isClaimed(path); });
}

Task<fs::path> SyncEngine::placeDownloadedFile(fs::path tempPath, fs::path wanted,
                                               std::string key) {
    auto& partials = services_.partialTracker;
    for (;;) {
        const fs::path target = freeName(wanted);
        // Held until the file is there: no other transfer or decompression takes the name while
        // this one waits for its record.
        const auto claim = partials.claimForWriting(target);
        if (!claim) continue;
        // Files placed close together share that commit; the next downloads go on meanwhile.
        if (!config_.deleteAfterDownload) {
            auto marked = whenCalled(services_.runtime, [&](std::function<void()> then) {
                partials.markPlaced(config_.id.toString(), key, target.string(), std::move(then));
            });
            co_await marked;
        }
        if (moveUnlessTaken(tempPath, target)) co_return target;
        // Taken meanwhile from outside the program: the next free name.
    }
}

void SyncEngine::recordTransfer(const TransferResult& r) {
    trackedFiles_.erase(r.trackingKey);
    retryState_.erase(r.trackingKey);
    downloadTracker_->markDownloaded(r.trackingKey, r.size);
    totalTransferred_.set(totalTransferred_() + 1);
    trackedFileCount_.set(static_cast<int>(trackedFiles_.size()));
    services_.statsService.recordDownload(r.size);
    lastDownloadedFile_.set(DownloadedFileInfo{r.finalName, r.size, services_.runtime.clock.now()});
    addHistoryEntry(r);
}

void SyncEngine::addHistoryEntry(const TransferResult& r) {
    services_.historyService.add({Uuid::random(), services_.runtime.clock.now(), r.name,
                                  r.finalName, r.size, config_.host, config_.remotePath,
                                  r.destinationPath, config_.name, TransferStatus::success,
                                  std::nullopt});
}

// A run that ended between placing a file and its booking reaching the disk: the file is booked
// now, not fetched again. The downloaded set and the counters are written together, the history
// apart from them, so either may be missing.
void SyncEngine::bookFilesPlacedByEarlierRun() {
    for (const auto& record : services_.partialTracker.takePlacedByEarlierRun(config_.id.toString())) {
        const fs::path placed = record.placedPath;
        std::error_code ec;
        const auto size = fs::file_size(placed, ec);
        if (ec || static_cast<std::int64_t>(size) != record.expectedSize) continue;  // fetched anew
        TransferResult r;
        r.name = fs::path(record.remotePath).filename().string();
        r.finalName = placed.filename().string();
        r.size = record.expectedSize;
        r.success = true;
        r.destinationPath = placed.parent_path().string();
        r.trackingKey = record.remotePath;
        if (!downloadTracker_->isDownloaded(r.trackingKey, r.size)) {
            recordTransfer(r);
        } else {
            const auto& entries = services_.historyService.entries()();
            const bool inHistory = std::any_of(entries.begin(), entries.end(), [&](const auto& e) {
                return e.status == TransferStatus::success && e.sizeBytes == r.size &&
                       (fs::path(e.destinationPath) / e.finalFilename).lexically_normal() ==
                           placed.lexically_normal();
            });
            if (inHistory) continue;
            addHistoryEntry(r);
        }
        log("Placed before the last stop, booked now: " + record.remotePath + " \u2192 " +
            r.finalName);
    }
}

Task<void> SyncEngine::bookResults(const std::vector<TransferResult>& results) {
    // Each placed file was booked when it was placed; the batch keeps its notification, sound
    // and post-action.
    std::vector<std::string> names;
    std::int64_t total = 0;
    for (const auto& r : results) {
        if (r.wasDeferred) continue;
        if (r.success) total += r.size;  // ignored files count too, as they always have
        if (r.wasIgnored) {
            trackedFiles_.erase(r.trackingKey);
            retryState_.erase(r.trackingKey);
            downloadTracker_->markDownloaded(r.trackingKey, r.size);
            trackedFileCount_.set(static_cast<int>(trackedFiles_.size()));
        } else if (r.success) {
            names.push_back(r.finalName);
        } else {
            handleFileFailure(r.trackingKey, r.size, r.errorMessage);
        }
    }
    if (names.empty()) co_return;
    services_.notifications.notifyDownloaded(names, total, config_.name);
    if (services_.globalSettings.playSoundOnDownload())
        services_.soundPlayer.play(services_.globalSettings.soundName());
    if (config_.postActionEnabled && !config_.postActionPath.empty()) runPostAction(names);
}

void SyncEngine::handleFileFailure(const std::string& key, std::int64_t size,
                                   const std::optional<std::string>& message) {
    const auto now = services_.runtime.clock.now();
    RetryInfo info = retryState_.contains(key) ? retryState_[key] : RetryInfo{0, now};
    const int a = ++info.attempts;
    const int m = config_.maxRetries;
    if (a >= m) {
        log("Retry exhausted for " + key + " after " + std::to_string(a) + " attempts",
            LogLevel::error);
        retryState_.erase(key);
        trackedFiles_.erase(key);
        services_.historyService.add({Uuid::random(), now, key, key, size, config_.host,
                                      config_.remotePath, config_.localPath, config_.name,
                                      TransferStatus::retryExhausted, message});
        services_.notifications.notifyTransferFailed(config_.name, key, m);
        return;
    }
    // Waits grow by three: 5, 15, 45 s... They are told in the log; the next poll tries anyway.
    // From attempt 21 on a wait no longer fits a time point: it is held at a century, which no
    // poll outlives.
    const double wait = 5.0 * std::pow(3.0, a - 1);
    const double heldWait = std::min(wait, maximumRetryWait.count());
    info.nextRetry = now + std::chrono::duration_cast<std::chrono::system_clock::duration>(
                               std::chrono::duration<double>(heldWait));
    retryState_[key] = info;
    char waitText[32];
    std::snprintf(waitText, sizeof waitText, "%.0f", std::trunc(wait));
    log("Will retry " + key + " in " + waitText + "s (attempt " + std::to_string(a) + "/" +
            std::to_string(m) + ")",
        LogLevel::warning);
}

}  // namespace tarnel
