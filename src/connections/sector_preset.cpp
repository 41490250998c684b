#include "connections/sector_preset.h"

#include "platform/localized.h"

namespace tarnel {

namespace {

RoutingRule rule(RuleMatchType type, std::string value, std::string folder,
                 std::optional<FinderTagColor> color = std::nullopt) {
    RoutingRule r;
    r.matchType = type;
    r.matchValue = std::move(value);
    r.destinationPath = std::move(folder);
    r.tagColor = color;
    return r;
}

RoutingRule startsWith(std::string prefix, std::string folder, FinderTagColor color) {
    return rule(RuleMatchType::nameStartsWith, std::move(prefix), std::move(folder), color);
}

const char* filterPresetId(SectorPreset sector) {
    switch (sector) {
        case SectorPreset::photography:
            return "photography";
        case SectorPreset::video:
            return "audiovisual";
        case SectorPreset::ecommerce:
            return "ecommerce";
        case SectorPreset::finance:
            return "finance";
        case SectorPreset::health:
            return "health";
        case SectorPreset::printGraphics:
            return "print_graphics";
        case SectorPreset::data:
            return "data_analytics";
        case SectorPreset::it:  // every file but the temporaries, not the integrations list
            return "all_files";
        case SectorPreset::custom:
            return "custom";
    }
    return "custom";
}

}  // namespace

std::string displayName(SectorPreset sector) {
    switch (sector) {
        case SectorPreset::photography:
            return localized("Photography");
        case SectorPreset::video:
            return localized("Video");
        case SectorPreset::ecommerce:
            return localized("E-commerce");
        case SectorPreset::finance:
            return localized("Finance");
        case SectorPreset::health:
            return localized("Health");
        case SectorPreset::printGraphics:
            return localized("Print & Graphics");
        case SectorPreset::data:
            return localized("Data & Analytics");
        case SectorPreset::it:
            return localized("IT & Integrations");
        case SectorPreset::custom:
            return localized("Custom");
    }
    return {};
}

std::string sectorHint(SectorPreset sector) {
    switch (sector) {
        case SectorPreset::photography:
            return "photography";
        case SectorPreset::video:
            return "video";
        case SectorPreset::ecommerce:
            return "ecommerce";
        case SectorPreset::finance:
            return "finance";
        case SectorPreset::health:
            return "health";
        case SectorPreset::printGraphics:
            return "print";
        case SectorPreset::data:
            return "data";
        case SectorPreset::it:
            return "it";
        case SectorPreset::custom:
            return "";
    }
    return "";
}

ConnectionConfig connectionConfigForSector(SectorPreset sector) {
    ConnectionConfig c;
    c.sectorHint = sectorHint(sector);
    if (sector == SectorPreset::custom)
        return c;
    // Every sector's include list goes with the default temporary list.
    c.extensionFilter = presetStrings(filterPreset(filterPresetId(sector))).included;
    c.excludedExtensions = defaultExcludedExtensions;
    using enum FinderTagColor;
    switch (sector) {
        case SectorPreset::photography:
            c.pollInterval = 5.0;
            c.requiredStableChecks = 3;
            c.organizeByDate = true;
            c.exploreSubdirectories = true;
            c.maxConcurrentDownloads = 2;
            break;
        case SectorPreset::video:
            c.requiredStableChecks = 5;
            c.deleteAfterDownload = false;
            c.organizeByDate = true;
            c.organizeByConnection = true;
            c.exploreSubdirectories = true;
            c.checksumVerification = true;
            c.maxConcurrentDownloads = 1;
            break;
        case SectorPreset::ecommerce:
            c.pollInterval = 300.0;
            c.organizeByConnection = true;
            c.routingRules = {rule(RuleMatchType::fileType, "csv", "Catalogues"),
                              startsWith("INV_", "Invoices", red),
                              startsWith("STOCK_", "Stock", blue)};
            break;
        case SectorPreset::finance:
            c.deleteAfterDownload = false;
            c.organizeByDate = true;
            c.exploreSubdirectories = true;
            c.checksumVerification = true;
            c.scheduleEnabled = true;
            c.scheduleStartHour = 8;
            c.scheduleEndHour = 20;
            c.scheduleDays = {true, true, true, true, true, false, false};
            c.routingRules = {startsWith("BAL_", "Balances", green),
                              startsWith("TRX_", "Transactions", blue),
                              startsWith("RPT_", "Reports", purple)};
            break;
        case SectorPreset::health:
            c.transferProtocol = TransferProtocol::sftp;
            c.port = 22;
            c.deleteAfterDownload = false;
            c.organizeByDate = true;
            c.organizeByConnection = true;
            c.exploreSubdirectories = true;
            c.checksumVerification = true;
            c.routingRules = {startsWith("LAB_", "Results", red),
                              startsWith("IMG_", "Medical Images", blue),
                              startsWith("RPT_", "Reports", purple)};
            break;
        case SectorPreset::printGraphics:
            c.requiredStableChecks = 3;
            c.organizeByConnection = true;
            c.routingRules = {startsWith("URGENT_", "Urgent", red),
                              rule(RuleMatchType::fileType, "pdf", "PDFs", blue),
                              rule(RuleMatchType::fileType, "tiff, tif", "High Resolution", green)};
            break;
        case SectorPreset::data:
            c.pollInterval = 900.0;
            c.organizeByDate = true;
            c.autoDecompress = true;
            c.routingRules = {rule(RuleMatchType::fileType, "gz, tar, zip", "Compressed"),
                              startsWith("DAILY_", "Daily", blue),
                              startsWith("REPORT_", "Reports", green)};
            break;
        case SectorPreset::it:
            c.exploreSubdirectories = true;
            c.checksumVerification = true;
            c.maxRetries = 5;
            c.maxResumeAttempts = 10;
            break;
        case SectorPreset::custom:
            break;
    }
    return c;
}

const FilterPreset& applySector(ConnectionConfig& edited, SectorPreset sector) {
    ConnectionConfig recipe = connectionConfigForSector(sector);
    edited.extensionFilter = recipe.extensionFilter;
    edited.excludedExtensions = recipe.excludedExtensions;
    edited.downloadUnspecifiedExtensions = recipe.downloadUnspecifiedExtensions;
    edited.organizeByDate = recipe.organizeByDate;
    edited.organizeByConnection = recipe.organizeByConnection;
    edited.subdirectoryOrganization = recipe.subdirectoryOrganization;
    edited.exploreSubdirectories = recipe.exploreSubdirectories;
    edited.deleteAfterDownload = recipe.deleteAfterDownload;
    edited.checksumVerification = recipe.checksumVerification;
    edited.autoDecompress = recipe.autoDecompress;
    edited.maxConcurrentDownloads = recipe.maxConcurrentDownloads;
    edited.maxBandwidthKBps = recipe.maxBandwidthKBps;
    edited.maxRetries = recipe.maxRetries;
    edited.maxResumeAttempts = recipe.maxResumeAttempts;
    edited.pollInterval = recipe.pollInterval;
    edited.requiredStableChecks = recipe.requiredStableChecks;
    edited.scheduleEnabled = recipe.scheduleEnabled;
    edited.scheduleStartHour = recipe.scheduleStartHour;
    edited.scheduleEndHour = recipe.scheduleEndHour;
    edited.scheduleDays = recipe.scheduleDays;
    edited.routingRules = std::move(recipe.routingRules);
    edited.sectorHint = recipe.sectorHint;
    if (sector == SectorPreset::health) {
        edited.transferProtocol = recipe.transferProtocol;
        edited.port = recipe.port;
    }
    return matchingPreset(edited.extensionFilter, edited.excludedExtensions);
}

}  // namespace tarnel
