#include "app/app_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include "platform/localized.h"
#include "platform/qt/qt_settings_store.h"
#include "records/app_settings.h"

namespace tarnel {
namespace {

// The core's texts share the shell's table.
std::string translated(std::string_view key, int count) {
    return QCoreApplication::translate("tarnel", std::string(key).c_str(), nullptr, count)
        .toStdString();
}

}  // namespace

QLocale AppLanguage::localeFor(const std::string& code) {
    if (code.empty() || code == "system") return QLocale::system();
    return QLocale(QString::fromStdString(code).replace(QLatin1Char('-'), QLatin1Char('_')));
}

bool AppLanguage::loadOwn(QTranslator& translator, const QLocale& locale) {
    return translator.load(locale, QStringLiteral("tarnel"), QStringLiteral("_"),
                           QStringLiteral(":/i18n"));
}

AppLanguage::AppLanguage(const std::filesystem::path& settingsFile)
    : locale_(localeFor(AppSettings::startupLanguage(QtSettingsStore(settingsFile)))) {
    QLocale::setDefault(locale_);
    if (loadOwn(own_, locale_)) QCoreApplication::installTranslator(&own_);
    // Qt has some languages in one variant only (Portuguese as spoken in Brazil): its dialogs
    // are better in that one than in English.
    const auto qtFolder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (qt_.load(locale_, QStringLiteral("qtbase"), QStringLiteral("_"), qtFolder) ||
        qt_.load(QLocale(locale_.language()), QStringLiteral("qtbase"), QStringLiteral("_"),
                 qtFolder))
        QCoreApplication::installTranslator(&qt_);
    setTextLookup(&translated);
}

AppLanguage::~AppLanguage() {
    setTextLookup(nullptr);
    QCoreApplication::removeTranslator(&qt_);
    QCoreApplication::removeTranslator(&own_);
    QLocale::setDefault(previousDefault_);
}

}  // namespace tarnel
