// A password entered in the connection editor, with a real Secret Service on a private session
// bus: it is not in the settings file, it is in the keyring, the connection logs in with it, and
// deleting the connection deletes the entry.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDeadlineTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <cstdlib>
#include <fstream>

#include "engine_fixture.h"
#include "fleet/connections_manager.h"
#include "platform/qt/qt_keyring.h"
#include "platform/qt/qt_settings_store.h"
#include "servers/secret_service.h"
#include "servers/test_server.h"
#include "shell/editor/connection_edit_view.h"
#include "shell/icons/shell_resources.h"
#include "shell/settings/connections_settings_tab.h"

namespace tarnel::testing {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

// The one session bus of this process: Qt and the keyring library bind to it at first use, so
// it is started before the application.
std::optional<SecretService> secretService;
std::string secretServiceProblem;

struct KeyringEditorTest : EngineFixture {
    const std::string password = "ed-" + Uuid::random().toString();
    TestServer server{ServerOptions{ServerProtocol::ftp, dir / "server", "tarnel", password}};
    fs::path settingsFile = dir / "config" / "Tarnel.conf";
    QtSettingsStore fileStore{settingsFile};
    QtKeyring keyring;

    std::shared_ptr<ConnectionsManager> makeManager() {
        return std::make_shared<ConnectionsManager>(
            FleetServices{runtime, fileStore, settings, logService, stats, history, notifications,
                          sleepMonitor, soundPlayer, dir / "partials-fleet.json",
                          dir / "known_hosts", nullptr, nullptr, &keyring});
    }

    // Runs Qt's events, where the keyring answers, until `done` holds; at most 20 seconds.
    static bool settle(const std::function<bool()>& done) {
        QDeadlineTimer deadline(20s);
        while (!done() && !deadline.hasExpired()) QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        return done();
    }

    bool passwordInFile() {
        fileStore.flush();
        return readFile(settingsFile).find(password) != std::string::npos;
    }

    static void type(ConnectionEditView& editor, const char* label, const std::string& text) {
        auto* field = editor.control<QLineEdit>(label);
        field->selectAll();
        QTest::keyClicks(field, QString::fromStdString(text));
    }
};

TEST_F(KeyringEditorTest, APasswordEnteredInTheEditorIsNotInTheSettingsFileAndStillLogsIn) {
    if (auto missing = SecretService::unavailable()) GTEST_SKIP() << *missing;
    ASSERT_TRUE(secretService) << secretServiceProblem;
    std::ofstream(server.root() / "a.pdf") << "a";
    fs::create_directories(dir / "inbox");

    auto manager = makeManager();
    ConnectionsSettingsTab tab(*manager, std::nullopt);
    QTest::mouseClick(tab.plusButton(), Qt::LeftButton);
    auto& editor = *tab.editor();
    type(editor, "Name", "Vault");
    type(editor, "Host", "127.0.0.1");
    type(editor, "Port", std::to_string(server.port()));
    type(editor, "Username", server.user());
    type(editor, "Password", password);
    editor.control<QCheckBox>("Enabled")->click();
    editor.choosePath = [this](PathPanel) { return std::optional(dir / "inbox"); };
    editor.control<QPushButton>("Choose local folder")->click();
    QTest::mouseClick(editor.applyButton(), Qt::LeftButton);

    const auto id = manager->connections()().front().id;
    ASSERT_TRUE(settle([&] { return !passwordInFile(); })) << readFile(settingsFile);
    EXPECT_EQ(secretService->lookup(id.toString()), password);
    for (int poll = 0; poll < 4; ++poll) loop.advance(30s);
    EXPECT_TRUE(fs::exists(dir / "inbox" / "a.pdf")) << readFile(dir / "Tarnel.log");

    tab.confirmDelete = [](const QString&) { return true; };
    QTest::mouseClick(tab.minusButton(), Qt::LeftButton);
    EXPECT_TRUE(manager->connections()().empty());
    EXPECT_TRUE(settle([&] { return !secretService->lookup(id.toString()); }));
    manager->stopAll();
}

}  // namespace
}  // namespace tarnel::testing

int main(int argc, char** argv) {
    using tarnel::testing::secretService;
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QTemporaryDir runtime, secrets;
    setenv("XDG_RUNTIME_DIR", runtime.path().toUtf8().constData(), 1);
    if (!tarnel::testing::SecretService::unavailable()) {
        try {
            secretService.emplace(secrets.path().toStdString());
            setenv("DBUS_SESSION_BUS_ADDRESS", secretService->busAddress().c_str(), 1);
        } catch (const std::exception& e) {
            tarnel::testing::secretServiceProblem = e.what();
        }
    }
    QApplication app(argc, argv);
    tarnel::initShellResources();
    ::testing::InitGoogleTest(&argc, argv);
    const int failed = RUN_ALL_TESTS();
    secretService.reset();
    return failed;
}
