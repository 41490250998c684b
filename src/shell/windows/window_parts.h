#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QWidget>
#include <functional>

namespace tarnel {

// The pieces the log, history and about windows share.

// A top-level window titled `title` with only a close button: no minimise, no zoom.
void makeToolWindow(QWidget& window, const QString& title);
// Adds to `into` a row that begins with `title` in bold and a stretch; the caller adds the
// row's controls after it.
QHBoxLayout* headRow(QBoxLayout* into, const QString& title);
QPushButton* commandButton(const QString& text, QObject* context, std::function<void()> action);
// The centred grey sentence a window shows in place of an empty list.
QLabel* emptyNote(const QString& text);
// A read-only table of whole rows, without grid or row numbers.
QTableWidget* plainTable(int columns);

}  // namespace tarnel
