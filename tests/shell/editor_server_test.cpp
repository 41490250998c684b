// The editor end to end against a real FTP server: a connection made in the form, tested,
// browsed, given two of the server's folders and applied; the files of those folders arrive.
#include <gtest/gtest.h>

#include <QTest>
#include <fstream>

#include "engine_fixture.h"
#include "fleet/connections_manager.h"
#include "servers/test_server.h"
#include "shell/editor/connection_edit_view.h"
#include "shell/editor/remote_folder_tree_view.h"
#include "shell/editor/test_steps_view.h"
#include "shell/settings/connections_settings_tab.h"

namespace tarnel::testing {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

struct EditorServerTest : EngineFixture, ::testing::WithParamInterface<ServerProtocol> {
    TestServer server{ServerOptions{GetParam(), dir / "server"}};
    // The program's own remote: libcurl against the real server.
    std::shared_ptr<ConnectionsManager> manager = std::make_shared<ConnectionsManager>(
        FleetServices{runtime, settingsStore, settings, logService, stats, history, notifications,
                      sleepMonitor, soundPlayer, dir / "partials-fleet.json", dir / "known_hosts"});

    void serve(const std::string& path) {
        fs::create_directories((server.root() / path).parent_path());
        std::ofstream(server.root() / path) << "contents of " << path;
    }

    static void type(ConnectionEditView& editor, const char* label, const std::string& text) {
        auto* field = editor.control<QLineEdit>(label);
        field->selectAll();
        QTest::keyClicks(field, QString::fromStdString(text));
    }

    static std::vector<std::string> stepStates(const TestStepsView& view) {
        std::vector<std::string> states;
        for (const auto& step : view.steps())
            states.push_back(step.name + ":" + std::to_string(static_cast<int>(step.status)) + ":" +
                             step.detail.value_or(""));
        return states;
    }
};

TEST_P(EditorServerTest, AConnectionMadeInTheEditorIsTestedBrowsedAndFetchesTheChosenFolders) {
    serve("jobs/a.pdf");
    serve("shots/b.jpg");
    serve("other/c.txt");
    fs::create_directories(dir / "inbox");

    ConnectionsSettingsTab tab(*manager, std::nullopt);
    QTest::mouseClick(tab.plusButton(), Qt::LeftButton);
    auto& editor = *tab.editor();
    type(editor, "Name", "Agency");
    const char* protocols[] = {"FTP", "FTPS", "SFTP"};
    auto* protocol = editor.control<QComboBox>("Protocol");
    const int index = protocol->findText(QString::fromLatin1(protocols[static_cast<int>(GetParam())]));
    protocol->setCurrentIndex(index);
    Q_EMIT protocol->activated(index);
    if (GetParam() == ServerProtocol::ftps) editor.control<QCheckBox>("Allow self-signed certificates")->click();
    type(editor, "Host", "127.0.0.1");
    type(editor, "Port", std::to_string(server.port()));
    type(editor, "Username", server.user());
    type(editor, "Password", server.password());

    editor.testConnection();
    EXPECT_TRUE(editor.isTesting());
    loop.runUntilIdle();
    EXPECT_FALSE(editor.isTesting());
    const std::string offers = GetParam() == ServerProtocol::sftp
                                   ? "No checksum: files are verified by size"
                                   : "SHA-256 checksums, MLSD listings";
    EXPECT_EQ(stepStates(editor.testSteps()),
              std::vector<std::string>({"DNS resolution:2:", "TCP connection:2:",
                                        "Authentication:2:", "Remote folder access:2:0 files found",
                                        "Checksum and listing:2:" + offers}));
    EXPECT_EQ(editor.testSteps().resultText().toStdString(), "Connection successful");

    editor.browse();
    loop.runUntilIdle();
    auto& tree = editor.folderTree();
    ASSERT_NE(tree.row("jobs"), nullptr) << tree.stateText().toStdString();
    EXPECT_NE(tree.row("shots"), nullptr);
    EXPECT_NE(tree.row("other"), nullptr);
    EXPECT_EQ(tree.row("jobs")->text(1).toStdString(), "1 file");
    tree.row("jobs")->setCheckState(0, Qt::Checked);
    tree.row("shots")->setCheckState(0, Qt::Checked);

    editor.control<QCheckBox>("Sync subfolders recursively")->click();
    editor.control<QCheckBox>("Enabled")->click();
    editor.choosePath = [this](PathPanel) { return std::optional(dir / "inbox"); };
    editor.control<QPushButton>("Choose local folder")->click();
    EXPECT_EQ(manager->connections()().front().host, "");  // nothing applied yet
    QTest::mouseClick(editor.applyButton(), Qt::LeftButton);
    const auto applied = manager->connections()().front();
    EXPECT_EQ(applied.selectedRemotePaths, std::vector<std::string>({"jobs", "shots"}));
    ASSERT_EQ(manager->engines().count(applied.id), 1u);

    for (int poll = 0; poll < 4; ++poll) loop.advance(30s);
    std::ifstream placed(dir / "inbox" / "jobs" / "a.pdf");
    EXPECT_TRUE(placed.good());
    EXPECT_TRUE(fs::exists(dir / "inbox" / "shots" / "b.jpg"));
    EXPECT_FALSE(fs::exists(dir / "inbox" / "other" / "c.txt"));
    EXPECT_TRUE(fs::exists(server.root() / "other" / "c.txt"));
    manager->stopAll();
}

TEST_P(EditorServerTest, DeeperFoldersLoadWhenOpenedAndAFailedBrowseKeepsTheTree) {
    serve("clients/acme/a.pdf");
    serve("clients/birch/b.pdf");
    auto config = server.connectionConfig();
    manager->addConnection(config);
    auto editor = std::make_unique<ConnectionEditView>(*manager, config, false);
    auto& tree = editor->folderTree();
    editor->browse();
    loop.runUntilIdle();
    ASSERT_NE(tree.row("clients"), nullptr) << tree.stateText().toStdString();
    EXPECT_EQ(tree.row("clients/acme"), nullptr);
    tree.row("clients")->setExpanded(true);
    loop.runUntilIdle();
    ASSERT_NE(tree.row("clients/acme"), nullptr);
    EXPECT_EQ(tree.row("clients/acme")->text(1).toStdString(), "1 file");

    server.refuseLogins(true);
    editor->browse();
    loop.runUntilIdle();
    EXPECT_TRUE(tree.stateText().startsWith(QStringLiteral("Error: "))) << tree.stateText().toStdString();
    EXPECT_NE(tree.row("clients/birch"), nullptr);

    // An editor closed while its test runs is not reached by the test's end.
    server.refuseLogins(false);
    editor->testConnection();
    editor.reset();
    loop.runUntilIdle();
}

INSTANTIATE_TEST_SUITE_P(Protocols, EditorServerTest,
                         ::testing::Values(ServerProtocol::ftp, ServerProtocol::ftps, ServerProtocol::sftp),
                         [](const auto& info) { return std::string(serverProtocolName(info.param)); });

}  // namespace
}  // namespace tarnel::testing
