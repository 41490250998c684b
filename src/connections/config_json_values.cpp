#include "connections/config_json_values.h"

#include <array>
#include <cmath>
#include <limits>

#include "connections/connection_config_json.h"

namespace tarnel {

namespace {

constexpr std::array protocols{TransferProtocol::ftp, TransferProtocol::sftp,
                               TransferProtocol::ftps};
constexpr std::array organizations{
    SubdirectoryOrganization::mirrorStructure, SubdirectoryOrganization::flatAll,
    SubdirectoryOrganization::lastLevel, SubdirectoryOrganization::customPerFolder};
constexpr std::array matchTypes{RuleMatchType::allFiles, RuleMatchType::fileType,
                                RuleMatchType::nameContains, RuleMatchType::nameStartsWith,
                                RuleMatchType::customPattern};
constexpr std::array fallbacks{FallbackBehavior::useLocalFolder, FallbackBehavior::ignore,
                               FallbackBehavior::useSpecificFolder};

// "string", "boolean", "null", ... or the number itself, for the "got ..." half of a message.
std::string describe(const Json& value) {
    return value.is_number() ? "number " + value.dump() : value.type_name();
}

[[noreturn]] void failType(const Json& value, std::string_view key, std::string_view expected) {
    failKey(key, "expected " + std::string(expected) + ", got " + describe(value));
}

template <class Int>
Int readInteger(const Json& value, std::string_view key) {
    using Limits = std::numeric_limits<Int>;
    if (value.is_number_unsigned()) {
        if (value.get<std::uint64_t>() <= static_cast<std::uint64_t>(Limits::max()))
            return static_cast<Int>(value.get<std::uint64_t>());
    } else if (value.is_number_integer()) {
        const auto n = value.get<std::int64_t>();
        if (n >= Limits::min() && n <= Limits::max())
            return static_cast<Int>(n);
    } else if (value.is_number_float()) {
        // 21.0 is a whole number as well; other writers store integers that way.
        const double d = value.get<double>();
        if (d == std::trunc(d) && d >= static_cast<double>(Limits::min()) &&
            d < -static_cast<double>(Limits::min()))
            return static_cast<Int>(d);
    }
    failType(value, key, "an integer in range");
}

template <class E, std::size_t N>
E readRaw(const Json& value, std::string_view key, const std::array<E, N>& cases) {
    if (!value.is_string())
        failType(value, key, "a string");
    const auto& text = value.get_ref<const std::string&>();
    for (E e : cases)
        if (rawValue(e) == text)
            return e;
    failKey(key, "unknown value \"" + text + "\"");
}

}  // namespace

void failKey(std::string_view key, std::string_view why) {
    throw ConfigDecodeError("key \"" + std::string(key) + "\": " + std::string(why));
}

const Json& requiredField(const Json& object, std::string_view key) {
    auto it = object.find(key);
    if (it == object.end())
        failKey(key, "missing");
    return *it;
}

const Json* optionalField(const Json& object, std::string_view key) {
    auto it = object.find(key);
    return it == object.end() || it->is_null() ? nullptr : &*it;
}

void readValue(const Json& value, std::string_view key, std::string& out) {
    if (!value.is_string())
        failType(value, key, "a string");
    out = value.get<std::string>();
}

void readValue(const Json& value, std::string_view key, bool& out) {
    if (!value.is_boolean())
        failType(value, key, "true or false");
    out = value.get<bool>();
}

void readValue(const Json& value, std::string_view key, int& out) {
    out = readInteger<int>(value, key);
}

void readValue(const Json& value, std::string_view key, std::int64_t& out) {
    out = readInteger<std::int64_t>(value, key);
}

void readValue(const Json& value, std::string_view key, double& out) {
    if (!value.is_number())
        failType(value, key, "a number");
    out = value.get<double>();
}

void readValue(const Json& value, std::string_view key, Uuid& out) {
    if (!value.is_string())
        failType(value, key, "a UUID string");
    auto id = Uuid::parse(value.get_ref<const std::string&>());
    if (!id)
        failKey(key, "not a UUID: \"" + value.get<std::string>() + "\"");
    out = *id;
}

void readValue(const Json& value, std::string_view key, std::vector<bool>& out) {
    if (!value.is_array())
        failType(value, key, "an array of true or false");
    out.clear();
    for (const Json& entry : value) {
        if (!entry.is_boolean())
            failType(entry, key, "an array of true or false");
        out.push_back(entry.get<bool>());
    }
}

void readValue(const Json& value, std::string_view key, std::vector<std::string>& out) {
    if (!value.is_array())
        failType(value, key, "an array of strings");
    out.clear();
    for (const Json& entry : value) {
        if (!entry.is_string())
            failType(entry, key, "an array of strings");
        out.push_back(entry.get<std::string>());
    }
}

void readValue(const Json& value, std::string_view key, std::map<std::string, std::string>& out) {
    if (!value.is_object())
        failType(value, key, "an object of strings");
    out.clear();
    for (const auto& [name, entry] : value.items()) {
        if (!entry.is_string())
            failType(entry, key, "an object of strings");
        out.emplace(name, entry.get<std::string>());
    }
}

void readValue(const Json& value, std::string_view key, TransferProtocol& out) {
    out = readRaw(value, key, protocols);
}

void readValue(const Json& value, std::string_view key, SubdirectoryOrganization& out) {
    out = readRaw(value, key, organizations);
}

void readValue(const Json& value, std::string_view key, RuleMatchType& out) {
    out = readRaw(value, key, matchTypes);
}

void readValue(const Json& value, std::string_view key, FallbackBehavior& out) {
    out = readRaw(value, key, fallbacks);
}

void readValue(const Json& value, std::string_view key, FinderTagColor& out) {
    const int label = readInteger<int>(value, key);
    if (label < 1 || label > 7)
        failKey(key, "unknown value " + std::to_string(label));
    out = static_cast<FinderTagColor>(label);
}

std::string_view rawValue(TransferProtocol value) {
    return protocolName(value);
}

std::string_view rawValue(SubdirectoryOrganization value) {
    switch (value) {
        case SubdirectoryOrganization::mirrorStructure:
            return "mirrorStructure";
        case SubdirectoryOrganization::flatAll:
            return "flatAll";
        case SubdirectoryOrganization::lastLevel:
            return "lastLevel";
        case SubdirectoryOrganization::customPerFolder:
            return "customPerFolder";
    }
    return "mirrorStructure";
}

std::string_view rawValue(RuleMatchType value) {
    switch (value) {
        case RuleMatchType::allFiles:
            return "allFiles";
        case RuleMatchType::fileType:
            return "fileType";
        case RuleMatchType::nameContains:
            return "nameContains";
        case RuleMatchType::nameStartsWith:
            return "nameStartsWith";
        case RuleMatchType::customPattern:
            return "customPattern";
    }
    return "allFiles";
}

std::string_view rawValue(FallbackBehavior value) {
    switch (value) {
        case FallbackBehavior::useLocalFolder:
            return "useLocalFolder";
        case FallbackBehavior::ignore:
            return "ignore";
        case FallbackBehavior::useSpecificFolder:
            return "useSpecificFolder";
    }
    return "useLocalFolder";
}

}  // namespace tarnel
