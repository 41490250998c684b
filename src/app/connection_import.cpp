#include "app/connection_import.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "connections/connection_config_json.h"
#include "fleet/connections_manager.h"

namespace tarnel {

std::vector<ConnectionConfig> readConnectionImport(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + file);
    std::ostringstream text;
    text << in.rdbuf();
    return decodeConnectionList(text.str());
}

namespace {

// Grants the record's folders as choosing each in the editor would. The local folder is made
// first, as the engine would make it at its first poll; a rule folder relative to it needs no
// grant of its own.
void recordFolders(ConnectionsManager& manager, const ConnectionConfig& record) {
    if (!record.localPath.empty()) {
        std::error_code ignored;
        std::filesystem::create_directories(record.localPath, ignored);
        manager.updateBookmark(record.localPath, record.id);
    }
    for (const auto& rule : record.routingRules)
        if (rule.destinationPath && rule.destinationPath->starts_with('/'))
            manager.updateRuleBookmark(*rule.destinationPath, rule.id);
    if (!record.fallbackPath.empty()) manager.updateFallbackBookmark(record.fallbackPath, record.id);
}

}  // namespace

std::string importConnections(ConnectionsManager& manager,
                              const std::vector<ConnectionConfig>& records) {
    int added = 0, replaced = 0;
    for (const auto& record : records) {
        recordFolders(manager, record);
        const auto& known = manager.connections()();
        bool exists = std::any_of(known.begin(), known.end(),
                                  [&](const ConnectionConfig& c) { return c.id == record.id; });
        if (exists) {
            manager.updateConnection(record);
            ++replaced;
        } else {
            manager.addConnection(record);
            ++added;
        }
    }
    return "Imported " + std::to_string(records.size()) + " connection(s): " +
           std::to_string(added) + " added, " + std::to_string(replaced) + " replaced";
}

}  // namespace tarnel
