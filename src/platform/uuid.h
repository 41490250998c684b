#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tarnel {

// A random (version 4) identifier. Its text form is the upper-case 8-4-4-4-12 form that settings
// keys and files hold.
class Uuid {
public:
    Uuid() = default;

    static Uuid random();
    // Accepts either case; anything but the 36-character hyphenated form gives nothing.
    static std::optional<Uuid> parse(std::string_view text);

    std::string toString() const;
    bool isNull() const;

    auto operator<=>(const Uuid&) const = default;

private:
    friend struct std::hash<Uuid>;
    std::array<std::uint8_t, 16> bytes_{};
};

}  // namespace tarnel

template <>
struct std::hash<tarnel::Uuid> {
    std::size_t operator()(const tarnel::Uuid& id) const noexcept {
        std::size_t h = 0;
        for (auto b : id.bytes_) h = h * 131 + b;
        return h;
    }
};
