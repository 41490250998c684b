#include "records/history_service.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "platform/localized.h"
#include "records/atomic_file.h"

namespace tarnel {

namespace {

nlohmann::json toJson(const HistoryEntry& e) {
    nlohmann::json j = {{"id", e.id.toString()},
                        {"timestamp", toReferenceSeconds(e.timestamp)},
                        {"filename", e.filename},
                        {"finalFilename", e.finalFilename},
                        {"sizeBytes", e.sizeBytes},
                        {"sourceHost", e.sourceHost},
                        {"sourcePath", e.sourcePath},
                        {"destinationPath", e.destinationPath},
                        {"connectionName", e.connectionName},
                        {"status", rawValue(e.status)}};
    if (e.errorMessage)
        j["errorMessage"] = *e.errorMessage;
    return j;
}

struct BadEntry : std::runtime_error {
    using std::runtime_error::runtime_error;
};

HistoryEntry fromJson(const nlohmann::json& j) {
    HistoryEntry e;
    auto id = Uuid::parse(j.at("id").get<std::string>());
    auto status = transferStatusFromRaw(j.at("status").get<std::string>());
    if (!id || !status)
        throw BadEntry("history entry with a bad id or status");
    e.id = *id;
    e.status = *status;
    e.timestamp = fromReferenceSeconds(j.at("timestamp").get<double>());
    e.filename = j.at("filename").get<std::string>();
    e.finalFilename = j.at("finalFilename").get<std::string>();
    e.sizeBytes = j.at("sizeBytes").get<std::int64_t>();
    e.sourceHost = j.at("sourceHost").get<std::string>();
    e.sourcePath = j.at("sourcePath").get<std::string>();
    e.destinationPath = j.at("destinationPath").get<std::string>();
    e.connectionName = j.at("connectionName").get<std::string>();
    if (auto it = j.find("errorMessage"); it != j.end() && !it->is_null())
        e.errorMessage = it->get<std::string>();
    return e;
}

// An unreadable file gives an empty history; it stays on disk until the next save replaces it.
std::vector<HistoryEntry> load(const std::filesystem::path& file) {
    std::vector<HistoryEntry> entries;
    auto text = readWholeFile(file);
    if (!text)
        return entries;
    try {
        for (const auto& item : nlohmann::json::parse(*text)) {
            if (entries.size() == HistoryService::maxEntries)
                break;
            entries.push_back(fromJson(item));
        }
    } catch (const std::exception&) {
        entries.clear();
    }
    return entries;
}

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

}  // namespace

const char* rawValue(TransferStatus status) {
    switch (status) {
        case TransferStatus::success:
            return "success";
        case TransferStatus::error:
            return "error";
        case TransferStatus::retryExhausted:
            return "retryExhausted";
    }
    return "error";
}

std::optional<TransferStatus> transferStatusFromRaw(const std::string& raw) {
    for (auto s : {TransferStatus::success, TransferStatus::error, TransferStatus::retryExhausted})
        if (raw == rawValue(s))
            return s;
    return std::nullopt;
}

std::string displayText(TransferStatus status) {
    switch (status) {
        case TransferStatus::success:
            return localized("Success");
        case TransferStatus::error:
            return localized("Error");
        case TransferStatus::retryExhausted:
            return localized("Retry Failed");
    }
    return localized("Error");
}

HistoryService::HistoryService(MainLoop& loop, std::filesystem::path historyFile)
    : loop_(loop), file_(std::move(historyFile)), entries_(load(file_)) {}

void HistoryService::add(HistoryEntry entry) {
    loop_.post([this, entry = std::move(entry)]() mutable {
        auto list = entries_.value();
        list.insert(list.begin(), std::move(entry));
        if (list.size() > maxEntries)
            list.resize(maxEntries);
        entries_.set(std::move(list));
        save();
    });
}

void HistoryService::clear() {
    loop_.post([this] {
        entries_.set({});
        save();
    });
}

void HistoryService::save() {
    // Each write carries its own snapshot and is encoded on the writer. A snapshot that a newer
    // one already follows in the queue is skipped: a burst of entries costs one write, not one
    // per entry.
    const auto generation = ++savedGeneration_;
    queue_.async([this, generation, snapshot = entries_.value()] {
        if (generation != savedGeneration_.load())
            return;
        auto array = nlohmann::json::array();
        for (const auto& e : snapshot)
            array.push_back(toJson(e));
        replaceFileAtomically(file_, array.dump());
    });
}

bool HistoryService::matches(const HistoryEntry& entry, const std::string& text,
                             std::optional<TransferStatus> status) {
    if (status && *status != entry.status)
        return false;
    if (text.empty())
        return true;
    const auto needle = lowered(text);
    for (const auto* field : {&entry.filename, &entry.connectionName, &entry.sourceHost})
        if (lowered(*field).find(needle) != std::string::npos)
            return true;
    return false;
}

std::vector<HistoryEntry> HistoryService::filtered(const std::string& text,
                                                   std::optional<TransferStatus> status) const {
    std::vector<HistoryEntry> out;
    std::copy_if(entries_.value().begin(), entries_.value().end(), std::back_inserter(out),
                 [&](const HistoryEntry& e) { return matches(e, text, status); });
    return out;
}

}  // namespace tarnel
