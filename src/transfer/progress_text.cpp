#include "transfer/progress_text.h"

#include <cstdio>

#include "platform/localized.h"

namespace tarnel {
namespace {

std::string formatted(const char* format, double value) {
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

}  // namespace

std::string formatSize(std::int64_t bytes) {
    const auto b = static_cast<double>(bytes);
    if (bytes >= 1'000'000'000) {
        return formatted("%.1f GB", b / 1e9);
    }
    if (bytes >= 1'000'000) {
        return formatted("%.1f MB", b / 1e6);
    }
    if (bytes >= 1'000) {
        return formatted("%.0f KB", b / 1000);
    }
    return std::to_string(bytes) + " B";
}

std::string speedText(double s) {
    if (s > 1'000'000) {
        return formatted("%.1f MB/s", s / 1'000'000);
    }
    if (s > 1'000) {
        return formatted("%.0f KB/s", s / 1'000);
    }
    return formatted("%.0f B/s", s);
}

std::string stabilityText(bool isGrowing, std::int64_t stableCount, std::int64_t requiredChecks) {
    if (isGrowing) {
        return localized("growing...");
    }
    std::string text =
        "stable " + std::to_string(stableCount) + "/" + std::to_string(requiredChecks);
    if (stableCount >= requiredChecks) {
        text += " \u2713";
    }
    return localized(text);
}

}  // namespace tarnel
