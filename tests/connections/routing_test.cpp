#include "connections/routing.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

RoutingRule rule(RuleMatchType type, std::string value, bool enabled = true) {
    RoutingRule r;
    r.matchType = type;
    r.matchValue = std::move(value);
    r.isEnabled = enabled;
    return r;
}

TEST(RoutingRule, EveryKindBecomesGlobsMatchedWithoutCase) {
    const RoutingRule types = rule(RuleMatchType::fileType, ".JPG, pdf,");
    EXPECT_EQ(types.globPatterns(), (std::vector<std::string>{"*.jpg", "*.pdf"}));
    EXPECT_TRUE(types.matches("PHOTO.Jpg"));
    EXPECT_FALSE(types.matches("jpg"));
    EXPECT_EQ(types.displaySummary(), "jpg, pdf");
    EXPECT_EQ(rule(RuleMatchType::fileType, " , ").displaySummary(), "File type");

    const RoutingRule blanks = rule(RuleMatchType::nameContains, " \t ");
    EXPECT_TRUE(blanks.globPatterns().empty());
    EXPECT_FALSE(blanks.matches(" \t x"));
    EXPECT_EQ(blanks.displaySummary(), "\u2026 \t \u2026");
    EXPECT_TRUE(rule(RuleMatchType::nameContains, "voice").matches("INVOICE_1.pdf"));
    EXPECT_TRUE(rule(RuleMatchType::nameStartsWith, "STOCK_").matches("stock_1.csv"));
    EXPECT_FALSE(rule(RuleMatchType::nameStartsWith, "STOCK_").matches("old_stock_1.csv"));

    const RoutingRule glob = rule(RuleMatchType::customPattern, "report-?.pdf");
    EXPECT_TRUE(glob.matches("REPORT-1.PDF"));
    EXPECT_FALSE(glob.matches("report-10.pdf"));
    EXPECT_TRUE(rule(RuleMatchType::customPattern, "[ab]*.csv").matches("B-2024.CSV"));
    EXPECT_FALSE(rule(RuleMatchType::customPattern, "[ab]*.csv").matches("c.csv"));
    EXPECT_FALSE(rule(RuleMatchType::customPattern, "[ab").matches("a"));  // malformed: no match
    EXPECT_TRUE(rule(RuleMatchType::allFiles, "ignored").matches(".hidden"));
}

TEST(Routing, FirstEnabledMatchWinsElseTheFallback) {
    const std::filesystem::path primary = "/dest";
    const RoutingRule off = rule(RuleMatchType::allFiles, "", false);
    const RoutingRule pdf = rule(RuleMatchType::fileType, "pdf");
    const RoutingRule invoices = rule(RuleMatchType::nameStartsWith, "INV_");
    const std::vector<RoutingRule> rules{off, pdf, invoices};
    const RuleFolders granted{{invoices.id, "/invoices"}};

    RoutingResult r = route("INV_1.pdf", primary, rules, FallbackBehavior::ignore, granted, {});
    EXPECT_EQ(r.matchedRule, pdf);
    EXPECT_EQ(r.destinationURL, primary);  // no folder granted for it
    r = route("inv_2.csv", primary, rules, FallbackBehavior::ignore, granted, {});
    EXPECT_EQ(r.matchedRule, invoices);
    EXPECT_EQ(r.destinationURL, std::filesystem::path("/invoices"));

    r = route("a.txt", primary, rules, FallbackBehavior::ignore, granted, {});
    EXPECT_FALSE(r.destinationURL || r.matchedRule);
    r = route("a.txt", primary, {}, FallbackBehavior::useSpecificFolder, granted, "/other");
    EXPECT_EQ(r.destinationURL, std::filesystem::path("/other"));
    EXPECT_FALSE(r.matchedRule);
    EXPECT_EQ(
        route("a.txt", primary, {}, FallbackBehavior::useSpecificFolder, {}, {}).destinationURL,
        primary);
    EXPECT_EQ(
        route("a.txt", primary, rules, FallbackBehavior::useLocalFolder, {}, {}).destinationURL,
        primary);
}

TEST(DeadRuleCheck, WarnsOnlyWhenAnEarlierRuleTakesEverySample) {
    const RoutingRule all = rule(RuleMatchType::allFiles, "");
    const RoutingRule jpg = rule(RuleMatchType::fileType, "jpg");
    const RoutingRule pdf = rule(RuleMatchType::fileType, "pdf");
    const RoutingRule blanks = rule(RuleMatchType::nameContains, "  ");

    EXPECT_EQ(shadowingRulePosition(pdf, 1, {all, pdf}), 1u);
    EXPECT_EQ(shadowingRulePosition(all, 1, {all, all}), 1u);
    EXPECT_EQ(shadowingRulePosition(pdf, 2, {jpg, all, pdf}), 2u);
    EXPECT_EQ(shadowingRulePosition(pdf, 0, {pdf}), std::nullopt);
    RoutingRule allOff = all;
    allOff.isEnabled = false;
    EXPECT_EQ(shadowingRulePosition(pdf, 1, {allOff, pdf}), std::nullopt);
    EXPECT_EQ(shadowingRulePosition(all, 1, {jpg, all}), std::nullopt);
    EXPECT_EQ(shadowingRulePosition(blanks, 1, {all, blanks}), std::nullopt);

    // Samples fill each star with the same few words: "IMG_*" is caught by "*_*", not by "*1*".
    const RoutingRule img = rule(RuleMatchType::nameStartsWith, "IMG_");
    EXPECT_EQ(shadowingRulePosition(img, 1, {rule(RuleMatchType::customPattern, "*_*"), img}), 1u);
    EXPECT_EQ(shadowingRulePosition(img, 1, {rule(RuleMatchType::nameContains, "1"), img}),
              std::nullopt);
    // "?" becomes "x"; a later, narrower pattern of a file type is caught by the wider one.
    const RoutingRule question = rule(RuleMatchType::customPattern, "scan?.PDF");
    EXPECT_EQ(shadowingRulePosition(question, 1, {pdf, question}), 1u);
    EXPECT_EQ(shadowingRulePosition(
                  question, 1, {rule(RuleMatchType::customPattern, "scan[0-9].pdf"), question}),
              std::nullopt);
    // Every pattern of the rule must be caught, by any of the earlier rule's patterns.
    const RoutingRule two = rule(RuleMatchType::fileType, "jpg, pdf");
    EXPECT_EQ(shadowingRulePosition(two, 1, {pdf, two}), std::nullopt);
    EXPECT_EQ(shadowingRulePosition(two, 2, {pdf, rule(RuleMatchType::fileType, "pdf, jpg"), two}),
              2u);
}

}  // namespace
}  // namespace tarnel
