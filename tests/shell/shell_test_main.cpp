// The shell's tests run offscreen, in one QApplication, with the artwork registered and a
// private runtime folder.
#include <gtest/gtest.h>

#include <QApplication>
#include <QIcon>
#include <QTemporaryDir>
#include <cstdlib>

#include "shell/icons/shell_resources.h"

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
#ifdef TARNEL_TEST_LANG
    // The language a desktop session asks for, before Qt reads it.
    setenv("LANG", TARNEL_TEST_LANG, 1);
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES"}) unsetenv(name);
#endif
    QTemporaryDir runtime;
    setenv("XDG_RUNTIME_DIR", runtime.path().toUtf8().constData(), 1);
    QApplication app(argc, argv);
    tarnel::initShellResources();
    QIcon::setThemeSearchPaths({QStringLiteral("/usr/share/icons")});
    QIcon::setThemeName(QStringLiteral("Adwaita"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
