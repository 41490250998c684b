#pragma once

#include <QColor>
#include <QFrame>
#include <QBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QToolButton>
#include <functional>
#include <vector>

#include "shell/popover/popover_texts.h"

namespace tarnel {

// The small building blocks the popover's sections are made of.

QColor toneColor(Tone tone);
// The icon `name` at `size` pixels, in `tone`'s colour (or the text colour without one).
QLabel* iconLabel(const char* name, int size, std::optional<Tone> tone = std::nullopt);
// Shows that icon on `label`, drawn only when it is not the one shown already.
void setIcon(QLabel* label, const char* name, int size, std::optional<Tone> tone);
QLabel* textLabel(const QString& text, std::optional<Tone> tone = std::nullopt, bool small = false);
// The text in `tone`'s colour, or in the text colour without one.
void setTone(QLabel* label, std::optional<Tone> tone);
// Cut with "…" to fit `width` pixels; the whole text is the tool tip.
QLabel* elidedLabel(const QString& text, int width, bool bold = false);
void setElidedText(QLabel* label, const QString& text, int width);
// An icon in `tone`'s colour before `label`, on a line whose rest stays empty.
QHBoxLayout* iconTextLine(const char* icon, QLabel* label, std::optional<Tone> tone, bool small);
QLabel* sectionHeading(const QString& text);
QToolButton* flatButton(const QString& text, const char* icon, std::function<void()> action);
// Puts `widgets` at the head of `layout` in this order, moving only those out of place, so
// that rows kept across updates are neither remade nor hidden.
void placeInOrder(QBoxLayout* layout, const std::vector<QWidget*>& widgets);
// Deletes what the layout holds, widgets and nested layouts alike, once the loop is back.
void clearLayout(QLayout* layout);

// A row the popover keeps across updates. It owns its widget: when the row goes, the widget
// leaves the screen and is deleted once the loop is back.
class KeptRow {
public:
    explicit KeptRow(QWidget* widget) : widget_(widget) {}
    ~KeptRow();
    KeptRow(const KeptRow&) = delete;
    KeptRow& operator=(const KeptRow&) = delete;

    QWidget* widget() const { return widget_; }

private:
    QWidget* widget_;
};

// A line of an icon and texts, made once and kept: the popover updates it in place, and setting
// what it already shows changes nothing. The first text takes the room left; the others follow
// it in small secondary type.
class KeptLine final : public QWidget {
public:
    // `iconSize` 0 makes a line without an icon.
    KeptLine(int iconSize, int texts, bool smallFirst);

    void setIcon(const char* name, std::optional<Tone> tone);
    QLabel* text(int index = 0) const { return texts_[index]; }

private:
    int iconSize_;
    QLabel* icon_ = nullptr;
    std::vector<QLabel*> texts_;
};

// A row that calls `onClick` when clicked anywhere outside its own buttons.
class ClickableRow final : public QFrame {
public:
    explicit ClickableRow(std::function<void()> onClick);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::function<void()> onClick_;
};

}  // namespace tarnel
