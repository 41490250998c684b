#include "app/connection_import.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

#include "connections/config_json_values.h"
#include "connections/connection_config_json.h"
#include "fleet/connections_manager.h"
#include "platform/uuid.h"

namespace tarnel {

namespace {

// The keys of the stored form that its decoder cannot do without, found by leaving each out of
// a default record in turn, so that this list follows the decoder.
const std::set<std::string>& requiredKeys() {
    static const std::set<std::string> keys = [] {
        std::set<std::string> required;
        const Json full = encodeConnectionConfig(ConnectionConfig{});
        for (const auto& [key, value] : full.items()) {
            Json without = full;
            without.erase(key);
            try {
                decodeConnectionConfig(without);
            } catch (const ConfigDecodeError&) {
                required.insert(key);
            }
        }
        return required;
    }();
    return keys;
}

bool has(const Json& record, const char* key) {
    return record.contains(key) && !record[key].is_null();
}

// Fills in what a person may leave out of `record`, naming each key filled in `defaulted`; a
// routing rule without an id gets one too.
// What a person must say stays missing, so that the decoder names it.
void completeRecord(Json& record, std::vector<std::string>& defaulted) {
    if (!record.is_object()) return;
    const bool byKey = has(record, "sshKeyPath") && record["sshKeyPath"].is_string() &&
                       !record["sshKeyPath"].get<std::string>().empty();
    const std::set<std::string> personal{"transferProtocol", "host", "username", "remotePath",
                                         "localPath"};
    ConnectionConfig defaults;
    if (has(record, "transferProtocol")) {
        try {
            readValue(record["transferProtocol"], "transferProtocol", defaults.transferProtocol);
            defaults.port = defaultPort(defaults.transferProtocol);
        } catch (const ConfigDecodeError&) {
            // The decoder names it below.
        }
    }
    const Json full = encodeConnectionConfig(defaults);
    for (const auto& [key, value] : full.items()) {
        if (has(record, key.c_str())) continue;
        if (personal.contains(key) || (key == "password" && !byKey)) continue;
        defaulted.push_back(key);
        if (requiredKeys().contains(key)) record[key] = key == "id" ? Json(Uuid::random().toString()) : value;
    }
    if (has(record, "routingRules") && record["routingRules"].is_array())
        for (Json& rule : record["routingRules"])
            if (rule.is_object() && !has(rule, "id")) rule["id"] = Uuid::random().toString();
}

}  // namespace

std::string ConnectionImport::defaultsText() const {
    std::string text;
    for (std::size_t i = 0; i < defaultedKeys.size(); ++i) {
        if (defaultedKeys[i].empty()) continue;
        text += (text.empty() ? "" : "\n") + ("record " + std::to_string(i)) +
                " took the defaults of:";
        for (std::size_t k = 0; k < defaultedKeys[i].size(); ++k)
            text += (k ? ", " : " ") + defaultedKeys[i][k];
    }
    return text;
}

ConnectionImport readConnectionImport(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + file);
    std::ostringstream text;
    text << in.rdbuf();
    return readConnectionImportText(text.str());
}

ConnectionImport readConnectionImportText(const std::string& text) {
    Json list = Json::parse(text, nullptr, false);
    ConnectionImport result;
    if (!list.is_array()) {
        // Not an array of records: the decoder says what is wrong with it.
        result.records = decodeConnectionList(text);
        return result;
    }
    result.defaultedKeys.resize(list.size());
    for (std::size_t i = 0; i < list.size(); ++i) completeRecord(list[i], result.defaultedKeys[i]);
    result.records = decodeConnectionList(list.dump());
    for (std::size_t i = 0; i < list.size(); ++i)
        if (has(list[i], passwordInKeyringKey) && list[i][passwordInKeyringKey] == true)
            result.passwordsInKeyring.insert(result.records[i].id);
    return result;
}

namespace {

void makeFolder(const std::filesystem::path& folder) {
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
}

// Grants the record's folders as choosing each in the editor would, each made first if missing,
// as the engine would make it before placing a file there. A rule folder relative to the local
// folder needs no grant of its own.
void recordFolders(ConnectionsManager& manager, const ConnectionConfig& record) {
    if (!record.localPath.empty()) {
        makeFolder(record.localPath);
        manager.updateBookmark(record.localPath, record.id);
    }
    for (const auto& rule : record.routingRules)
        if (rule.destinationPath && rule.destinationPath->starts_with('/')) {
            makeFolder(*rule.destinationPath);
            manager.updateRuleBookmark(*rule.destinationPath, rule.id);
        }
    if (!record.fallbackPath.empty()) {
        makeFolder(record.fallbackPath);
        manager.updateFallbackBookmark(record.fallbackPath, record.id);
    }
}

}  // namespace

std::string importConnections(ConnectionsManager& manager, const ConnectionImport& import) {
    const auto& records = import.records;
    int added = 0, replaced = 0;
    for (const auto& record : records) {
        recordFolders(manager, record);
        const auto& known = manager.connections()();
        bool exists = std::any_of(known.begin(), known.end(),
                                  [&](const ConnectionConfig& c) { return c.id == record.id; });
        if (exists) {
            const bool inKeyring =
                import.passwordsInKeyring.contains(record.id) && record.password.empty();
            manager.updateConnection(record, inKeyring ? ConnectionsManager::Password::keep
                                                       : ConnectionsManager::Password::replace);
            ++replaced;
        } else {
            manager.addConnection(record);
            ++added;
        }
    }
    return "Imported " + std::to_string(records.size()) + " connection(s): " +
           std::to_string(added) + " added, " + std::to_string(replaced) + " replaced";
}

std::string connectionListText(const std::vector<ConnectionConfig>& connections) {
    if (connections.empty()) return "No connections stored.\n";
    std::string text;
    for (const auto& c : connections) {
        text += c.name + "  " + std::string(rawValue(c.transferProtocol)) + "  " + c.username + "@" +
                c.host + ":" + std::to_string(c.port) + "  " + c.remotePath + " \u2192 " +
                c.localPath + "  " + (c.enabled ? "enabled" : "disabled") + "\n";
    }
    return text;
}

}  // namespace tarnel
