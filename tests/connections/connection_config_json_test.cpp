#include "connections/connection_config_json.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

using Json = nlohmann::ordered_json;

// A stored record with only the fifteen keys that must be there.
Json minimalRecord() {
    return Json::parse(R"({"id": "6F1C2A4E-0B7D-4C1A-9E33-2B5D8F0A7C11", "name": "Shop",
        "enabled": true, "transferProtocol": "SFTP", "host": "h", "port": 22, "username": "u",
        "password": "p", "remotePath": "/in", "localPath": "/tmp/in", "pollInterval": 30,
        "requiredStableChecks": 2, "extensionFilter": "jpg", "extensionFilterExclude": false,
        "deleteAfterDownload": true})");
}

// `minimalRecord` with one key changed, or removed when `value` is discarded.
std::string decodeError(const std::string& key, const Json& value) {
    Json json = minimalRecord();
    if (value.is_discarded())
        json.erase(key);
    else
        json[key] = value;
    try {
        decodeConnectionConfig(json);
    } catch (const ConfigDecodeError& e) {
        return e.what();
    }
    return "decoded";
}

TEST(ConnectionConfigJson, EveryFieldRoundTripsInFieldOrder) {
    // Every field away from its default, so that a field the codec drops or mixes up shows.
    const Json stored = Json::parse(R"({"id":"6F1C2A4E-0B7D-4C1A-9E33-2B5D8F0A7C11",
        "name":"Studio \"A\"","enabled":false,"transferProtocol":"FTPS","host":"ftp.example.org",
        "port":2121,"username":"me","password":"pa\"ss,wo\\rd","sshKeyPath":"/k",
        "remotePath":"/out","localPath":"/home/me/in","pollInterval":2.5,
        "requiredStableChecks":4,"extensionFilter":"jpg, png","excludedExtensions":"tmp",
        "extensionFilterExclude":false,"deleteAfterDownload":false,"organizeByDate":true,
        "renamePattern":"{date}_{original}","postActionEnabled":true,"postActionPath":"/bin/true",
        "maxRetries":7,"filenameFilter":"","minFileSize":5000000000,"organizeByConnection":true,
        "checksumVerification":true,"maxBandwidthKBps":512,"autoDecompress":true,
        "autoConnectOnLaunch":false,"scheduleEnabled":true,"scheduleStartHour":22,
        "scheduleEndHour":6,"scheduleDays":[true,false,true,false,true,false,false],
        "ftpPassiveMode":false,"exploreSubdirectories":true,
        "selectedRemotePaths":["/out/a","/out/b c"],"subdirectoryOrganization":"customPerFolder",
        "customFolderMappings":{"/out/a":"/home/me/a"},"maxDepth":9,"autoMonitorNewFolders":true,
        "deleteEmptyRemoteFolders":true,"maxResumeAttempts":0,"maxConcurrentDownloads":1,
        "allowSelfSignedCerts":true,"routingRules":[
          {"id":"6F1C2A4E-0B7D-4C1A-9E33-2B5D8F0A7C12","destinationPath":"/home/me/inv",
           "tagColor":7,"tagName":"Invoice","isEnabled":false,"matchType":"nameStartsWith",
           "matchValue":"INV_"},
          {"id":"6F1C2A4E-0B7D-4C1A-9E33-2B5D8F0A7C13","isEnabled":true,"matchType":"fileType",
           "matchValue":"pdf"}],
        "fallbackBehavior":"useSpecificFolder","fallbackPath":"/home/me/other",
        "sectorHint":"finance","downloadUnspecifiedExtensions":false})");
    const ConnectionConfig decoded = decodeConnectionConfig(stored);
    EXPECT_EQ(encodeConnectionConfig(decoded).dump(), stored.dump());
    EXPECT_EQ(decoded.password, "pa\"ss,wo\\rd");
    EXPECT_EQ(decoded.minFileSize, 5'000'000'000);
    EXPECT_EQ(decoded.routingRules[0].tagColor, FinderTagColor::orange);

    const ConnectionConfig fresh;
    const auto list = decodeConnectionList(encodeConnectionList({decoded, fresh}));
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0], decoded);
    EXPECT_EQ(list[1], fresh);
    EXPECT_EQ(encodeConnectionConfig(fresh).size(), 49u);
}

