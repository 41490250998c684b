#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include "connections/connection_config_json.h"
#include "fleet_fixture.h"
#include "platform/testing/memory_keyring.h"
#include "shell/editor/connection_edit_view.h"
#include "shell/popover/menu_bar_view.h"
#include "shell/settings/connections_settings_tab.h"
#include "shell/settings/notifications_settings_tab.h"
#include "shell/settings/settings_window.h"

namespace tarnel::testing {
namespace {

struct SettingsWindowTest : FleetFixture {
    std::shared_ptr<ConnectionsManager> manager = makeManager();

    ConnectionConfig add(const std::string& name) {
        auto c = connection(name, "memory");
        manager->addConnection(c);
        return c;
    }
};

void type(ConnectionEditView& editor, const char* label, const QString& text) {
    auto* field = editor.control<QLineEdit>(label);
    field->selectAll();
    QTest::keyClicks(field, text);
}

TEST_F(SettingsWindowTest, OpensAtTheRequestedTabWithTheConnectionSelected) {
    add("Shop");
    const auto studio = add("Studio");
    SettingsWindow window(*manager, settings, soundPlayer, SettingsTab::connections, studio.id);
    EXPECT_EQ(window.selectedTab(), SettingsTab::connections);
    EXPECT_EQ(window.connections().selectedConnectionId(), studio.id);
    EXPECT_EQ(window.connections().list()->currentRow(), 1);

    SettingsWindow general(*manager, settings, soundPlayer, SettingsTab::general, std::nullopt);
    EXPECT_EQ(general.selectedTab(), SettingsTab::general);
    EXPECT_EQ(general.connections().detailText().toStdString(), "Select a connection or add a new one.");
}

TEST_F(SettingsWindowTest, PlusAddsADisabledConnectionAndMinusDeletesOnlyWhenConfirmed) {
    const auto shop = add("Shop");
    ConnectionsSettingsTab tab(*manager, std::nullopt);
    EXPECT_FALSE(tab.minusButton()->isEnabled());

    QTest::mouseClick(tab.plusButton(), Qt::LeftButton);
    ASSERT_EQ(manager->connections()().size(), 2u);
    const auto added = manager->connections()().back();
    EXPECT_FALSE(added.enabled);
    EXPECT_EQ(tab.selectedConnectionId(), added.id);
    EXPECT_EQ(manager->engines().count(added.id), 0u);

    QString asked;
    tab.confirmDelete = [&](const QString& name) {
        asked = name;
        return false;
    };
    QTest::mouseClick(tab.minusButton(), Qt::LeftButton);
    EXPECT_EQ(asked, QString::fromStdString(added.name));
    EXPECT_EQ(manager->connections()().size(), 2u);

    // The selection moves to the first record left, then to none.
    tab.confirmDelete = [](const QString&) { return true; };
    QTest::mouseClick(tab.minusButton(), Qt::LeftButton);
    ASSERT_EQ(manager->connections()().size(), 1u);
    EXPECT_EQ(tab.selectedConnectionId(), shop.id);
    QTest::mouseClick(tab.minusButton(), Qt::LeftButton);
    EXPECT_TRUE(manager->connections()().empty());
    EXPECT_FALSE(tab.selectedConnectionId());
    EXPECT_EQ(tab.detailText().toStdString(), "Select a connection or add a new one.");
}

TEST_F(SettingsWindowTest, LeavingUnappliedEditsAsksToApplyOrDiscardThemOrStay) {
    const auto shop = add("Shop");
    const auto studio = add("Studio");
    SettingsWindow window(*manager, settings, soundPlayer, SettingsTab::connections, shop.id);
    window.show();
    auto& tab = window.connections();
    using Choice = ConnectionsSettingsTab::EditsChoice;
    auto choice = Choice::cancel;
    QStringList asked;
    tab.askAboutEdits = [&](const QString& name) {
        asked << name;
        return choice;
    };

    type(*tab.editor(), "Name", QStringLiteral("Shop 2"));
    auto* editor = tab.editor();
    tab.list()->setCurrentRow(1);
    QTest::mouseClick(tab.plusButton(), Qt::LeftButton);
    EXPECT_FALSE(window.close());
    EXPECT_EQ(asked, QStringList(3, QStringLiteral("Shop 2")));
    EXPECT_EQ(tab.editor(), editor);  // Cancel: still editing, nothing added
    EXPECT_EQ(tab.list()->currentRow(), 0);
    EXPECT_EQ(manager->connections()().size(), 2u);

    choice = Choice::apply;
    tab.list()->setCurrentRow(1);
    EXPECT_EQ(manager->connections()()[0].name, "Shop 2");
    EXPECT_EQ(tab.selectedConnectionId(), studio.id);

    type(*tab.editor(), "Name", QStringLiteral("Studio 2"));
    choice = Choice::discard;
    EXPECT_TRUE(window.close());
    EXPECT_EQ(manager->connections()()[1].name, "Studio");

    // Nothing left to apply: leaving asks nothing, and Apply says that it took effect.
    asked.clear();
    window.reveal(SettingsTab::connections, shop.id);
    type(*tab.editor(), "Name", QStringLiteral("Shop 3"));
    QTest::mouseClick(tab.editor()->applyButton(), Qt::LeftButton);
    EXPECT_TRUE(tab.editor()->appliedNote()->isVisibleTo(&window));
    EXPECT_FALSE(tab.editor()->applyButton()->isEnabled());
    EXPECT_TRUE(tab.select(studio.id));
    EXPECT_TRUE(asked.isEmpty());
}

TEST_F(SettingsWindowTest, TheDeleteConfirmationHoldsTheConnectionWhileTheListIsReplaced) {
    const auto shop = add("Shop");
    const auto studio = add("Studio");
    ConnectionsSettingsTab tab(*manager, studio.id);
    tab.confirmDelete = [&](const QString&) {
        // A keyring answer, a folder found by the watch, an import: a new list meanwhile.
        auto changed = manager->connections()()[0];
        changed.pollInterval = 90;
        manager->updateConnection(changed);
        add("Lab");
        return true;
    };
    QTest::mouseClick(tab.minusButton(), Qt::LeftButton);
    ASSERT_EQ(manager->connections()().size(), 2u);
    EXPECT_EQ(manager->connections()()[0].id, shop.id);
    EXPECT_EQ(manager->connections()()[1].name, "Lab");
}

// The keyring answers on the loop; the editor is made before it has.
struct KeyringEditsTest : FleetFixture {
    MemoryKeyring memoryKeyring{loop};
    ConnectionConfig shop = connection("Shop", "memory");

