#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "connections/routing_rule.h"

namespace tarnel {

// Where one file goes. No destination: the file is ignored. No rule: the fallback decided.
struct RoutingResult {
    std::optional<std::filesystem::path> destinationURL;
    std::optional<RoutingRule> matchedRule;
};

// The folders granted for rules, by rule id.
using RuleFolders = std::map<Uuid, std::filesystem::path>;

// The first enabled rule with a glob that takes `filename` wins and sends the file to its
// granted folder, or to `destination` when its folder is not granted. Without a winner the
// fallback decides: `destination`, nothing (ignored), or `fallbackURL` when granted.
RoutingResult route(std::string_view filename, const std::filesystem::path& destination,
                    const std::vector<RoutingRule>& rules, FallbackBehavior fallback,
                    const RuleFolders& ruleURLs,
                    const std::optional<std::filesystem::path>& fallbackURL);

// The position, counted from 1, of an earlier rule that catches every sample name built from
// `rule`'s globs, so that `rule` (at `position`, from 0) can never win; nothing otherwise. A
// sample check, not a proof: stars are filled with a few typical words.
std::optional<std::size_t> shadowingRulePosition(const RoutingRule& rule, std::size_t position,
                                                 const std::vector<RoutingRule>& rules);

}  // namespace tarnel
