#include "records/byte_count_format.h"

#include <array>

namespace tarnel {

namespace {

struct ByteUnit {
    const char* name;
    std::uint64_t size;
    int fractionDigits;
    // The largest count shown in this unit: anything above would round to 1,000 of it.
    std::uint64_t largest;
};

constexpr std::array<ByteUnit, 6> units{{
    {"KB", 1'000ULL, 0, 999'499ULL},
    {"MB", 1'000'000ULL, 1, 999'949'999ULL},
    {"GB", 1'000'000'000ULL, 2, 999'994'999'999ULL},
    {"TB", 1'000'000'000'000ULL, 2, 999'994'999'999'999ULL},
    {"PB", 1'000'000'000'000'000ULL, 2, 999'994'999'999'999'999ULL},
    {"EB", 1'000'000'000'000'000'000ULL, 2, UINT64_MAX},
}};

// magnitude / unit.size to the unit's fraction digits, half to even, trailing zeros dropped.
// Computed on integers so that no binary fraction tips a tie.
std::string scaled(std::uint64_t magnitude, const ByteUnit& unit) {
    std::uint64_t scale = 1;
    for (int i = 0; i < unit.fractionDigits; ++i)
        scale *= 10;
    const std::uint64_t step = unit.size / scale;
    std::uint64_t quotient = magnitude / step;
    const std::uint64_t remainder = magnitude % step;
    if (remainder > step / 2 || (remainder == step / 2 && quotient % 2 == 1))
        ++quotient;

    std::string text = std::to_string(quotient / scale);
    std::uint64_t fraction = quotient % scale;
    if (fraction == 0)
        return text;
    std::string digits = std::to_string(fraction + scale).substr(1);  // keeps leading zeros
    while (digits.back() == '0')
        digits.pop_back();
    return text + "." + digits;
}

}  // namespace

std::string formatFileByteCount(std::int64_t bytes) {
    if (bytes == 0)
        return "Zero KB";
    const std::string sign = bytes < 0 ? "-" : "";
    // Negating through unsigned keeps INT64_MIN defined.
    const std::uint64_t magnitude =
        bytes < 0 ? 0 - static_cast<std::uint64_t>(bytes) : static_cast<std::uint64_t>(bytes);
    if (magnitude == 1)
        return sign + "1 byte";
    if (magnitude < 1000)
        return sign + std::to_string(magnitude) + " bytes";
    auto unit = units.begin();
    while (magnitude > unit->largest)
        ++unit;  // the last unit takes every count
    return sign + scaled(magnitude, *unit) + " " + unit->name;
}

}  // namespace tarnel
