#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tarnel {

// A value under a settings key, typed as it was written.
using SettingValue = std::variant<bool, std::int64_t, double, std::string, std::vector<std::string>>;

// The program's key-value preferences (the connection list, counters, downloaded sets, grants,
// global settings). Reads convert between the scalar types the way a preferences store does:
// a stored number reads as a bool, a numeric string as a number, anything else as absent.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    virtual std::optional<SettingValue> value(const std::string& key) const = 0;
    virtual void setValue(const std::string& key, const SettingValue& value) = 0;
    virtual void remove(const std::string& key) = 0;

    bool contains(const std::string& key) const { return value(key).has_value(); }
    std::optional<bool> boolValue(const std::string& key) const;
    std::optional<std::int64_t> intValue(const std::string& key) const;
    std::optional<double> doubleValue(const std::string& key) const;
    std::optional<std::string> stringValue(const std::string& key) const;
    std::optional<std::vector<std::string>> stringListValue(const std::string& key) const;
};

// A store held in memory: tests, and a run that must not touch the user's settings.
class MemorySettingsStore final : public SettingsStore {
public:
    std::optional<SettingValue> value(const std::string& key) const override;
    void setValue(const std::string& key, const SettingValue& value) override;
    void remove(const std::string& key) override;

private:
    std::vector<std::pair<std::string, SettingValue>> values_;
};

}  // namespace tarnel
