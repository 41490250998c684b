#include "records/history_service.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include <locale.h>
#include <nlohmann/json.hpp>
#include <wctype.h>

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

// Every letter in lower case, not only ASCII ("Été" finds "été"), whatever the process's locale:
// UTF-8 is decoded, each code point lowered by the C.UTF-8 tables, and encoded again. Bytes
// that are no UTF-8 stay as they are.
std::string lowered(const std::string& text) {
    static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t{});
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = lead < 0x80 ? 1 : (lead >> 5) == 6 ? 2 : (lead >> 4) == 14 ? 3
                                 : (lead >> 3) == 30 ? 4 : 0;
        char32_t point = length == 1 ? lead : length ? (lead & (0x7f >> length)) : 0;
        bool valid = length > 0 && i + length <= text.size();
        for (std::size_t k = 1; valid && k < length; ++k) {
            const auto next = static_cast<unsigned char>(text[i + k]);
            valid = (next & 0xc0) == 0x80;
            point = (point << 6) | (next & 0x3f);
        }
        if (!valid || !unicode) {
            out += text[i++];
            continue;
        }
        point = static_cast<char32_t>(towlower_l(static_cast<wint_t>(point), unicode));
        if (point < 0x80) {
            out += static_cast<char>(point);
        } else if (point < 0x800) {
            out += static_cast<char>(0xc0 | (point >> 6));
            out += static_cast<char>(0x80 | (point & 0x3f));
        } else if (point < 0x10000) {
            out += static_cast<char>(0xe0 | (point >> 12));
            out += static_cast<char>(0x80 | ((point >> 6) & 0x3f));
            out += static_cast<char>(0x80 | (point & 0x3f));
        } else {
            out += static_cast<char>(0xf0 | (point >> 18));
            out += static_cast<char>(0x80 | ((point >> 12) & 0x3f));
            out += static_cast<char>(0x80 | ((point >> 6) & 0x3f));
            out += static_cast<char>(0x80 | (point & 0x3f));
        }
        i += length;
    }
    return out;
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
