#pragma once

#include <QColor>
#include <QFrame>
#include <QLabel>
#include <QLayout>
#include <QToolButton>
#include <functional>

#include "shell/popover/popover_texts.h"

namespace tarnel {

// The small building blocks the popover's sections are made of.

QColor toneColor(Tone tone);
// The icon `name` at `size` pixels, in `tone`'s colour (or the text colour without one).
QLabel* iconLabel(const char* name, int size, std::optional<Tone> tone = std::nullopt);
QLabel* textLabel(const QString& text, std::optional<Tone> tone = std::nullopt, bool small = false);
// Cut with "…" to fit `width` pixels; the whole text is the tool tip.
QLabel* elidedLabel(const QString& text, int width, bool bold = false);
QLabel* sectionHeading(const QString& text);
QToolButton* flatButton(const QString& text, const char* icon, std::function<void()> action);
// Deletes what the layout holds, widgets and nested layouts alike, once the loop is back.
void clearLayout(QLayout* layout);

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
