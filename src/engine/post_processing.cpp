// What runs after a file has been placed: decompression of a single file, and the post-action
// of a whole batch.
#include <system_error>

#include "engine/destination.h"
#include "engine/gzip_decompression.h"
#include "engine/sync_engine.h"
#include "platform/foundation_path.h"
#include "platform/localized.h"
#include "platform/posix/process_launcher.h"
#include "platform/runtime.h"
#include "platform/uuid.h"
#include "records/history_service.h"
#include "records/notification_service.h"

namespace tarnel {

namespace fs = std::filesystem;

namespace {
constexpr const char* filePlaceholder = "{filepath}";
// The desktop's opener for a document, and its launcher for an application's ".desktop" entry.
constexpr const char* documentOpener = "xdg-open";
constexpr const char* applicationLauncher = "gio";

std::string lowercased(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return text;
}

// A plain split on each single blank: two blanks give an empty part, and nothing is quoted.
std::vector<std::string> splitOnBlanks(const std::string& text) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (true) {
        const auto blank = text.find(' ', start);
        parts.push_back(text.substr(start, blank - start));
        if (blank == std::string::npos)
            return parts;
        start = blank + 1;
    }
}
}  // namespace

Task<void> SyncEngine::decompressIfNeeded(fs::path file) {
    const std::string name = file.filename().string();
    const std::string extension = lowercased(pathExtension(file.string()));
    if (extension == "zip") {
        // Nothing here unpacks a zip: the desktop's handler for it does.
        if (auto error = launchProcess(documentOpener, {file.string()}, ProgramLookup::searchPath))
            log("Could not open ZIP " + name + ": " + *error, LogLevel::warning);
        else
            log("Opened ZIP with system handler: " + name);
        co_return;
    }
    if (extension != "gz")
        co_return;

    // Reading, inflating and syncing a large file, and removing one, take seconds: they run on a
    // worker. The engine is touched on the loop only, between the waits.
    Runtime& runtime = services_.runtime;
    std::string message, logText;
    try {
        // Named, not temporary: g++ 12 destroys a temporary awaiter that owns a path twice.
        auto inflating = onWorker(runtime, [file] { return gunzipBeside(file); });
        const fs::path inflated = co_await inflating;
        // Placed on the loop, where downloads are placed too, so that neither takes a name the
        // other has just chosen.
        const fs::path target = freeName(stringByDeletingPathExtension(file.string()));
        std::error_code ec;
        fs::rename(inflated, target, ec);
        if (ec) {
            std::error_code ignored;
            fs::remove(inflated, ignored);
            throw GzipFileError{"Could not move the file to '" + target.string() +
                                "': " + ec.message()};
        }
        auto removing = onWorker(runtime, [file] {
            std::error_code error;
            fs::remove(file, error);
            return error;
        });
        const std::error_code removal = co_await removing;
        if (removal)
            log("Could not remove compressed source " + name + ": " + removal.message(),
                LogLevel::warning);
        log("Decompressed: " + name + " \u2192 " + target.filename().string());
        co_return;
    } catch (const GzipDataError& e) {
        message = "Failed to decompress " + name;
        logText = "Gzip decompress failed: " + name + " \u2014 " + e.description;
    } catch (const GzipFileError& e) {
        message = logText = "Decompress error: " + e.description;
    }

    // The compressed file and every file beside it stay as they were; the transfer itself stays
    // a success.
    log(logText, LogLevel::warning);
    services_.notifications.notifyConnectionError(config_.name, localized(message));
    std::error_code ec;
    const auto size = fs::file_size(file, ec);
    services_.historyService.add({Uuid::random(), services_.runtime.clock.now(), name, name,
                                  ec ? 0 : static_cast<std::int64_t>(size), config_.host,
                                  config_.remotePath, file.parent_path().string(), config_.name,
                                  TransferStatus::error, message});
}

void SyncEngine::runPostAction(const std::vector<std::string>& names) {
    const std::string& action = config_.postActionPath;
    // The names are joined onto the main folder, also for files that routing placed elsewhere.
    std::vector<std::string> files;
    for (const auto& name : names)
        files.push_back(stringByAppendingPathComponent(config_.localPath, name));
    log("Running post-action: " + action);

    const auto launch = [this](const std::string& program, const std::vector<std::string>& args,
                               ProgramLookup lookup) {
        if (auto error = launchProcess(program, args, lookup))
            log("Post-action failed: " + *error, LogLevel::error);
    };

    if (action.ends_with(".desktop") || action.ends_with(".app")) {
        std::vector<std::string> args{"launch", action};
        args.insert(args.end(), files.begin(), files.end());
        launch(applicationLauncher, args, ProgramLookup::searchPath);
        return;
    }
    if (action.find(filePlaceholder) == std::string::npos) {
        // A document or folder: opened once for the batch, without the files.
        launch(documentOpener, {action}, ProgramLookup::searchPath);
        return;
    }
    const auto parts = splitOnBlanks(action);
    for (const auto& file : files) {
        // Only a part that is the placeholder and nothing else becomes the path.
        std::vector<std::string> args(parts.begin() + 1, parts.end());
        for (auto& arg : args)
            if (arg == filePlaceholder)
                arg = file;
        launch(parts.front(), args, ProgramLookup::asGiven);
    }
}

}  // namespace tarnel
