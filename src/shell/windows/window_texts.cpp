#include "shell/windows/window_texts.h"

#include <cstdio>

namespace tarnel {

std::string timeOfDayText(const Clock& clock, TimePoint t) {
    const std::tm tm = clock.localTime(t);
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", tm.tm_hour, tm.tm_min, tm.tm_sec);
    return text;
}

std::string copyAllText(const Clock& clock, const std::vector<LogEntry>& entries) {
    std::string text;
    for (const auto& entry : entries) {
        if (!text.empty()) text += '\n';
        // The file's line, with the time of day only: what a person pastes into a message.
        text += "[" + timeOfDayText(clock, entry.timestamp) + "] " + logLevelWord(entry.level) + " " +
                entry.message;
    }
    return text;
}

}  // namespace tarnel
