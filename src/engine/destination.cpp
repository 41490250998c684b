#include "engine/destination.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <system_error>

#include "platform/foundation_path.h"

namespace tarnel {

namespace {

std::string formatted(const char* format, int value) {
    char text[16];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

std::string formattedTime(const char* format, const std::tm& tm) {
    char text[32];
    std::size_t length = std::strftime(text, sizeof text, format, &tm);
    return std::string(text, length);
}

// Every occurrence of `token`, left to right; text put in is not searched again.
void replaceAll(std::string& text, std::string_view token, std::string_view value) {
    for (auto at = text.find(token); at != std::string::npos;
         at = text.find(token, at + value.size())) {
        text.replace(at, token.size(), value);
    }
}

// Whether anything at all is at `path`, a dangling link included. A path that cannot be
// examined counts as free, so that the move itself reports why it cannot go there.
bool isTaken(const std::filesystem::path& path) {
    std::error_code error;
    auto type = std::filesystem::symlink_status(path, error).type();
    return type != std::filesystem::file_type::not_found &&
           type != std::filesystem::file_type::none;
}

}  // namespace

std::string baseLocalDestination(const ConnectionConfig& config, std::optional<TimePoint> date,
                                 const Clock& clock) {
    std::string path = config.localPath;
    if (config.organizeByConnection) {
        std::string folder = config.name;
        std::replace(folder.begin(), folder.end(), '/', '_');
        path = stringByAppendingPathComponent(path, folder);
    }
    if (config.organizeByDate) {
        std::tm day = clock.localTime(date.value_or(clock.now()));
        path = stringByAppendingPathComponent(path, std::to_string(day.tm_year + 1900) + "/" +
                                                        formatted("%02d", day.tm_mon + 1) + "/" +
                                                        formatted("%02d", day.tm_mday));
    }
    return path;
}

std::string destinationDirectory(const ConnectionConfig& config, const std::string& relativePath,
                                 std::optional<TimePoint> date, const Clock& clock) {
    std::string base = baseLocalDestination(config, date, clock);
    if (!config.exploreSubdirectories || relativePath.empty())
        return base;
    std::string dir = stringByDeletingLastPathComponent(relativePath);
    if (dir.empty() || dir == ".")
        return base;

    switch (config.subdirectoryOrganization) {
        case SubdirectoryOrganization::mirrorStructure:
            break;
        case SubdirectoryOrganization::flatAll:
            return base;
        case SubdirectoryOrganization::lastLevel: {
            std::string last = lastPathComponent(dir);
            return last.empty() ? base : stringByAppendingPathComponent(base, last);
        }
        case SubdirectoryOrganization::customPerFolder: {
            const auto& mappings = config.customFolderMappings;
            auto hit = mappings.find(stringByAppendingPathComponent(config.remotePath, dir));
            if (hit == mappings.end())
                hit = mappings.find(dir);
            if (hit != mappings.end())
                return hit->second;
            break;
        }
    }
    return stringByAppendingPathComponent(base, dir);
}

std::string applyRenamePattern(const ConnectionConfig& config, const std::string& name, int counter,
                               const Clock& clock) {
    if (config.renamePattern.empty())
        return name;
    std::string stem = stringByDeletingPathExtension(name);
    std::string ext = pathExtension(name);
    std::tm now = clock.localTime(clock.now());

    // The order matters: a stem holding "{date}" is expanded, a host holding "{original}" is not.
    std::string result = config.renamePattern;
    replaceAll(result, "{original}", stem);
    replaceAll(result, "{date}", formattedTime("%Y-%m-%d", now));
    replaceAll(result, "{time}", formattedTime("%H%M%S", now));
    replaceAll(result, "{counter}", formatted("%03d", counter));
    replaceAll(result, "{host}", config.host);
    if (!ext.empty())
        result += "." + ext;
    return result;
}

std::filesystem::path uniqueDestinationURL(
    const std::filesystem::path& url,
    const std::function<bool(const std::filesystem::path&)>& reserved) {
    const auto isFree = [&](const std::filesystem::path& path) {
        return !isTaken(path) && !(reserved && reserved(path));
    };
    if (isFree(url))
        return url;
    std::string folder = stringByDeletingLastPathComponent(url.string());
    std::string last = lastPathComponent(url.string());
    std::string stem = stringByDeletingPathExtension(last);
    std::string ext = pathExtension(last);
    for (long n = 1;; ++n) {
        std::string name = stem + " (" + std::to_string(n) + ")";
        if (!ext.empty())
            name += "." + ext;
        std::filesystem::path candidate = stringByAppendingPathComponent(folder, name);
        if (isFree(candidate))
            return candidate;
    }
}

std::filesystem::path partialFileURL(const std::filesystem::path& folder, const std::string& name,
                                     const std::string& connectionId,
                                     const std::string& trackingKey) {
    // FNV-1a: the tag only needs to tell apart the files of one folder, and to stay the same
    // from one run to the next, which std::hash does not promise.
    std::uint64_t hash = 0xcbf29ce484222325ULL;
    for (const std::string* part : {&connectionId, &trackingKey}) {
        for (unsigned char c : *part) {
            hash ^= c;
            hash *= 0x100000001b3ULL;
        }
        hash ^= 0xff;  // no two splits of one text give one tag
        hash *= 0x100000001b3ULL;
    }
    char tag[17];
    std::snprintf(tag, sizeof tag, "%016llx", static_cast<unsigned long long>(hash));
    return folder / (name + "." + std::string(tag, 12) + ".tarnel-partial");
}

std::optional<std::string> remotePathProblem(std::string_view path) {
    if (path.find('\0') != std::string_view::npos)
        return "the name holds a NUL byte";
    if (path.starts_with('/'))
        return "the name is an absolute path";
    std::size_t start = 0;
    while (start <= path.size()) {
        auto end = std::min(path.find('/', start), path.size());
        if (path.substr(start, end - start) == "..") {
            return "a \"..\" in the name would leave the destination folder";
        }
        start = end + 1;
    }
    return std::nullopt;
}

}  // namespace tarnel
