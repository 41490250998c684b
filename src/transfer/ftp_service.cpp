#include "transfer/ftp_service.h"

#include <system_error>

#include "platform/localized.h"
#include "transfer/ftp_error.h"
#include "transfer/listing_parser.h"
#include "transfer/remote_url.h"

namespace tarnel {
namespace {

bool leadsTo(const std::string& relativePath, const std::vector<std::string>& allowedPaths) {
    const auto withSlash = [](const std::string& p) { return p.ends_with('/') ? p : p + "/"; };
    const std::string r = withSlash(relativePath);
    for (const std::string& allowed : allowedPaths) {
        const std::string a = withSlash(allowed);
        // The folder lies in an allowed one, or is on the way to one.
        if (r.starts_with(a) || a.starts_with(r)) {
            return true;
        }
    }
    return false;
}

// A download libcurl calls good fails if no file is where it wrote; so does one whose file the
// file system cannot vouch for (EIO, ESTALE, EACCES on a network mount), in its words.
std::exception_ptr missingAfterDownload(const std::string& name, const std::filesystem::path& to) {
    std::error_code ec;
    if (std::filesystem::exists(to, ec)) return nullptr;
    return std::make_exception_ptr(FTPError::downloadFailed(
        ec ? "Cannot check the downloaded file '" + to.string() + "': " + ec.message()
           : "File not found after download: " + name));
}

bool isFTPFamily(TransferProtocol protocol) {
    return protocol == TransferProtocol::ftp || protocol == TransferProtocol::ftps;
}

// What the connection test says the server offers.
std::string featuresText(const ServerFeatures& features, TransferProtocol protocol) {
    const auto checksum = offeredChecksum(features);
    std::string text =
        checksum ? localizedFormat("%@ checksums", {std::string(digestName(*checksum))})
                 : localized("No checksum: files are verified by size");
    if (!isFTPFamily(protocol)) return text;
    return text + ", " +
           (features.machineListings ? localized("MLSD listings") : localized("LIST listings"));
}

}  // namespace

FTPService::FTPService(ConnectionConfig config, LogService& logService,
                       std::unique_ptr<CurlTransferClient> client)
    : config_(std::move(config)), logService_(logService), client_(std::move(client)) {
    client_->onSessionLimit([this](int accepted) {
        log("The server accepts " + std::to_string(accepted) +
                " session(s) at once; transfers wait for a free one",
            LogLevel::info);
    });
}

void FTPService::log(const std::string& text, LogLevel level) {
    logService_.log("[" + config_.name + "] " + text, level);
}

ServerFeatures FTPService::knownFeatures() {
    std::lock_guard lock(featuresMutex_);
    return features_.value_or(ServerFeatures{});
}

ServerFeatures FTPService::features() {
    if (!isFTPFamily(config_.transferProtocol)) return {};
    {
        std::lock_guard lock(featuresMutex_);
        if (features_) return *features_;
    }
    // Two first listings may both ask: the answers are the same.
    const ServerFeatures asked = parseFeatures(client_->readFeatures());
    std::lock_guard lock(featuresMutex_);
    if (!features_) features_ = asked;
    return *features_;
}

void FTPService::withFeatures(std::function<void(std::exception_ptr)> then) {
    bool known = !isFTPFamily(config_.transferProtocol);
    {
        std::lock_guard lock(featuresMutex_);
        known = known || features_.has_value();
    }
    if (known) {
        then(nullptr);
        return;
    }
    auto replies = std::make_shared<std::string>();
    client_->startReadFeatures(replies, [this, replies, then = std::move(then)](
                                            std::exception_ptr error) {
        if (!error) {
            std::lock_guard lock(featuresMutex_);
            if (!features_) features_ = parseFeatures(*replies);
        }
        then(std::move(error));
    });
}

void FTPService::fallBackToLIST(const std::string& why) {
    if (!listsWithLIST_.exchange(true))
        log("MLSD " + why + "; listing with LIST from now on", LogLevel::info);
}

std::optional<std::vector<FTPFileEntry>> FTPService::machineListing(const std::string& url,
                                                                    bool includeDirectories) {
    if (listsWithLIST_ || !features().machineListings) return std::nullopt;
    const auto text = client_->listMachineReadable(url);
    if (!text) {
        fallBackToLIST("refused by the server");
        return std::nullopt;
    }
    auto entries = parseMachineListing(*text, includeDirectories);
    if (!entries) fallBackToLIST("gave an answer that does not read as a listing");
    return entries;
}

std::vector<FTPFileEntry> FTPService::listFiles() {
    const std::string url = remoteFolderURL(config_, config_.remotePath);
    if (auto entries = machineListing(url, false)) {
        inFallbackRun_ = false;
        return std::move(*entries);
    }
    auto entries = parseListing(client_->listDirectory(url), false);
    if (!entries.empty()) {
        inFallbackRun_ = false;
        return entries;
    }
    // An empty folder lands here too: it cannot be told apart from an unreadable listing. An
    // emptied drop folder is the normal state in move mode, so the warning marks where such a
    // run of polls begins, not each poll of it.
    if (!inFallbackRun_.exchange(true)) {
        log("LIST returned unparseable output, falling back to NLST", LogLevel::warning);
    }
    const auto names = parseNameList(client_->listNames(url));
    if (names.empty()) {
        return {};
    }
    log("Fallback: NLST+SIZE for " + std::to_string(names.size()) + " name(s)", LogLevel::info);
    return entriesFromNames(names);
}

std::vector<FTPFileEntry> FTPService::entriesFromNames(const std::vector<std::string>& names) {
    std::vector<FTPFileEntry> entries;
    for (const std::string& name : names) {
        std::string headers;
        try {
            headers = client_->fetchHeaders(name);
        } catch (const FTPError& error) {
            log("HEAD failed for " + name + ": " + error.errorDescription(), LogLevel::warning);
            continue;
        }
        if (const auto size = parseContentLength(headers)) {
            entries.push_back(FTPFileEntry{name, *size, false, ""});
        }
    }
    return entries;
}

std::vector<FTPFileEntry> FTPService::listFiles(const std::string& atPath) {
    const std::string url = remoteFolderURL(config_, atPath);
    if (auto entries = machineListing(url, true)) return std::move(*entries);
    auto entries = parseListing(client_->listDirectory(url), true);
    if (!entries.empty()) {
        return entries;
    }
    for (std::string& name : parseNameList(client_->listNames(url))) {
        entries.push_back(FTPFileEntry{std::move(name), 0, false, ""});
    }
    return entries;
}

void FTPService::collectFiles(const std::string& path, const std::string& relativePath, int depth,
                              int maxDepth,
                              const std::optional<std::vector<std::string>>& allowedPaths,
                              std::vector<FTPFileEntry>& into) {
    for (FTPFileEntry& entry : listFiles(path)) {
        const std::string rel = relativePath.empty() ? entry.name : relativePath + "/" + entry.name;
        if (!entry.isDirectory) {
            entry.relativePath = rel;
            into.push_back(std::move(entry));
            continue;
        }
        if (depth >= maxDepth || (allowedPaths && !leadsTo(rel, *allowedPaths))) {
            continue;
        }
        const std::string child = path.ends_with('/') ? path + entry.name : path + "/" + entry.name;
        collectFiles(child, rel, depth + 1, maxDepth, allowedPaths, into);
    }
}

void FTPService::tellNoChecksum() {
    if (!toldNoChecksum_.exchange(true))
        log("The server offers no checksum; files are verified by their size", LogLevel::info);
}

void FTPService::startDownloadFile(const std::string& name, const std::filesystem::path& to,
                                   std::int64_t resumeFrom, ProgressCallback onProgress,
                                   const std::optional<std::string>& remoteURL,
                                   std::shared_ptr<ChecksumVerdict> verdict, Completion done) {
    std::string source = remoteURL ? *remoteURL : remoteFileURL(config_, config_.remotePath, name);
    // Told once, also when the download cannot even start after the features were asked for.
    auto finished = std::make_shared<Completion>(std::move(done));
    const auto ended = [name, to, finished](std::function<std::exception_ptr()> judge = {}) {
        return [name, to, finished, judge = std::move(judge)](std::exception_ptr error) {
            if (!error) error = missingAfterDownload(name, to);
            if (!error && judge) error = judge();
            (*finished)(std::move(error));
        };
    };
    if (!config_.checksumVerification || !verdict) {
        client_->startDownload(source, to, resumeFrom, std::move(onProgress), ended());
        return;
    }
    withFeatures([=, this, onProgress = std::move(onProgress)](std::exception_ptr error) mutable {
        if (error) {
            (*finished)(std::move(error));
            return;
        }
        try {
            const auto query = checksumQuery(knownFeatures(), remoteItemName(source));
            if (!query) {
                tellNoChecksum();
                // The MD5 the log gives such a file, taken while it is written: no second read.
                auto answer = std::make_shared<DownloadChecksum>();
                client_->startDownload(source, to, resumeFrom, std::move(onProgress),
                                       ChecksumQuery{DigestAlgorithm::md5, {}}, answer,
                                       ended([answer, verdict]() -> std::exception_ptr {
                                           verdict->localMD5 = answer->localDigest;
                                           return nullptr;
                                       }));
                return;
            }
            auto answer = std::make_shared<DownloadChecksum>();
            const DigestAlgorithm algorithm = query->algorithm;
            client_->startDownload(
                source, to, resumeFrom, std::move(onProgress), query, answer,
                ended([algorithm, answer, verdict]() -> std::exception_ptr {
                    const auto server = digestInReply(answer->replies, algorithm);
                    if (!server) {
                        verdict->unanswered = lastReply(answer->replies);
                        return nullptr;
                    }
                    if (*server != answer->localDigest)
                        return std::make_exception_ptr(FTPError::checksumMismatch(
                            std::string(digestName(algorithm)), *server, answer->localDigest));
                    verdict->algorithm = algorithm;
                    verdict->digest = *server;
                    return nullptr;
                }));
        } catch (...) {
            (*finished)(std::current_exception());
        }
    });
}

void FTPService::startDeleteFile(const std::string& name, Completion done) {
    client_->startRemoveFile(name, std::move(done));
}

void FTPService::startDeleteDirectory(const std::string& path, Completion done) {
    client_->startRemoveDirectory(path, std::move(done));
}

int FTPService::testConnectionSteps(const TestProgress& progress) {
    std::vector<TestStep> steps(5);
    steps[0].name = localized("DNS resolution");
    steps[1].name = localized("TCP connection");
    steps[2].name = localized("Authentication");
    steps[3].name = localized("Remote folder access");
    steps[4].name = localized("Checksum and listing");

    const auto set = [&](std::size_t row, TestStepStatus status,
                         std::optional<std::string> detail = std::nullopt) {
        steps[row].status = status;
        steps[row].detail = std::move(detail);
        progress(steps);
    };
    const auto failRow = [&](std::size_t row, std::string detail) {
        set(row, TestStepStatus::failure, std::move(detail));
    };

    set(0, TestStepStatus::running);
    if (!resolveHost(config_.host)) {
        failRow(0, localizedFormat("Host '%@' not found", {config_.host}));
        throw FTPError::curlExitCode(6, "DNS resolution failed");
    }
    set(0, TestStepStatus::success);

    set(1, TestStepStatus::running);
    try {
        client_->probeConnection();
    } catch (const FTPError& error) {
        if (error.curlCode() != CURLE_LOGIN_DENIED) {
            failRow(1, localizedFormat("Cannot connect to port %lld", {std::to_string(config_.port)}));
            throw;
        }
    }
    set(1, TestStepStatus::success);

    // The login must be proven now, not ridden on a session opened earlier.
    client_->closeIdleConnections();
    set(2, TestStepStatus::running);
    try {
        listFiles();
    } catch (const FTPError& error) {
        if (error.curlCode() == CURLE_LOGIN_DENIED) {
            failRow(2, localized("Wrong username or password"));
            throw;
        }
        // The login worked and only the folder was refused: that is the next row's affair.
        if (error.curlCode() != CURLE_REMOTE_ACCESS_DENIED) {
            failRow(2, error.errorDescription());
            throw;
        }
    } catch (const std::exception& error) {
        failRow(2, error.what());
        throw;
    }
    set(2, TestStepStatus::success);

    set(3, TestStepStatus::running);
    std::size_t count = 0;
    try {
        count = listFiles().size();
    } catch (...) {
        failRow(3, localizedFormat("Folder not accessible: %@", {config_.remotePath}));
        throw;
    }
    set(3, TestStepStatus::success, localizedCount("%n file(s) found", static_cast<int>(count)));

    set(4, TestStepStatus::running);
    try {
        set(4, TestStepStatus::success, featuresText(features(), config_.transferProtocol));
    } catch (const std::exception& error) {
        failRow(4, error.what());
        throw;
    }
    return static_cast<int>(count);
}

}  // namespace tarnel
