// The connection editor offscreen: what its controls write, when Apply may run, what the
// sheets, the tree and the filter boxes make of the record.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QToolButton>
#include <algorithm>

#include "connections/routing.h"
#include "fleet_fixture.h"
#include "shell/editor/connection_edit_view.h"
#include "shell/editor/extension_filter_view.h"
#include "shell/editor/remote_folder_tree_view.h"
#include "shell/editor/routing_rule_edit_sheet.h"
#include "shell/editor/routing_rule_list.h"
#include "shell/settings/connections_settings_tab.h"

namespace tarnel::testing {
namespace {

struct EditorViewTest : FleetFixture {
    std::shared_ptr<ConnectionsManager> manager = makeManager();

    ConnectionConfig added(const std::string& name) {
        auto c = connection(name, "memory");
        manager->addConnection(c);
        return c;
    }

    static void choose(QComboBox* box, const QString& text) {
        const int index = box->findText(text);
        ASSERT_GE(index, 0) << text.toStdString();
        box->setCurrentIndex(index);
        Q_EMIT box->activated(index);
    }

    static void type(QLineEdit* field, const QString& text) {
        field->selectAll();
        QTest::keyClicks(field, text);
    }

    static bool rowShown(QWidget* field) {
        return field->isVisibleTo(field->window());
    }
};

TEST_F(EditorViewTest, TheProtocolSetsItsPortAndItsOwnRowsAndABadPortIsSaidBesideIt) {
    ConnectionEditView view(*manager, added("Studio"), false);
    auto* protocol = view.control<QComboBox>("Protocol");
    auto* port = view.control<QLineEdit>("Port");
    type(port, QStringLiteral("2121"));
    EXPECT_EQ(view.config().port, 2121);

    choose(protocol, QStringLiteral("SFTP"));
    EXPECT_EQ(view.config().port, 22);
    EXPECT_EQ(port->text(), QStringLiteral("22"));
    EXPECT_TRUE(rowShown(view.control<QLineEdit>("SSH Key Path")));
    EXPECT_FALSE(rowShown(view.control<QComboBox>("FTP Mode")));
    EXPECT_FALSE(rowShown(view.control<QCheckBox>("Allow self-signed certificates")));
    choose(protocol, QStringLiteral("FTPS"));
    EXPECT_EQ(view.config().port, 21);
    EXPECT_TRUE(rowShown(view.control<QCheckBox>("Allow self-signed certificates")));
    EXPECT_FALSE(rowShown(view.control<QLineEdit>("SSH Key Path")));

    auto* problem = view.findChild<QLabel*>(QStringLiteral("Port problem"));
    for (const char* bad : {"0", "65536"}) {
        type(port, QString::fromLatin1(bad));
        EXPECT_TRUE(problem->isVisibleTo(&view)) << bad;
        EXPECT_FALSE(view.applyButton()->isEnabled()) << bad;
    }
    type(port, QStringLiteral("990"));
    EXPECT_FALSE(problem->isVisibleTo(&view));
    EXPECT_TRUE(view.applyButton()->isEnabled());

    // A control character cannot be typed, but it can be pasted.
    QGuiApplication::clipboard()->setText(QStringLiteral("/in\tbox"));
    view.control<QLineEdit>("Remote path")->selectAll();
    view.control<QLineEdit>("Remote path")->paste();
    EXPECT_FALSE(view.applyButton()->isEnabled());
}

TEST_F(EditorViewTest, ApplyNeedsHostAndFolderAndOnlyItReachesTheManager) {
    ConnectionEditView view(*manager, added("Studio"), false);
    const auto warningShown = [&] {
        for (auto* label : view.findChildren<QLabel*>())
            if (label->text() == QStringLiteral("Re-select folder to grant persistent access"))
                return label->isVisibleTo(&view);
        return false;
    };
    EXPECT_TRUE(warningShown());  // a folder in the record, but no grant for it
    type(view.control<QLineEdit>("Host"), QStringLiteral("ftp.example.com"));
    EXPECT_EQ(manager->connections()()[0].host, "memory");  // a working copy until Apply

    QTest::keyClick(view.control<QLineEdit>("Host"), Qt::Key_Return);
    EXPECT_EQ(manager->connections()()[0].host, "memory");  // Enter does not apply

    view.control<QLineEdit>("Host")->selectAll();
    QTest::keyClick(view.control<QLineEdit>("Host"), Qt::Key_Backspace);
    EXPECT_FALSE(view.applyButton()->isEnabled());
    EXPECT_TRUE(view.testButton()->isEnabled());

    type(view.control<QLineEdit>("Host"), QStringLiteral("ftp.example.com"));
    QTest::mouseClick(view.applyButton(), Qt::LeftButton);
    EXPECT_EQ(manager->connections()()[0].host, "ftp.example.com");

    // A cancelled panel changes nothing; a chosen folder is granted at once.
    auto* choose = view.control<QPushButton>("Choose local folder");
    view.choosePath = [](PathPanel) { return std::optional<std::filesystem::path>(); };
    choose->click();
    EXPECT_EQ(view.config().localPath, manager->connections()()[0].localPath);
    std::filesystem::create_directories(dir / "chosen");
    view.choosePath = [this](PathPanel) { return std::optional(dir / "chosen"); };
    QTest::mouseClick(choose, Qt::LeftButton);
    EXPECT_FALSE(warningShown());
}

TEST_F(EditorViewTest, ANewConnectionStaysOffUntilEnabledAndAppliedAndDiscardedEditsAreGone) {
    const auto shop = added("Shop");
    ConnectionsSettingsTab tab(*manager, shop.id);
    tab.askAboutEdits = [](const QString&) { return ConnectionsSettingsTab::EditsChoice::discard; };
    type(tab.editor()->control<QLineEdit>("Name"), QStringLiteral("Renamed"));

    QTest::mouseClick(tab.plusButton(), Qt::LeftButton);
    const auto fresh = manager->connections()().back();
    ASSERT_EQ(tab.editor()->config().id, fresh.id);
    tab.select(shop.id);
    EXPECT_EQ(tab.editor()->control<QLineEdit>("Name")->text(), QStringLiteral("Shop"));
    EXPECT_EQ(manager->connections()()[0].name, "Shop");

    tab.select(fresh.id);
    auto& editor = *tab.editor();
    type(editor.control<QLineEdit>("Host"), QStringLiteral("memory"));
    std::filesystem::create_directories(dir / "fresh");
    editor.choosePath = [this](PathPanel) { return std::optional(dir / "fresh"); };
    // Choosing the folder records its grant at once.
    QTest::mouseClick(editor.control<QPushButton>("Choose local folder"), Qt::LeftButton);
    EXPECT_EQ(editor.config().localPath, (dir / "fresh").string());
    EXPECT_TRUE(manager->bookmarkManager().hasBookmark(fresh.id));
    QTest::mouseClick(editor.applyButton(), Qt::LeftButton);
    EXPECT_EQ(manager->connections()().back().host, "memory");
    EXPECT_EQ(manager->engines().count(fresh.id), 0u);  // applied, but not enabled

    editor.control<QCheckBox>("Enabled")->click();
    QTest::mouseClick(editor.applyButton(), Qt::LeftButton);
    EXPECT_EQ(tab.editor(), &editor);  // applying keeps the editor
    EXPECT_EQ(manager->engines().count(fresh.id), 1u);
}

TEST_F(EditorViewTest, LiveTextsFollowTheSizeAndThePattern) {
    ConnectionEditView view(*manager, added("Studio"), false);
    auto* size = view.control<QSpinBox>("Min file size: ");
    const std::pair<int, const char*> sizes[] = {
        {0, "No minimum"}, {1023, "1023 B"}, {1024, "1 KB"}, {1048576, "1.0 MB"}};
    for (const auto& [bytes, text] : sizes) {
        size->setValue(bytes);
        EXPECT_EQ(size->text(), QStringLiteral("Min file size: ") + QString::fromUtf8(text));
        EXPECT_EQ(view.config().minFileSize, bytes);
    }

    auto* preview = view.findChild<QLabel*>(QStringLiteral("Preview:"));
    const auto sentenceShown = [&] {
        for (auto* label : view.findChildren<QLabel*>())
            if (label->text() == QStringLiteral("No rename — original filename is kept"))
                return label->isVisibleTo(&view);
        return false;
    };
    EXPECT_TRUE(sentenceShown());
    EXPECT_FALSE(preview->isVisibleTo(&view));
    type(view.control<QLineEdit>("Pattern (empty = no rename)"), QStringLiteral("{host}-{original}"));
    EXPECT_FALSE(sentenceShown());
    EXPECT_EQ(preview->text(), QStringLiteral("memory-FC04456.jpg"));
    type(view.control<QLineEdit>("Host"), QStringLiteral("cam"));
    EXPECT_EQ(preview->text(), QStringLiteral("cam-FC04456.jpg"));
}

TEST_F(EditorViewTest, TheScheduleShowsItsDaysAndHoursOnlyWhileOn) {
    ConnectionEditView view(*manager, added("Studio"), false);
    auto* from = view.control<QSpinBox>("From");
    EXPECT_FALSE(rowShown(from));
    view.control<QCheckBox>("Sync only during scheduled hours")->click();
    EXPECT_TRUE(rowShown(from));
    from->setValue(24);
    EXPECT_EQ(view.config().scheduleStartHour, 23);
    EXPECT_EQ(from->text(), QStringLiteral("From 23:00"));
    const auto days = view.findChildren<QToolButton*>();
    const auto monday = std::find_if(days.begin(), days.end(), [](QToolButton* b) { return b->isCheckable() && b->isChecked(); });
    ASSERT_NE(monday, days.end());
    (*monday)->click();
    EXPECT_EQ(view.config().scheduleDays, std::vector<bool>({false, true, true, true, true, true, true}));
}

TEST_F(EditorViewTest, APresetAsksFirstAndCancelPutsThePickerBack) {
    ConnectionEditView view(*manager, added("Studio"), false);
    const auto before = view.config();
    QString asked;
    view.confirmPreset = [&](const QString& name) {
        asked = name;
        return false;
    };
    view.chooseSector(SectorPreset::finance);
    EXPECT_EQ(asked, QStringLiteral("Finance"));
    EXPECT_EQ(view.config(), before);
    EXPECT_EQ(view.sectorPicker()->currentText(), QStringLiteral("Custom"));

    view.confirmPreset = [](const QString&) { return true; };
    view.chooseSector(SectorPreset::finance);
    EXPECT_EQ(view.config().host, "memory");
    EXPECT_EQ(view.config().routingRules.size(), 3u);
    EXPECT_EQ(view.config().scheduleDays, std::vector<bool>({true, true, true, true, true, false, false}));
    EXPECT_EQ(view.filterView().selectedPreset(), "finance");
    EXPECT_EQ(view.sectorPicker()->currentText(), QStringLiteral("Finance"));
    EXPECT_TRUE(view.control<QCheckBox>("Sync only during scheduled hours")->isChecked());
    QApplication::processEvents();
    EXPECT_EQ(view.ruleList().list()->count(), 3);
}

TEST_F(EditorViewTest, TheRuleSheetPreviewsTheFiveNames) {
    RoutingRuleEditSheet sheet(RoutingRule{}, {}, nullptr);
    EXPECT_EQ(sheet.previewMarks(), std::vector<bool>(5, true));
    EXPECT_FALSE(sheet.valueField()->isVisibleTo(&sheet));

    choose(sheet.typePicker(), QStringLiteral("Custom pattern (glob)"));
    EXPECT_EQ(sheet.valueField()->placeholderText(), QStringLiteral("*.2024.*"));
    QTest::keyClicks(sheet.valueField(), QStringLiteral("invoice*"));
    EXPECT_EQ(sheet.previewMarks(), std::vector<bool>({false, true, false, false, false}));
    choose(sheet.typePicker(), QStringLiteral("File type"));
    sheet.valueField()->clear();
    QTest::keyClicks(sheet.valueField(), QStringLiteral("jpg, csv"));
    EXPECT_EQ(sheet.previewMarks(), std::vector<bool>({true, false, true, false, false}));
}

TEST_F(EditorViewTest, TheRuleSheetGrantsAChosenFolderAtOnceAndClearKeepsTheGrant) {
    RoutingRuleEditSheet sheet(RoutingRule{}, [this](PathPanel) { return std::optional(dir / "jobs"); }, nullptr);
    std::vector<std::filesystem::path> granted;
    sheet.onRuleBookmarkSave = [&](const std::filesystem::path& url, const RoutingRule&) {
        granted.push_back(url);
    };
    const auto button = [&](const char* text) {
        for (auto* b : sheet.findChildren<QPushButton*>())
            if (b->text() == QString::fromUtf8(text)) return b;
        return static_cast<QPushButton*>(nullptr);
    };
    button("Choose...")->click();
    EXPECT_EQ(granted, std::vector<std::filesystem::path>({dir / "jobs"}));
    EXPECT_EQ(sheet.rule().destinationPath, (dir / "jobs").string());
    button("Clear")->click();
    EXPECT_FALSE(sheet.rule().destinationPath.has_value());
    EXPECT_EQ(granted.size(), 1u);
}

TEST_F(EditorViewTest, ReorderingRulesChangesRoutingAndTheDeadRuleWarning) {
    auto config = connection("Studio", "memory");
    RoutingRule everything;
    everything.destinationPath = "/srv/all";
    RoutingRule photos;
    photos.matchType = RuleMatchType::fileType;
    photos.matchValue = "jpg";
    photos.destinationPath = "/srv/photos";
    config.routingRules = {everything, photos};
    ConnectionEditView view(*manager, config, false);
    auto& list = view.ruleList();
    EXPECT_TRUE(list.warnings()[0].isEmpty());
    EXPECT_FALSE(list.warnings()[1].isEmpty());

    const auto routed = [&] {
        const RuleFolders folders = {{everything.id, "/srv/all"}, {photos.id, "/srv/photos"}};
        return route("a.jpg", "/inbox", view.config().routingRules, FallbackBehavior::useLocalFolder,
                     folders, std::nullopt).destinationURL;
    };
    EXPECT_EQ(routed(), std::filesystem::path("/srv/all"));
    list.moveRule(1, 0);
    QApplication::processEvents();
    EXPECT_EQ(routed(), std::filesystem::path("/srv/photos"));
    EXPECT_TRUE(list.warnings()[0].isEmpty());
    EXPECT_TRUE(list.warnings()[1].isEmpty());

    view.editRoutingRule = [](RoutingRule rule) -> std::optional<RoutingRule> {
        rule.matchValue = "png";
        return rule;
    };
    list.editRule(0);
    list.addRule();
    QApplication::processEvents();
    ASSERT_EQ(view.config().routingRules.size(), 3u);
    EXPECT_EQ(view.config().routingRules[0].matchValue, "png");
    EXPECT_EQ(view.config().routingRules[0].id, photos.id);
    EXPECT_EQ(list.list()->count(), 3);
}

TEST_F(EditorViewTest, ATreeBoxSelectsItsOwnFolderOnly) {
    ConnectionEditView view(*manager, added("Studio"), false);
    auto& tree = view.folderTree();
    tree.setRoots({{"jobs", "jobs", {{"jobs/acme", "acme", {}, 1, 10}}, 2, 20},
                   {"raw", "raw", {}, 0, 0}});
    EXPECT_EQ(tree.row("jobs")->text(1), QStringLiteral("2 files"));
    EXPECT_EQ(tree.row("jobs/acme")->text(1), QStringLiteral("1 file"));

    tree.row("jobs")->setCheckState(0, Qt::Checked);
    EXPECT_EQ(view.config().selectedRemotePaths, std::vector<std::string>({"jobs"}));
    EXPECT_FALSE(tree.row("jobs/acme")->isSelectedFolder());
    EXPECT_EQ(tree.headText(), QStringLiteral("1 folder selected"));

    QTest::mouseClick(tree.selectAllButton(), Qt::LeftButton);
    EXPECT_EQ(view.config().selectedRemotePaths.size(), 3u);
    EXPECT_EQ(tree.headText(), QStringLiteral("3 folders selected"));
    EXPECT_EQ(tree.selectAllButton()->text(), QStringLiteral("Deselect All"));
    QTest::mouseClick(tree.selectAllButton(), Qt::LeftButton);
    EXPECT_TRUE(view.config().selectedRemotePaths.empty());

    tree.showError(QStringLiteral("Access denied"));
    EXPECT_EQ(tree.stateText(), QStringLiteral("Error: Access denied"));
    EXPECT_NE(tree.row("raw"), nullptr);  // the earlier tree stays
    tree.setRoots({});
    EXPECT_EQ(tree.stateText(), QStringLiteral("No subdirectories found"));
    EXPECT_FALSE(tree.selectAllButton()->isVisibleTo(&view));
}

TEST_F(EditorViewTest, AGroupHeadSumsUpItsBoxesAndTogglesThemAll) {
    auto config = connection("Studio", "memory");
    config.extensionFilter = "jpg, mp4, png";
    ConnectionEditView view(*manager, config, false);
    auto& filters = view.filterView();
    EXPECT_EQ(filters.categoryBox("images")->checkState(), Qt::PartiallyChecked);
    EXPECT_EQ(filters.categoryBox("video")->checkState(), Qt::PartiallyChecked);
    EXPECT_EQ(filters.categoryBox("audio")->checkState(), Qt::Unchecked);
    EXPECT_TRUE(filters.entryBox("png")->isChecked());

    filters.categoryBox("images")->click();
    EXPECT_EQ(filters.categoryBox("images")->checkState(), Qt::Checked);
    EXPECT_NE(view.config().extensionFilter.find("heic"), std::string::npos);
    filters.categoryBox("images")->click();
    EXPECT_EQ(filters.categoryBox("images")->checkState(), Qt::Unchecked);
    EXPECT_EQ(view.config().extensionFilter, "mp4");

    // Choosing a preset writes its strings.
    choose(filters.presetPicker(), QString::fromStdString(filterPreset("photography").name));
    EXPECT_EQ(view.config().extensionFilter, presetStrings(filterPreset("photography")).included);
    EXPECT_EQ(filters.categoryBox("raw")->checkState(), Qt::Checked);
}

}  // namespace
}  // namespace tarnel::testing
