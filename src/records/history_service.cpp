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
    : loop_(loop), file_(std::move(historyFile)), entries_(load(file_)) {
    for (const auto& e : entries_.value())
        encoded_.push_back(toJson(e).dump());
}

void HistoryService::add(HistoryEntry entry) {
    loop_.post([this, entry = std::move(entry)]() mutable {
        encoded_.push_front(toJson(entry).dump());
        if (encoded_.size() > maxEntries)
            encoded_.pop_back();
        entries_.update([&](std::vector<HistoryEntry>& list) {
            list.insert(list.begin(), std::move(entry));
            if (list.size() > maxEntries)
                list.pop_back();
        });
        save();
    });
}

void HistoryService::clear() {
    loop_.post([this] {
        encoded_.clear();
        entries_.set({});
        save();
    });
}

void HistoryService::save() {
    // Each entry is encoded once, when it comes: a file that arrives costs the joining of the
    // list, not its encoding. A text that a newer one already follows in the queue is skipped.
    std::string text = "[";
    for (const auto& e : encoded_) {
        if (text.size() > 1)
            text += ',';
        text += e;
    }
    text += ']';
    const auto generation = ++savedGeneration_;
    queue_.async([this, generation, text = std::move(text)] {
        if (generation != savedGeneration_.load())
            return;
        replaceFileAtomically(file_, text);
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
