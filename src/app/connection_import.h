#pragma once

#include <set>
#include <string>
#include <vector>

#include "connections/connection_config.h"

namespace tarnel {

class ConnectionsManager;

// What an import file holds: its records, and for each the keys it left out, which took their
// defaults.
struct ConnectionImport {
    std::vector<ConnectionConfig> records;
    std::vector<std::vector<std::string>> defaultedKeys;  // one list per record
    // Records of the stored form marked "passwordInKeyring": their empty password means
    // "the one in the keyring", not "none".
    std::set<Uuid> passwordsInKeyring;

    // "record 0 took the defaults of: id, name, port", a line per record that left keys out;
    // "" when none did.
    std::string defaultsText() const;
};

// Reads FILE as a JSON array of connection records. A record needs only what a person must say:
// "transferProtocol", "host", "username", "password" or "sshKeyPath", "remotePath" and
// "localPath"; a missing "id" is generated and every other key takes its default (the port the
// protocol's). The full stored form, old forms included, reads as it is stored. Throws
// ConfigDecodeError naming the record and the key at fault, or std::runtime_error when the
// file cannot be read; nothing is imported then.
ConnectionImport readConnectionImport(const std::string& file);
// The same from the file's text (as a later launch hands it to the running one).
ConnectionImport readConnectionImportText(const std::string& text);

// A record whose id is known replaces that connection; any other is added. A replaced record
// marked as keeping its password in the keyring keeps the password the fleet has. The folders of
// each record (local, rule, fallback) are made when missing and granted as choosing them in the
// editor would. Returns a line a person can read: how many were added and replaced.
std::string importConnections(ConnectionsManager& manager, const ConnectionImport& import);

// The stored connections, a line each: name, protocol, user@host:port, remote -> local, and
// whether it is enabled.
std::string connectionListText(const std::vector<ConnectionConfig>& connections);

}  // namespace tarnel
