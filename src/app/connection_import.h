#pragma once

#include <string>
#include <vector>

#include "connections/connection_config.h"

namespace tarnel {

class ConnectionsManager;

// Reads FILE as a JSON array of connection records in the stored form. Throws
// ConfigDecodeError naming the record and the key at fault, or std::runtime_error when the
// file cannot be read; nothing is imported then.
std::vector<ConnectionConfig> readConnectionImport(const std::string& file);

// A record whose id is known replaces that connection; any other is added. The folders of each
// record (local, rule, fallback) are granted as choosing them in the editor would, the local
// folder made first if it is missing. Returns a line a person can read: how many were added
// and replaced.
std::string importConnections(ConnectionsManager& manager,
                              const std::vector<ConnectionConfig>& records);

}  // namespace tarnel
