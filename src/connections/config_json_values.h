#pragma once

#include <cstdint>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "connections/connection_config.h"

namespace tarnel {

// Typed reads and writes of single stored values, for the record and rule codecs. A read that
// fails throws ConfigDecodeError naming `key`.

using Json = nlohmann::ordered_json;

[[noreturn]] void failKey(std::string_view key, std::string_view why);

// The value of a required key; throws when it is missing.
const Json& requiredField(const Json& object, std::string_view key);
// The value of an optional key, or nullptr when it is missing or null.
const Json* optionalField(const Json& object, std::string_view key);

void readValue(const Json& value, std::string_view key, std::string& out);
void readValue(const Json& value, std::string_view key, bool& out);
void readValue(const Json& value, std::string_view key, int& out);
void readValue(const Json& value, std::string_view key, std::int64_t& out);
void readValue(const Json& value, std::string_view key, double& out);
void readValue(const Json& value, std::string_view key, Uuid& out);
void readValue(const Json& value, std::string_view key, std::vector<bool>& out);
void readValue(const Json& value, std::string_view key, std::vector<std::string>& out);
void readValue(const Json& value, std::string_view key, std::map<std::string, std::string>& out);
void readValue(const Json& value, std::string_view key, TransferProtocol& out);
void readValue(const Json& value, std::string_view key, SubdirectoryOrganization& out);
void readValue(const Json& value, std::string_view key, RuleMatchType& out);
void readValue(const Json& value, std::string_view key, FallbackBehavior& out);
void readValue(const Json& value, std::string_view key, FinderTagColor& out);

template <class T>
void readRequired(const Json& object, std::string_view key, T& out) {
    readValue(requiredField(object, key), key, out);
}

// Leaves `out` at its fallback when the key is missing or null.
template <class T>
void readOptional(const Json& object, std::string_view key, T& out) {
    if (const Json* value = optionalField(object, key))
        readValue(*value, key, out);
}

// Raw values as stored.
std::string_view rawValue(TransferProtocol value);
std::string_view rawValue(SubdirectoryOrganization value);
std::string_view rawValue(RuleMatchType value);
std::string_view rawValue(FallbackBehavior value);

}  // namespace tarnel
