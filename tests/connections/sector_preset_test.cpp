#include "connections/sector_preset.h"

#include <gtest/gtest.h>

#include "connections/connection_config_json.h"

namespace tarnel {
namespace {

// What a sector's record holds beyond the defaults, in stored form: the filter preset it shows,
// then "key=value" for every other field that changed, then one line per rule.
std::string recipe(SectorPreset sector) {
    const ConnectionConfig made = connectionConfigForSector(sector);
    const auto json = encodeConnectionConfig(made);
    const auto plain = encodeConnectionConfig(ConnectionConfig{});
    std::string out = matchingPreset(made.extensionFilter, made.excludedExtensions).id + ":";
    for (const auto& [key, value] : json.items())
        if (key != "id" && key != "extensionFilter" && key != "routingRules" && value != plain[key])
            out += " " + key + "=" + value.dump();
    for (const RoutingRule& r : made.routingRules) {
        EXPECT_TRUE(r.isEnabled && !r.tagName);
        out += " | " + r.displaySummary() + " -> " + r.destinationPath.value_or("?") +
               (r.tagColor ? " " + std::to_string(static_cast<int>(*r.tagColor)) : "");
    }
    return out;
}

// One sector of each shape: no rules, tagged rules, another protocol, the default filter.
TEST(SectorPresets, EachShapeOfRecipe) {
    using enum SectorPreset;
    EXPECT_EQ(recipe(photography),
              "photography: pollInterval=5.0 requiredStableChecks=3 organizeByDate=true "
              "exploreSubdirectories=true maxConcurrentDownloads=2 sectorHint=\"photography\"");
    EXPECT_EQ(recipe(ecommerce),
              "ecommerce: pollInterval=300.0 organizeByConnection=true sectorHint=\"ecommerce\" | "
              "csv -> Catalogues | INV_\u2026 -> Invoices 6 | STOCK_\u2026 -> Stock 4");
    EXPECT_EQ(recipe(health),
              "health: transferProtocol=\"SFTP\" port=22 deleteAfterDownload=false "
              "organizeByDate=true organizeByConnection=true checksumVerification=true "
              "exploreSubdirectories=true sectorHint=\"health\" | LAB_\u2026 -> Results 6 | "
              "IMG_\u2026 -> Medical Images 4 | RPT_\u2026 -> Reports 3");
    EXPECT_EQ(recipe(it),
              "all_except_temp: maxRetries=5 checksumVerification=true exploreSubdirectories=true "
              "maxResumeAttempts=10 sectorHint=\"it\"");
    EXPECT_EQ(recipe(custom), "all_except_temp:");
    for (SectorPreset sector : allSectorPresets) recipe(sector);  // every rule enabled, untagged
}

TEST(SectorPresets, ApplyingKeepsTheConnectionAndReplacesTheRecipe) {
    ConnectionConfig edited;
    edited.name = "Bank";
    edited.host = "h";
    edited.password = "p";
    edited.renamePattern = "{date}_{original}";
    edited.fallbackBehavior = FallbackBehavior::ignore;
    edited.downloadUnspecifiedExtensions = false;
    edited.subdirectoryOrganization = SubdirectoryOrganization::flatAll;
    edited.routingRules = {RoutingRule{}};
    const ConnectionConfig before = edited;

    EXPECT_EQ(applySector(edited, SectorPreset::finance).id, "finance");
    ConnectionConfig expected = connectionConfigForSector(SectorPreset::finance);
    ASSERT_EQ(edited.routingRules.size(), 3u);
    expected.routingRules = edited.routingRules;  // fresh ids
    for (const auto& keep : {&ConnectionConfig::name, &ConnectionConfig::host,
                             &ConnectionConfig::password, &ConnectionConfig::renamePattern})
        expected.*keep = before.*keep;
    expected.id = before.id;
    expected.fallbackBehavior = before.fallbackBehavior;
    EXPECT_EQ(edited, expected);

    applySector(edited, SectorPreset::health);
    applySector(edited, SectorPreset::data);
    EXPECT_EQ(edited.transferProtocol, TransferProtocol::sftp);
    EXPECT_EQ(edited.port, 22);
    EXPECT_EQ(applySector(edited, SectorPreset::it).id, "all_except_temp");
    applySector(edited, SectorPreset::custom);
    EXPECT_TRUE(edited.routingRules.empty());
    EXPECT_EQ(edited.sectorHint, "");
    EXPECT_EQ(edited.host, "h");
}

}  // namespace
}  // namespace tarnel
