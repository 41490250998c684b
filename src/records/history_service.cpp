#include "records/history_service.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include <locale.h>
#include <nlohmann/json.hpp>
#include <wctype.h>

#include "platform/localized.h"
#include "records/store_migration.h"

namespace tarnel {

namespace {

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

// The entries of an older "history.json", newest first; one that does not read gives none, as
// it always has.
std::vector<HistoryEntry> decodeStore(const std::string& text) {
    std::vector<HistoryEntry> entries;
    try {
        for (const auto& item : nlohmann::json::parse(text))
            entries.push_back(fromJson(item));
    } catch (const std::exception&) {
        entries.clear();
    }
    return entries;
}

void writeRow(Journal& j, const HistoryEntry& e) {
    auto& insert = j.statement(
        "INSERT INTO history(id, timestamp, filename, final_filename, size_bytes, "
        "source_host, source_path, destination_path, connection_name, status, error_message) "
        "VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11)");
    insert.bind(1, e.id.toString())
        .bind(2, toReferenceSeconds(e.timestamp))
        .bind(3, e.filename)
        .bind(4, e.finalFilename)
        .bind(5, e.sizeBytes)
        .bind(6, e.sourceHost)
        .bind(7, e.sourcePath)
        .bind(8, e.destinationPath)
        .bind(9, e.connectionName)
        .bind(10, std::string_view(rawValue(e.status)));
    if (e.errorMessage)
        insert.bind(11, *e.errorMessage);
    insert.step();
}

// Moves an older "history.json" into the journal, the oldest entry first so that the order of
// the rows stays the order of the list.
void migrate(Journal& journal, const std::filesystem::path& historyFile) {
    migrateStoreFile(journal, historyFile, [](Journal& j, const std::string& text) {
        const auto entries = decodeStore(text);
        const auto rows = [&] {
            auto& count = j.statement("SELECT count(*) FROM history");
            count.step();
            return count.integer(0);
        };
        const auto before = rows();
        for (auto e = entries.rbegin(); e != entries.rend(); ++e)
            writeRow(j, *e);
        return rows() - before == static_cast<std::int64_t>(entries.size());
    });
}

// The newest entries, after dropping those beyond them that are older than the journal keeps.
std::deque<HistoryEntry> load(Journal& journal) {
    std::deque<HistoryEntry> entries;
    journal.write([&](Journal& j) {
        const auto oldest = toReferenceSeconds(std::chrono::system_clock::now() - HistoryService::keptFor);
        // The list's 500 stay whatever their age.
        j.statement(
             "DELETE FROM history WHERE timestamp < ?1 AND seq < (SELECT min(seq) FROM "
             "(SELECT seq FROM history ORDER BY seq DESC LIMIT ?2))")
            .bind(1, oldest)
            .bind(2, static_cast<std::int64_t>(HistoryService::maxEntries))
            .step();
        auto& rows = j.statement(
            "SELECT id, timestamp, filename, final_filename, size_bytes, source_host, "
            "source_path, destination_path, connection_name, status, error_message "
            "FROM history ORDER BY seq DESC LIMIT ?1");
        rows.bind(1, static_cast<std::int64_t>(HistoryService::maxEntries));
        while (rows.step()) {
            auto id = Uuid::parse(rows.text(0));
            auto status = transferStatusFromRaw(rows.text(9));
            if (!id || !status)
                continue;
            entries.push_back({*id, fromReferenceSeconds(rows.real(1)), rows.text(2), rows.text(3),
                               rows.integer(4), rows.text(5), rows.text(6), rows.text(7),
                               rows.text(8), *status,
                               rows.isNull(10) ? std::nullopt
                                               : std::optional<std::string>(rows.text(10))});
        }
    });
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

HistoryService::HistoryService(MainLoop& loop, std::shared_ptr<Journal> journal,
                               const std::filesystem::path& historyFile)
    : loop_(loop), journal_(std::move(journal)) {
    migrate(*journal_, historyFile);
    entries_.set(load(*journal_));
}

HistoryService::HistoryService(MainLoop& loop, const std::filesystem::path& historyFile)
    : HistoryService(loop, Journal::open(historyFile.parent_path() / "journal.db"), historyFile) {}

void HistoryService::add(HistoryEntry entry) {
    // The row is written at once, from the calling thread: a flush() on the loop takes it along
    // even while the list has yet to show it.
    journal_->write([&](Journal& j) { writeRow(j, entry); });
    loop_.post([this, entry = std::move(entry)]() mutable {
        entries_.update([&](std::deque<HistoryEntry>& list) {
            list.push_front(std::move(entry));
            if (list.size() > maxEntries)
                list.pop_back();
        });
    });
}

void HistoryService::clear() {
    journal_->write([](Journal& j) { j.execute("DELETE FROM history"); });
    loop_.post([this] { entries_.set({}); });
}

void HistoryService::flush() {
    journal_->commit();
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