    KeyringEditsTest() {
        keyring = &memoryKeyring;
        memoryKeyring.entries[shop.id.toString()] = "s3cret";
        shop.password.clear();
        settingsStore.setValue(ConnectionsManager::storageKey, encodeConnectionList({shop}, {shop.id}));
    }
};

TEST_F(KeyringEditsTest, AnEditorMadeBeforeTheKeyringAnsweredNeverChangesThePassword) {
    // The answer comes while the editor is open, then Apply.
    auto manager = makeManager();
    ConnectionsSettingsTab tab(*manager, shop.id);
    loop.runUntilIdle();
    type(*tab.editor(), "Host", QStringLiteral("memory2"));
    QTest::mouseClick(tab.editor()->applyButton(), Qt::LeftButton);
    loop.runUntilIdle();
    EXPECT_EQ(memoryKeyring.entries[shop.id.toString()], "s3cret");
    EXPECT_EQ(manager->connections()()[0].password, "s3cret");
    EXPECT_EQ(loginPasswords["memory2"], "s3cret");
    manager->stopAll();

    // Apply before the answer.
    auto again = makeManager();
    ConnectionsSettingsTab other(*again, shop.id);
    type(*other.editor(), "Host", QStringLiteral("memory3"));
    QTest::mouseClick(other.editor()->applyButton(), Qt::LeftButton);
    loop.runUntilIdle();
    EXPECT_EQ(memoryKeyring.entries[shop.id.toString()], "s3cret");
    EXPECT_EQ(loginPasswords["memory3"], "s3cret");

    // A password typed is the user's, answer or not.
    type(*other.editor(), "Password", QStringLiteral("typed"));
    QTest::mouseClick(other.editor()->applyButton(), Qt::LeftButton);
    loop.runUntilIdle();
    EXPECT_EQ(memoryKeyring.entries[shop.id.toString()], "typed");
    again->stopAll();
}

TEST_F(KeyringEditsTest, ThePowerButtonOfARowDrawnBeforeTheKeyringAnsweredKeepsThePassword) {
    auto manager = makeManager();
    MenuBarView view(*manager, settings, stats, history, loop, {});
    loop.runUntilIdle();
    QToolButton* power = nullptr;
    for (auto* button : view.findChildren<QToolButton*>())
        if (button->toolTip() == QStringLiteral("Disable connection")) power = button;
    ASSERT_NE(power, nullptr);
    QTest::mouseClick(power, Qt::LeftButton);
    loop.runUntilIdle();
    EXPECT_FALSE(manager->connections()()[0].enabled);
    EXPECT_EQ(memoryKeyring.entries[shop.id.toString()], "s3cret");
    manager->stopAll();
}

TEST_F(SettingsWindowTest, SteppersStopAtTheirLimitsAndFollowTheSetting) {
    NotificationsSettingsTab tab(settings, soundPlayer);
    auto* files = tab.minFileCountStepper();
    auto* failures = tab.errorAttemptsStepper();

    files->setValue(51);
    EXPECT_EQ(settings.notifyMinFileCount(), 50);
    failures->setValue(0);
    EXPECT_EQ(settings.notifyErrorsAfterAttempts(), 1);
    EXPECT_EQ(settingsStore.intValue("notify_errors_after"), 1);

    settings.setNotifyMinFileCount(7);
    EXPECT_EQ(files->value(), 7);
    EXPECT_EQ(files->text().toStdString(), "Only if 7 or more files");
}

}  // namespace
}  // namespace tarnel::testing
