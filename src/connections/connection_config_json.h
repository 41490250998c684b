#pragma once

#include <nlohmann/json.hpp>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "connections/connection_config.h"

namespace tarnel {

// A stored record that cannot be read. The message names the key and why, and for a list the
// record's index, e.g. `record 2: key "port": missing`; it is shown to the user as it stands.
class ConfigDecodeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The stored form: every key, always, in field order (hence the ordered object). Plain
// nlohmann::json converts to and from it implicitly.
nlohmann::ordered_json encodeConnectionConfig(const ConnectionConfig& config);
// Optional keys that are missing or null take their defaults; old forms are migrated. Throws
// ConfigDecodeError.
ConnectionConfig decodeConnectionConfig(const nlohmann::ordered_json& json);

// The key that marks a stored record whose password is kept in the desktop's keyring (its own
// `password` then empty). No field of the record: the list's storage sets and reads it.
inline constexpr const char* passwordInKeyringKey = "passwordInKeyring";

// The JSON array under which the connection list is stored; the records of `passwordsInKeyring`
// are marked.
std::string encodeConnectionList(const std::vector<ConnectionConfig>& configs,
                                 const std::set<Uuid>& passwordsInKeyring = {});
// Throws ConfigDecodeError for text that is no JSON array or a record that fails.
std::vector<ConnectionConfig> decodeConnectionList(std::string_view jsonText);

// The records of a list that read, and for each one that does not, what ConfigDecodeError would
// say of it. Throws ConfigDecodeError for text that is no JSON array.
struct DecodedConnectionList {
    std::vector<ConnectionConfig> connections;
    std::vector<std::string> problems;
    std::set<Uuid> passwordsInKeyring;  // the marked records among `connections`
};
DecodedConnectionList decodeReadableConnections(std::string_view jsonText);

nlohmann::ordered_json encodeRoutingRule(const RoutingRule& rule);
// Reads the old form too: a lone `pattern` becomes an all-files or a custom-pattern rule.
RoutingRule decodeRoutingRule(const nlohmann::ordered_json& json);

}  // namespace tarnel
