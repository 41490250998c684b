#include "connections/connection_config_json.h"

#include <algorithm>

#include "connections/config_json_values.h"
#include "connections/list_text.h"

namespace tarnel {

nlohmann::ordered_json encodeRoutingRule(const RoutingRule& rule) {
    Json json = Json::object();
    json["id"] = rule.id.toString();
    if (rule.destinationPath)
        json["destinationPath"] = *rule.destinationPath;
    if (rule.tagColor)
        json["tagColor"] = static_cast<int>(*rule.tagColor);
    if (rule.tagName)
        json["tagName"] = *rule.tagName;
    json["isEnabled"] = rule.isEnabled;
    json["matchType"] = rawValue(rule.matchType);
    json["matchValue"] = rule.matchValue;
    return json;
}

RoutingRule decodeRoutingRule(const nlohmann::ordered_json& json) {
    if (!json.is_object())
        throw ConfigDecodeError("expected an object, got " + std::string(json.type_name()));
    RoutingRule rule;
    readRequired(json, "id", rule.id);
    if (const Json* value = optionalField(json, "destinationPath"))
        readValue(*value, "destinationPath", rule.destinationPath.emplace());
    if (const Json* value = optionalField(json, "tagColor"))
        readValue(*value, "tagColor", rule.tagColor.emplace());
    if (const Json* value = optionalField(json, "tagName"))
        readValue(*value, "tagName", rule.tagName.emplace());
    // Rules written before the switch existed, or by hand, stay on whatever the key holds.
    const Json* enabled = optionalField(json, "isEnabled");
    rule.isEnabled = enabled && enabled->is_boolean() ? enabled->get<bool>() : true;
    if (const Json* matchType = optionalField(json, "matchType")) {
        readValue(*matchType, "matchType", rule.matchType);
        readOptional(json, "matchValue", rule.matchValue);
    } else {
        // The old form held one glob; "*" or nothing meant every file.
        std::string pattern;
        readOptional(json, "pattern", pattern);
        if (pattern.empty() || pattern == "*") {
            rule.matchType = RuleMatchType::allFiles;
        } else {
            rule.matchType = RuleMatchType::customPattern;
            rule.matchValue = pattern;
        }
    }
    return rule;
}

namespace {

// One list held a single extension list whose meaning the flag switched; it splits in two.
void readExtensionLists(const Json& json, ConnectionConfig& config) {
    readRequired(json, "extensionFilter", config.extensionFilter);
    readRequired(json, "extensionFilterExclude", config.extensionFilterExclude);
    if (const Json* excluded = optionalField(json, "excludedExtensions")) {
        readValue(*excluded, "excludedExtensions", config.excludedExtensions);
    } else if (config.extensionFilterExclude) {
        config.excludedExtensions = config.extensionFilter;
        config.extensionFilter.clear();
    } else {
        config.excludedExtensions = defaultExcludedExtensions;
    }
    config.extensionFilterExclude = false;  // read by nothing from here on
}

std::vector<RoutingRule> readRoutingRules(const Json& json) {
    const Json* rules = optionalField(json, "routingRules");
    if (!rules)
        return {};
    if (!rules->is_array())
        failKey("routingRules", "expected an array, got " + std::string(rules->type_name()));
    std::vector<RoutingRule> decoded;
    for (std::size_t i = 0; i < rules->size(); ++i) {
        try {
            decoded.push_back(decodeRoutingRule((*rules)[i]));
        } catch (const ConfigDecodeError& e) {
            failKey("routingRules", "rule " + std::to_string(i) + ": " + e.what());
        }
    }
    return decoded;
}

// The old filename filter let through only names that matched one of its globs. Each glob
// becomes a rule in front of the others; alone, they must also keep refusing everything else.
void migrateFilenameFilter(ConnectionConfig& config) {
    std::vector<RoutingRule> migrated;
    for (const std::string& piece : splitOnCommas(config.filenameFilter)) {
        std::string pattern = trimBlanks(piece);
        if (pattern.empty())
            continue;
        RoutingRule rule;
        rule.matchType = RuleMatchType::customPattern;
        rule.matchValue = std::move(pattern);
        migrated.push_back(std::move(rule));
    }
    if (migrated.empty())
        return;
    const bool onlyMigrated = config.routingRules.empty();
    config.routingRules.insert(config.routingRules.begin(), migrated.begin(), migrated.end());
    if (onlyMigrated && config.fallbackBehavior == FallbackBehavior::useLocalFolder)
        config.fallbackBehavior = FallbackBehavior::ignore;
    config.filenameFilter.clear();
}

}  // namespace

nlohmann::ordered_json encodeConnectionConfig(const ConnectionConfig& c) {
    Json rules = Json::array();
    for (const RoutingRule& rule : c.routingRules)
        rules.push_back(encodeRoutingRule(rule));
    return Json{
        {"id", c.id.toString()},
        {"name", c.name},
        {"enabled", c.enabled},
        {"transferProtocol", rawValue(c.transferProtocol)},
        {"host", c.host},
        {"port", c.port},
        {"username", c.username},
        {"password", c.password},
        {"sshKeyPath", c.sshKeyPath},
        {"remotePath", c.remotePath},
        {"localPath", c.localPath},
        {"pollInterval", c.pollInterval},
        {"requiredStableChecks", c.requiredStableChecks},
        {"extensionFilter", c.extensionFilter},
        {"excludedExtensions", c.excludedExtensions},
        {"extensionFilterExclude", c.extensionFilterExclude},
        {"deleteAfterDownload", c.deleteAfterDownload},
        {"organizeByDate", c.organizeByDate},
        {"renamePattern", c.renamePattern},
        {"postActionEnabled", c.postActionEnabled},
        {"postActionPath", c.postActionPath},
        {"maxRetries", c.maxRetries},
        {"filenameFilter", c.filenameFilter},
        {"minFileSize", c.minFileSize},
        {"organizeByConnection", c.organizeByConnection},
        {"checksumVerification", c.checksumVerification},
        {"maxBandwidthKBps", c.maxBandwidthKBps},
        {"autoDecompress", c.autoDecompress},
        {"autoConnectOnLaunch", c.autoConnectOnLaunch},
        {"scheduleEnabled", c.scheduleEnabled},
        {"scheduleStartHour", c.scheduleStartHour},
        {"scheduleEndHour", c.scheduleEndHour},
        {"scheduleDays", c.scheduleDays},
        {"ftpPassiveMode", c.ftpPassiveMode},
        {"exploreSubdirectories", c.exploreSubdirectories},
        {"selectedRemotePaths", c.selectedRemotePaths},
        {"subdirectoryOrganization", rawValue(c.subdirectoryOrganization)},
        {"customFolderMappings", c.customFolderMappings},
        {"maxDepth", c.maxDepth},
        {"autoMonitorNewFolders", c.autoMonitorNewFolders},
        {"deleteEmptyRemoteFolders", c.deleteEmptyRemoteFolders},
        {"maxResumeAttempts", c.maxResumeAttempts},
        {"maxConcurrentDownloads", c.maxConcurrentDownloads},
        {"allowSelfSignedCerts", c.allowSelfSignedCerts},
        {"routingRules", std::move(rules)},
        {"fallbackBehavior", rawValue(c.fallbackBehavior)},
        {"fallbackPath", c.fallbackPath},
        {"sectorHint", c.sectorHint},
        {"downloadUnspecifiedExtensions", c.downloadUnspecifiedExtensions},
    };
}

namespace {
// The counts within what the editor offers: a hand-written or old record may hold anything, and
// a retry count in the thousands or a window of a million transfers would hurt.
void clampCounts(ConnectionConfig& c) {
    // Stability from 0: unattended set-ups that write files whole take them at first sight.
    c.requiredStableChecks = std::clamp(c.requiredStableChecks, 0, 5);
    c.maxConcurrentDownloads = std::clamp(c.maxConcurrentDownloads, 1, 8);
    c.maxDepth = std::clamp(c.maxDepth, 1, 10);
    c.maxRetries = std::clamp(c.maxRetries, 0, 10);
    c.maxResumeAttempts = std::clamp(c.maxResumeAttempts, 0, 10);
}
}  // namespace

ConnectionConfig decodeConnectionConfig(const nlohmann::ordered_json& json) {
    if (!json.is_object())
        throw ConfigDecodeError("expected an object, got " + std::string(json.type_name()));
    ConnectionConfig c;
    readRequired(json, "id", c.id);
    readRequired(json, "name", c.name);
    readRequired(json, "enabled", c.enabled);
    readRequired(json, "transferProtocol", c.transferProtocol);
    readRequired(json, "host", c.host);
    readRequired(json, "port", c.port);
    readRequired(json, "username", c.username);
    readRequired(json, "password", c.password);
    readOptional(json, "sshKeyPath", c.sshKeyPath);
    readRequired(json, "remotePath", c.remotePath);
    readRequired(json, "localPath", c.localPath);
    readRequired(json, "pollInterval", c.pollInterval);
    readRequired(json, "requiredStableChecks", c.requiredStableChecks);
    readExtensionLists(json, c);
    readRequired(json, "deleteAfterDownload", c.deleteAfterDownload);
    readOptional(json, "organizeByDate", c.organizeByDate);
    readOptional(json, "renamePattern", c.renamePattern);
    readOptional(json, "postActionEnabled", c.postActionEnabled);
    readOptional(json, "postActionPath", c.postActionPath);
    readOptional(json, "maxRetries", c.maxRetries);
    readOptional(json, "filenameFilter", c.filenameFilter);
    readOptional(json, "minFileSize", c.minFileSize);
    readOptional(json, "organizeByConnection", c.organizeByConnection);
    readOptional(json, "checksumVerification", c.checksumVerification);
    readOptional(json, "maxBandwidthKBps", c.maxBandwidthKBps);
    readOptional(json, "autoDecompress", c.autoDecompress);
    readOptional(json, "autoConnectOnLaunch", c.autoConnectOnLaunch);
    readOptional(json, "scheduleEnabled", c.scheduleEnabled);
    readOptional(json, "scheduleStartHour", c.scheduleStartHour);
    readOptional(json, "scheduleEndHour", c.scheduleEndHour);
    readOptional(json, "scheduleDays", c.scheduleDays);
    readOptional(json, "ftpPassiveMode", c.ftpPassiveMode);
    readOptional(json, "exploreSubdirectories", c.exploreSubdirectories);
    readOptional(json, "selectedRemotePaths", c.selectedRemotePaths);
    readOptional(json, "subdirectoryOrganization", c.subdirectoryOrganization);
    readOptional(json, "customFolderMappings", c.customFolderMappings);
    readOptional(json, "maxDepth", c.maxDepth);
    readOptional(json, "autoMonitorNewFolders", c.autoMonitorNewFolders);
    readOptional(json, "deleteEmptyRemoteFolders", c.deleteEmptyRemoteFolders);
    readOptional(json, "maxResumeAttempts", c.maxResumeAttempts);
    readOptional(json, "maxConcurrentDownloads", c.maxConcurrentDownloads);
    readOptional(json, "allowSelfSignedCerts", c.allowSelfSignedCerts);
    c.routingRules = readRoutingRules(json);
    readOptional(json, "fallbackBehavior", c.fallbackBehavior);
    migrateFilenameFilter(c);
    readOptional(json, "fallbackPath", c.fallbackPath);
    readOptional(json, "sectorHint", c.sectorHint);
    readOptional(json, "downloadUnspecifiedExtensions", c.downloadUnspecifiedExtensions);
    clampCounts(c);
    return c;
}

std::string encodeConnectionList(const std::vector<ConnectionConfig>& configs,
                                 const std::set<Uuid>& passwordsInKeyring) {
    Json list = Json::array();
    for (const ConnectionConfig& config : configs) {
        list.push_back(encodeConnectionConfig(config));
        if (passwordsInKeyring.contains(config.id)) list.back()[passwordInKeyringKey] = true;
    }
    return list.dump();
}

DecodedConnectionList decodeReadableConnections(std::string_view jsonText) {
    Json list;
    try {
        list = Json::parse(jsonText);
    } catch (const Json::parse_error& e) {
        // What follows the library's bracketed error id is the place and the reason.
        std::string_view why = e.what();
        if (auto end = why.find("] "); end != std::string_view::npos)
            why.remove_prefix(end + 2);
        throw ConfigDecodeError("not valid JSON: " + std::string(why));
    }
    if (!list.is_array())
        throw ConfigDecodeError("expected an array of connections, got " +
                                std::string(list.type_name()));
    DecodedConnectionList decoded;
    decoded.connections.reserve(list.size());
    for (std::size_t i = 0; i < list.size(); ++i) {
        try {
            decoded.connections.push_back(decodeConnectionConfig(list[i]));
            const Json* marked = optionalField(list[i], passwordInKeyringKey);
            if (marked && marked->is_boolean() && marked->get<bool>())
                decoded.passwordsInKeyring.insert(decoded.connections.back().id);
        } catch (const ConfigDecodeError& e) {
            decoded.problems.push_back("record " + std::to_string(i) + ": " + e.what());
        }
    }
    return decoded;
}

std::vector<ConnectionConfig> decodeConnectionList(std::string_view jsonText) {
    auto decoded = decodeReadableConnections(jsonText);
    if (!decoded.problems.empty())
        throw ConfigDecodeError(decoded.problems.front());
    return std::move(decoded.connections);
}

}  // namespace tarnel
