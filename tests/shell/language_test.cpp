// The tray application in the language chosen in its settings, or the environment's for
// "system"; this program runs with LANG=es_ES.UTF-8 as a Spanish desktop session would.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QDir>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>
#include <algorithm>

#include "app/app_delegate.h"
#include "app/app_language.h"
#include "platform/localized.h"
#include "platform/qt/qt_settings_store.h"
#include "records/app_settings.h"
#include "shell/editor/editor_texts.h"
#include "shell/popover/popover_texts.h"
#include "shell/settings/general_settings_tab.h"
#include "shell/settings/notifications_settings_tab.h"
#include "recording_notifier.h"
#include "temporary_paths.h"

namespace tarnel {
namespace {

void chooseLanguage(const AppPaths& paths, const std::string& code) {
    QtSettingsStore store(paths.settingsFile);
    AppSettings(store, paths.autostartFile).setPreferredLanguage(code);
    store.flush();
}

// Every text a person reads in the window: labels, buttons and tab titles.
QStringList textsOf(QWidget& window) {
    QStringList texts{window.windowTitle()};
    for (auto* label : window.findChildren<QLabel*>()) texts << label->text();
    for (auto* button : window.findChildren<QAbstractButton*>()) texts << button->text();
    for (auto* tabs : window.findChildren<QTabWidget*>())
        for (int i = 0; i < tabs->count(); ++i) texts << tabs->tabText(i);
    return texts;
}

QAbstractButton* buttonLabelled(QWidget& window, const QString& text) {
    for (auto* button : window.findChildren<QAbstractButton*>())
        if (button->text() == text) return button;
    return nullptr;
}

struct Expected {
    QStringList popover, settings;
    QString pauseButton, pausedStatus, imagesCategory;
};

// Starts the application as the program does, with one connection to watch (its default name
// and, once paused from the popover, its engine's status come through the core's lookup).
void expectLanguage(const std::string& choice, const Expected& expected) {
    QTemporaryDir dir;
    const auto paths = pathsIn(dir);
    chooseLanguage(paths, choice);
    const AppLanguage language(paths.settingsFile);
    AppDelegate delegate(paths);
    delegate.applicationDidFinishLaunching();
    ConnectionConfig shop;
    shop.host = "127.0.0.1";
    shop.port = 9;
    delegate.services().manager().addConnection(shop);

    // The popover follows the fleet at its own pace.
    auto& popover = delegate.popover();
    const auto showsAll = [&] {
        const auto texts = textsOf(popover);
        return std::all_of(expected.popover.begin(), expected.popover.end(),
                           [&](const QString& text) { return texts.contains(text); });
    };
    // A timeout is left to the checks below, which name the text that is missing.
    static_cast<void>(QTest::qWaitFor(showsAll));
    const auto popoverTexts = textsOf(popover);
    for (const auto& text : expected.popover)
        EXPECT_TRUE(popoverTexts.contains(text)) << text.toStdString();
    auto* pause = buttonLabelled(popover, expected.pauseButton);
    ASSERT_NE(pause, nullptr) << expected.pauseButton.toStdString();
    QTest::mouseClick(pause, Qt::LeftButton);
    const auto& engines = delegate.services().manager().engines();
    ASSERT_EQ(engines.size(), 1u);
    EXPECT_EQ(QString::fromStdString(engines.begin()->second->statusText()()), expected.pausedStatus);
    EXPECT_EQ(QString::fromStdString(localized("ext.cat.images")), expected.imagesCategory);

    delegate.showSettings(SettingsTab::general);
    const auto settingsTexts = textsOf(*delegate.settingsWindow());
    for (const auto& text : expected.settings)
        EXPECT_TRUE(settingsTexts.contains(text)) << text.toStdString();
    delegate.applicationWillTerminate();
}

TEST(Language, TheChosenLanguageOutranksTheEnvironments) {
    expectLanguage("de", {{QStringLiteral("Verbindung hinzufügen"), QStringLiteral("VERBINDUNGEN"),
                           QStringLiteral("1 aktive Verbindung"), QStringLiteral("Jetzt abgleichen"),
                           QStringLiteral("Neue Verbindung")},
                          {QStringLiteral("Tarnel-Einstellungen"), QStringLiteral("Allgemein"),
                           QStringLiteral("Benachrichtigungen"),
                           QStringLiteral("Tarnel beim Anmelden starten")},
                          QStringLiteral("Pausieren"),
                          QStringLiteral("Pausiert"),
                          QStringLiteral("Bilder")});
}

TEST(Language, SystemFollowsTheEnvironment) {
    expectLanguage("system", {{QStringLiteral("Añadir conexión"), QStringLiteral("CONEXIONES"),
                               QStringLiteral("1 conexión activa"), QStringLiteral("Sincronizar ahora"),
                               QStringLiteral("Nueva conexión")},
                              {QStringLiteral("Ajustes de Tarnel"), QStringLiteral("Notificaciones"),
                               QStringLiteral("Idioma")},
                              QStringLiteral("Pausar"),
                              QStringLiteral("En pausa"),
                              QStringLiteral("Imágenes")});
}

TEST(Language, ALanguageWithoutTranslationsStaysInEnglish) {
    expectLanguage("sv", {{QStringLiteral("Add Connection"), QStringLiteral("1 active connection"),
                           QStringLiteral("New Connection")},
                          {QStringLiteral("Tarnel Settings"), QStringLiteral("Notifications")},
                          QStringLiteral("Pause"),
                          QStringLiteral("Paused"),
                          QStringLiteral("Images")});
}

// A count takes the form that its language gives it: Polish has three (1; 2-4, 22-24, ...; 5-21,
// 25-31, ...), French counts 0 as one, a language without translations has English's two. A
// stepper's words follow its number as it changes.
TEST(Language, CountsTakeTheirLanguagesForms) {
    struct Count {
        int n;
        const char *connections, *folders, *failures;
    };
    const std::vector<std::pair<std::string, std::vector<Count>>> languages = {
        {"pl",
         {{1, "1 aktywne połączenie", "Wybrano 1 folder", "Po 1 nieudanej próbie"},
          {2, "2 aktywne połączenia", "Wybrano 2 foldery", "Po 2 nieudanych próbach z rzędu"},
          {5, "5 aktywnych połączeń", "Wybrano 5 folderów", "Po 5 nieudanych próbach z rzędu"},
          {12, "12 aktywnych połączeń", "Wybrano 12 folderów", nullptr},
          {22, "22 aktywne połączenia", "Wybrano 22 foldery", nullptr}}},
        {"fr",
         {{0, nullptr, "0 dossier sélectionné", nullptr},
          {2, "2 connexions actives", "2 dossiers sélectionnés", "Après 2 échecs consécutifs"}}},
        {"sv",
         {{1, "1 active connection", "1 folder selected", "After 1 consecutive failures"},
          {5, "5 active connections", "5 folders selected", "After 5 consecutive failures"}}},
    };
    for (const auto& [code, counts] : languages) {
        QTemporaryDir dir;
        const auto paths = pathsIn(dir);
        chooseLanguage(paths, code);
        const AppLanguage language(paths.settingsFile);
        QtSettingsStore store(paths.settingsFile);
        AppSettings settings(store, paths.autostartFile);
        testing::RecordingSoundPlayer sounds;
        NotificationsSettingsTab notifications(settings, sounds);
        for (const auto& count : counts) {
            SCOPED_TRACE(code + " " + std::to_string(count.n));
            if (count.connections) {
                EXPECT_EQ(headerStatusText({.enabledConnections = count.n}), count.connections);
            }
            EXPECT_EQ(foldersSelectedText(count.n).toStdString(), count.folders);
            if (count.failures) {
                notifications.errorAttemptsStepper()->setValue(count.n);
                EXPECT_EQ(notifications.errorAttemptsStepper()->text().toStdString(),
                          count.failures);
            }
        }
    }
}

struct Message {
    QString source, translation;
    QStringList forms;  // of a text with a count, one a grammatical number of the language
    bool unfinished = false;
};

std::vector<Message> messagesOf(const QString& tsFile) {
    QFile file(tsFile);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << tsFile.toStdString();
    QXmlStreamReader xml(&file);
    std::vector<Message> messages;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QStringLiteral("message")) messages.emplace_back();
        if (xml.name() == QStringLiteral("source")) messages.back().source = xml.readElementText();
        if (xml.name() == QStringLiteral("translation")) {
            messages.back().unfinished = xml.attributes().value(QStringLiteral("type")) ==
                                         QStringLiteral("unfinished");
            // A text with a count has its forms, which follow, in place of one translation.
            if (messages.back().source.contains(QStringLiteral("%n"))) continue;
            messages.back().translation = xml.readElementText();
        }
        if (xml.name() == QStringLiteral("numerusform"))
            messages.back().forms << xml.readElementText();
    }
    EXPECT_FALSE(xml.hasError()) << tsFile.toStdString() << ": " << xml.errorString().toStdString();
    return messages;
}

