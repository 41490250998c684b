#include "platform/settings_store.h"

#include <algorithm>
#include <charconv>

namespace tarnel {

namespace {
template <typename N>
std::optional<N> parseNumber(const std::string& s) {
    N out{};
    auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), out);
    if (ec != std::errc{} || end != s.data() + s.size()) return std::nullopt;
    return out;
}
}  // namespace

std::optional<bool> SettingsStore::boolValue(const std::string& key) const {
    auto v = value(key);
    if (!v) return std::nullopt;
    if (auto b = std::get_if<bool>(&*v)) return *b;
    if (auto i = std::get_if<std::int64_t>(&*v)) return *i != 0;
    if (auto d = std::get_if<double>(&*v)) return *d != 0;
    if (auto s = std::get_if<std::string>(&*v)) {
        if (*s == "true" || *s == "YES" || *s == "yes") return true;
        if (*s == "false" || *s == "NO" || *s == "no") return false;
        if (auto n = parseNumber<std::int64_t>(*s)) return *n != 0;
    }
    return std::nullopt;
}

std::optional<std::int64_t> SettingsStore::intValue(const std::string& key) const {
    auto v = value(key);
    if (!v) return std::nullopt;
    if (auto i = std::get_if<std::int64_t>(&*v)) return *i;
    if (auto b = std::get_if<bool>(&*v)) return *b ? 1 : 0;
    if (auto d = std::get_if<double>(&*v)) return static_cast<std::int64_t>(*d);
    if (auto s = std::get_if<std::string>(&*v)) {
        if (auto n = parseNumber<std::int64_t>(*s)) return n;
        if (auto d = parseNumber<double>(*s)) return static_cast<std::int64_t>(*d);
    }
    return std::nullopt;
}

std::optional<double> SettingsStore::doubleValue(const std::string& key) const {
    auto v = value(key);
    if (!v) return std::nullopt;
    if (auto d = std::get_if<double>(&*v)) return *d;
    if (auto i = std::get_if<std::int64_t>(&*v)) return static_cast<double>(*i);
    if (auto b = std::get_if<bool>(&*v)) return *b ? 1.0 : 0.0;
    if (auto s = std::get_if<std::string>(&*v)) return parseNumber<double>(*s);
    return std::nullopt;
}

std::optional<std::string> SettingsStore::stringValue(const std::string& key) const {
    auto v = value(key);
    if (!v) return std::nullopt;
    if (auto s = std::get_if<std::string>(&*v)) return *s;
    if (auto i = std::get_if<std::int64_t>(&*v)) return std::to_string(*i);
    return std::nullopt;
}

std::optional<std::vector<std::string>> SettingsStore::stringListValue(
    const std::string& key) const {
    auto v = value(key);
    if (!v) return std::nullopt;
    if (auto l = std::get_if<std::vector<std::string>>(&*v)) return *l;
    if (auto s = std::get_if<std::string>(&*v)) return std::vector<std::string>{*s};
    return std::nullopt;
}

std::optional<SettingValue> MemorySettingsStore::value(const std::string& key) const {
    for (auto& [k, v] : values_)
        if (k == key) return v;
    return std::nullopt;
}

void MemorySettingsStore::setValue(const std::string& key, const SettingValue& value) {
    for (auto& [k, v] : values_)
        if (k == key) {
            v = value;
            return;
        }
    values_.emplace_back(key, value);
}

void MemorySettingsStore::remove(const std::string& key) {
    std::erase_if(values_, [&](auto& e) { return e.first == key; });
}

}  // namespace tarnel