TEST(ConnectionConfigJson, AbsentAndNullOptionalKeysTakeTheirFallbacks) {
    Json json = minimalRecord();
    json["maxRetries"] = nullptr;
    json["scheduleDays"] = nullptr;
    json["routingRules"] = nullptr;
    json["someFutureKey"] = {1, 2};
    ConnectionConfig expected;
    expected.id = *Uuid::parse("6f1c2a4e-0b7d-4c1a-9e33-2b5d8f0a7c11");
    expected.name = "Shop";
    expected.transferProtocol = TransferProtocol::sftp;
    expected.host = "h";
    expected.port = 22;
    expected.username = "u";
    expected.password = "p";
    expected.remotePath = "/in";
    expected.localPath = "/tmp/in";
    expected.extensionFilter = "jpg";
    EXPECT_EQ(decodeConnectionConfig(json), expected);
}

TEST(ConnectionConfigJson, FailuresNameTheRecordTheKeyAndWhy) {
    const Json removed = Json::value_t::discarded;
    try {
        Json noPort = minimalRecord();
        noPort.erase("port");
        decodeConnectionList(Json::array({minimalRecord(), minimalRecord(), noPort}).dump());
        FAIL() << "decoded";
    } catch (const ConfigDecodeError& e) {
        EXPECT_STREQ(e.what(), "record 2: key \"port\": missing");
    }
    EXPECT_EQ(decodeError("sshKeyPath", removed), "decoded");
    EXPECT_EQ(decodeError("transferProtocol", "SCP"),
              "key \"transferProtocol\": unknown value \"SCP\"");
    EXPECT_EQ(decodeError("host", nullptr), "key \"host\": expected a string, got null");
    EXPECT_EQ(decodeError("port", 21.5),
              "key \"port\": expected an integer in range, got number 21.5");
    EXPECT_EQ(decodeError("port", 21.0), "decoded");
    EXPECT_NE(decodeError("port", 3'000'000'000LL), "decoded");
    EXPECT_EQ(decodeError("id", "not-a-uuid"), "key \"id\": not a UUID: \"not-a-uuid\"");
    // A wrong type in an optional key fails the record too; only missing or null fall back.
    EXPECT_EQ(decodeError("maxRetries", "3"),
              "key \"maxRetries\": expected an integer in range, got string");
    EXPECT_NE(decodeError("scheduleDays", {true, 1, true}), "decoded");
    EXPECT_EQ(decodeError("subdirectoryOrganization", "byDate"),
              "key \"subdirectoryOrganization\": unknown value \"byDate\"");
    EXPECT_EQ(decodeError("routingRules", Json::parse(R"([{"id":
                  "6F1C2A4E-0B7D-4C1A-9E33-2B5D8F0A7C12", "tagColor": 9}])")),
              "key \"routingRules\": rule 0: key \"tagColor\": unknown value 9");

    EXPECT_THROW(decodeConnectionList("[{"), ConfigDecodeError);
    EXPECT_THROW(decodeConnectionList("{}"), ConfigDecodeError);
    EXPECT_TRUE(decodeConnectionList("[]").empty());
}

TEST(ConnectionConfigJson, SingleExtensionListSplitsIntoIncludeAndExclude) {
    Json oldExclude = minimalRecord();
    oldExclude["extensionFilter"] = "tmp, bak";
    oldExclude["extensionFilterExclude"] = true;
    const Json again = encodeConnectionConfig(decodeConnectionConfig(oldExclude));
    EXPECT_EQ(again["extensionFilter"], "");
    EXPECT_EQ(again["excludedExtensions"], "tmp, bak");
    EXPECT_EQ(again["extensionFilterExclude"], false);

    const ConnectionConfig oldInclude = decodeConnectionConfig(minimalRecord());
    EXPECT_EQ(oldInclude.extensionFilter, "jpg");
    EXPECT_EQ(oldInclude.excludedExtensions, defaultExcludedExtensions);

    // Once both lists are stored, they are taken as they are and the flag is dropped.
    Json current = minimalRecord();
    current["extensionFilterExclude"] = true;
    current["excludedExtensions"] = "";
    const ConnectionConfig kept = decodeConnectionConfig(current);
    EXPECT_EQ(kept.extensionFilter, "jpg");
    EXPECT_EQ(kept.excludedExtensions, "");
    EXPECT_FALSE(kept.extensionFilterExclude);
}

TEST(ConnectionConfigJson, FilenameFilterBecomesLeadingPatternRules) {
    Json alone = minimalRecord();
    alone["filenameFilter"] = " *.jpg, , IMG_* ";
    const ConnectionConfig a = decodeConnectionConfig(alone);
    ASSERT_EQ(a.routingRules.size(), 2u);
    EXPECT_EQ(a.routingRules[0].matchType, RuleMatchType::customPattern);
    EXPECT_EQ(a.routingRules[0].matchValue, "*.jpg");
    EXPECT_EQ(a.routingRules[1].matchValue, "IMG_*");
    EXPECT_FALSE(a.routingRules[1].destinationPath || a.routingRules[1].tagColor ||
                 a.routingRules[1].tagName || !a.routingRules[1].isEnabled);
    EXPECT_NE(a.routingRules[0].id, a.routingRules[1].id);
    EXPECT_EQ(a.fallbackBehavior, FallbackBehavior::ignore);
    EXPECT_EQ(a.filenameFilter, "");

    // Stored rules stay behind the migrated ones, and the fallback stays as stored.
    Json withRules = alone;
    withRules["routingRules"] =
        Json::parse(R"([{"id": "6F1C2A4E-0B7D-4C1A-9E33-2B5D8F0A7C12", "matchType": "fileType"}])");
    const ConnectionConfig b = decodeConnectionConfig(withRules);
    ASSERT_EQ(b.routingRules.size(), 3u);
    EXPECT_EQ(b.routingRules[2].matchType, RuleMatchType::fileType);
    EXPECT_EQ(b.fallbackBehavior, FallbackBehavior::useLocalFolder);
    alone["fallbackBehavior"] = "useSpecificFolder";
    EXPECT_EQ(decodeConnectionConfig(alone).fallbackBehavior, FallbackBehavior::useSpecificFolder);

    Json blanks = minimalRecord();
    blanks["filenameFilter"] = " ,\t ";
    const ConnectionConfig c = decodeConnectionConfig(blanks);
    EXPECT_TRUE(c.routingRules.empty());
    EXPECT_EQ(c.filenameFilter, " ,\t ");
    EXPECT_EQ(c.fallbackBehavior, FallbackBehavior::useLocalFolder);
}

TEST(ConnectionConfigJson, RuleReadsTheOldPatternFormAndATolerantSwitch) {
    const std::string id = "6F1C2A4E-0B7D-4C1A-9E33-2B5D8F0A7C12";
    const RoutingRule bare = decodeRoutingRule(Json{{"id", id}});
    EXPECT_EQ(bare.matchType, RuleMatchType::allFiles);
    EXPECT_TRUE(bare.isEnabled);
    EXPECT_EQ(decodeRoutingRule(Json{{"id", id}, {"pattern", "*"}}).matchType,
              RuleMatchType::allFiles);

    const RoutingRule old = decodeRoutingRule(Json{{"id", id}, {"pattern", "*.jpg"}});
    EXPECT_TRUE(old.isEnabled);
    EXPECT_EQ(encodeRoutingRule(old).dump(),
              R"({"id":")" + id +
                  R"(","isEnabled":true,"matchType":"customPattern","matchValue":"*.jpg"})");
    // The current form wins over a leftover pattern.
    const RoutingRule both =
        decodeRoutingRule(Json{{"id", id}, {"matchType", "nameContains"}, {"pattern", "*.jpg"}});
    EXPECT_EQ(both.matchType, RuleMatchType::nameContains);
    EXPECT_EQ(both.matchValue, "");

    EXPECT_TRUE(decodeRoutingRule(Json{{"id", id}, {"isEnabled", "no"}}).isEnabled);
    EXPECT_FALSE(decodeRoutingRule(Json{{"id", id}, {"isEnabled", false}}).isEnabled);
    EXPECT_THROW(decodeRoutingRule(Json{{"matchType", "allFiles"}}), ConfigDecodeError);
    EXPECT_THROW(decodeRoutingRule(Json{{"id", id}, {"matchType", "regex"}}), ConfigDecodeError);
    EXPECT_THROW(decodeRoutingRule(Json{{"id", id}, {"tagName", 3}}), ConfigDecodeError);
}

}  // namespace
}  // namespace tarnel
