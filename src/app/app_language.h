#pragma once

#include <filesystem>
#include <string>

#include <QLocale>
#include <QTranslator>

namespace tarnel {

// The language the tray application speaks for the life of the process: the one chosen in the
// settings, or the environment's (LANGUAGE, LC_ALL, LANG) while the choice is "system". Texts
// without a translation stay in English. Made before the first window, after the application.
class AppLanguage final {
public:
    explicit AppLanguage(const std::filesystem::path& settingsFile);
    ~AppLanguage();

    AppLanguage(const AppLanguage&) = delete;
    AppLanguage& operator=(const AppLanguage&) = delete;

    const QLocale& locale() const { return locale_; }

    // The locale of a language setting ("system", "de", "pt-PT", "zh-Hans").
    static QLocale localeFor(const std::string& code);
    // Loads the program's own texts for `locale`, as built into it; false where there are none.
    static bool loadOwn(QTranslator& translator, const QLocale& locale);

private:
    QLocale locale_;
    QLocale previousDefault_;
    QTranslator own_;  // the program's texts, built into it
    QTranslator qt_;   // Qt's own (dialog buttons, file chooser), where the system has them
};

}  // namespace tarnel
