#include "records/history_service.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "platform/localized.h"
#include "platform/private_folder.h"
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
std::deque<HistoryEntry> load(const std::filesystem::path& file) {
    std::deque<HistoryEntry> entries;
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
    makePrivateFolder(file_.parent_path());  // what the user fetched, for the user alone
    for (const auto& e : entries_.value())
        encoded_.push_back(toJson(e).dump());
}

void HistoryService::add(HistoryEntry entry) {
    loop_.post([this, entry = std::move(entry)]() mutable {
        {
            std::lock_guard lock(encodedMutex_);
            encoded_.push_front(toJson(entry).dump());
            if (encoded_.size() > maxEntries)
                encoded_.pop_back();
        }
        entries_.update([&](std::deque<HistoryEntry>& list) {
            list.push_front(std::move(entry));
            if (list.size() > maxEntries)
                list.pop_back();
        });
        save();
    });
}

void HistoryService::clear() {
    loop_.post([this] {
        {
            std::lock_guard lock(encodedMutex_);
            encoded_.clear();
        }
        entries_.set({});
        save();
    });
}

HistoryService::~HistoryService() {
    if (heldBack_) queueWrite();
}

void HistoryService::flush() {
    if (heldBack_) {
        heldBack_ = false;
        queueWrite();
    }
    queue_.drain();
}

void HistoryService::save() {
    if (pacing_) {
        heldBack_ = true;
        return;
    }
    queueWrite();
    pacing_ = loop_.startTimer(writeInterval, false, [this] {
        auto ended = std::move(pacing_);  // destroyed on leaving: the callback may not outlive it
        if (heldBack_) {
            heldBack_ = false;
            save();
        }
    });
}

void HistoryService::queueWrite() {
    std::lock_guard lock(encodedMutex_);
    if (writeQueued_)
        return;  // the write in the queue takes this change too
    writeQueued_ = true;
    queue_.async([this] { write(); });
}

void HistoryService::write() {
    // Each entry was encoded once, when it came: a write costs the joining of the list.
    std::string text = "[";
    {
        std::lock_guard lock(encodedMutex_);
        writeQueued_ = false;
        for (const auto& e : encoded_) {
            if (text.size() > 1)
                text += ',';
            text += e;
        }
    }
    text += ']';
    replaceFileAtomically(file_, text);
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