// The values a text takes, in the order the program hands them over.
QString placeholdersOf(const QString& text) {
    static const QRegularExpression placeholder(QStringLiteral(R"(%lld|%d|%@|%\d|\{[a-z]+\})"));
    QStringList found;
    for (const auto& match : placeholder.globalMatch(text)) found << match.captured();
    return found.join(QLatin1Char(' '));
}

// A text with a count has as many forms as its language's grammar: each count from 0 to 1,000
// finds one of them in the built table, and each form is found by some count.
void expectEveryForm(const QTranslator& built, const Message& message) {
    ASSERT_FALSE(message.forms.isEmpty());
    for (const auto& form : message.forms) {
        EXPECT_FALSE(form.trimmed().isEmpty());
        EXPECT_TRUE(form.contains(QStringLiteral("%n"))) << form.toStdString();
        EXPECT_EQ(placeholdersOf(form), placeholdersOf(message.source)) << form.toStdString();
    }
    const auto distinct = [](QStringList forms) {
        forms.removeDuplicates();
        forms.sort();
        return forms.join(QStringLiteral(" | ")).toStdString();
    };
    QStringList found;
    for (int n = 0; n <= 1000; ++n) {
        found << built.translate("tarnel", message.source.toUtf8().constData(), nullptr, n);
        ASSERT_TRUE(message.forms.contains(found.back()))
            << n << ": " << found.back().toStdString();
    }
    EXPECT_EQ(distinct(found), distinct(message.forms));
}

