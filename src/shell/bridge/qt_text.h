#pragma once

#include <QCoreApplication>
#include <QString>
#include <string>

namespace tarnel {

// A text the user reads, through the translation table with the English text as key.
inline QString ui(const char* english) {
    return QCoreApplication::translate("tarnel", english);
}

// Marks an English text for the translation table where it is handed on untranslated (a label
// that a helper passes through `ui` later).
#define UI_TEXT(english) english

// A UTF-8 string of the core as Qt text.
inline QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

}  // namespace tarnel
