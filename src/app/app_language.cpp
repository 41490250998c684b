#include "app/app_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include "platform/localized.h"
#include "platform/qt/qt_settings_store.h"
#include "records/app_settings.h"

namespace tarnel {
namespace {

QLocale chosenLocale(const std::filesystem::path& settingsFile) {
    const QtSettingsStore store(settingsFile);
    auto code = QString::fromStdString(AppSettings::startupLanguage(store));
    if (code.isEmpty() || code == QStringLiteral("system")) return QLocale::system();
    return QLocale(code.replace(QLatin1Char('-'), QLatin1Char('_')));
}

// The core's texts share the shell's table.
std::string translated(std::string_view key) {
    return QCoreApplication::translate("tarnel", std::string(key).c_str()).toStdString();
}

}  // namespace

AppLanguage::AppLanguage(const std::filesystem::path& settingsFile)
    : locale_(chosenLocale(settingsFile)) {
    QLocale::setDefault(locale_);
    if (own_.load(locale_, QStringLiteral("tarnel"), QStringLiteral("_"), QStringLiteral(":/i18n")))
        QCoreApplication::installTranslator(&own_);
    if (qt_.load(locale_, QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
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