// Every language the picker offers speaks every text of the program: its source is complete and
// keeps each value in its place, and the program carries it built in.
TEST(Language, EveryOfferedLanguageIsComplete) {
    const QDir sources(QStringLiteral(TARNEL_TRANSLATIONS_DIR));
    // translations/update gives every language the same texts.
    const auto texts = messagesOf(sources.filePath(QStringLiteral("tarnel_de.ts"))).size();
    ASSERT_GT(texts, 300u);
    for (const auto& [code, name] : GeneralSettingsTab::languages()) {
        if (code == std::string("system") || code == std::string("en")) continue;
        SCOPED_TRACE(code);
        QTranslator built;
        ASSERT_TRUE(AppLanguage::loadOwn(built, AppLanguage::localeFor(code)));
        const auto tsFile = sources.filePath(QFileInfo(built.filePath()).completeBaseName() +
                                             QStringLiteral(".ts"));
        const auto messages = messagesOf(tsFile);
        EXPECT_EQ(messages.size(), texts) << tsFile.toStdString();
        for (const auto& message : messages) {
            SCOPED_TRACE(message.source.toStdString());
            EXPECT_FALSE(message.unfinished);
            if (message.source.contains(QStringLiteral("%n"))) {
                expectEveryForm(built, message);
                continue;
            }
            EXPECT_FALSE(message.translation.trimmed().isEmpty());
            EXPECT_EQ(placeholdersOf(message.translation), placeholdersOf(message.source));
            EXPECT_EQ(built.translate("tarnel", message.source.toUtf8().constData()),
                      message.translation);
        }
    }
}

// Qt's own dialogs (file chooser, standard buttons) speak each offered language too, in the
// variant Qt has where it lacks the one chosen (Brazil's Portuguese for Portugal's).
TEST(Language, QtsOwnTextsFollowTheChosenLanguage) {
    for (const auto& [code, name] : GeneralSettingsTab::languages()) {
        if (code == std::string("system") || code == std::string("en")) continue;
        SCOPED_TRACE(code);
        QTemporaryDir dir;
        const auto paths = pathsIn(dir);
        chooseLanguage(paths, code);
        const AppLanguage language(paths.settingsFile);
        EXPECT_NE(QCoreApplication::translate("QPlatformTheme", "Cancel").toStdString(), "Cancel");
    }
}

}  // namespace
}  // namespace tarnel
