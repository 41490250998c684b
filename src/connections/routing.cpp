#include "connections/routing.h"

#include <array>
#include <string>

namespace tarnel {

namespace {

constexpr std::array<std::string_view, 7> starFillers = {
    "", "abc", "TEST_123", "IMG_2024_001", "xyz_backup", "A", "LONGFILENAME"};

std::vector<std::string> splitOnStars(const std::string& pattern) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t star; (star = pattern.find('*', start)) != std::string::npos; start = star + 1)
        parts.push_back(pattern.substr(start, star - start));
    parts.push_back(pattern.substr(start));
    return parts;
}

std::string withQuestionMarksAsX(std::string sample) {
    for (char& c : sample)
        if (c == '?')
            c = 'x';
    return sample;
}

bool anyGlobMatches(const std::vector<std::string>& patterns, const std::string& name) {
    for (const std::string& pattern : patterns)
        if (globMatches(pattern, name))
            return true;
    return false;
}

// Whether `earlier` takes every sample of `pattern`: each star filled, independently, with each
// filler (seven to the power of the stars), every `?` made an "x".
bool catchesAllSamples(const std::vector<std::string>& earlier, const std::string& pattern) {
    const std::vector<std::string> parts = splitOnStars(pattern);
    if (parts.size() < 2)
        return anyGlobMatches(earlier, withQuestionMarksAsX(pattern));
    // An odometer over the stars' fillers, so that no list of samples is ever built.
    std::vector<std::size_t> filler(parts.size() - 1, 0);
    for (;;) {
        std::string sample = parts[0];
        for (std::size_t i = 0; i < filler.size(); ++i)
            sample.append(starFillers[filler[i]]).append(parts[i + 1]);
        if (!anyGlobMatches(earlier, withQuestionMarksAsX(std::move(sample))))
            return false;
        std::size_t digit = 0;
        while (digit < filler.size() && ++filler[digit] == starFillers.size())
            filler[digit++] = 0;
        if (digit == filler.size())
            return true;
    }
}

}  // namespace

RoutingResult route(std::string_view filename, const std::filesystem::path& destination,
                    const std::vector<RoutingRule>& rules, FallbackBehavior fallback,
                    const RuleFolders& ruleURLs,
                    const std::optional<std::filesystem::path>& fallbackURL) {
    for (const RoutingRule& rule : rules) {
        if (!rule.isEnabled || !rule.matches(filename))
            continue;
        // A rule whose folder grant is lost lands in the main destination, silently.
        auto granted = ruleURLs.find(rule.id);
        return {granted != ruleURLs.end() ? granted->second : destination, rule};
    }
    switch (fallback) {
        case FallbackBehavior::useLocalFolder:
            return {destination, std::nullopt};
        case FallbackBehavior::ignore:
            return {std::nullopt, std::nullopt};
        case FallbackBehavior::useSpecificFolder:
            return {fallbackURL.value_or(destination), std::nullopt};
    }
    return {destination, std::nullopt};
}

std::optional<std::size_t> shadowingRulePosition(const RoutingRule& rule, std::size_t position,
                                                 const std::vector<RoutingRule>& rules) {
    const std::vector<std::string> patterns = rule.globPatterns();
    if (!rule.isEnabled || patterns.empty() || position == 0)
        return std::nullopt;
    for (std::size_t i = 0; i < position && i < rules.size(); ++i) {
        if (!rules[i].isEnabled)
            continue;
        const std::vector<std::string> earlier = rules[i].globPatterns();
        if (earlier.empty())
            continue;
        bool catchesAll = true;
        for (const std::string& pattern : patterns)
            catchesAll = catchesAll && catchesAllSamples(earlier, pattern);
        if (catchesAll)
            return i + 1;
    }
    return std::nullopt;
}

}  // namespace tarnel
