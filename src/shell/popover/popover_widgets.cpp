#include "shell/popover/popover_widgets.h"

#include <QFontMetrics>
#include <QMouseEvent>

#include "shell/icons/symbol_icon.h"

namespace tarnel {

QColor toneColor(Tone tone) {
    switch (tone) {
    case Tone::secondary: return QColor(0x6e, 0x6e, 0x73);
    case Tone::blue: return QColor(0x1a, 0x73, 0xe8);
    case Tone::green: return QColor(0x2f, 0x9e, 0x55);
    case Tone::orange: return QColor(0xe8, 0x7b, 0x00);
    case Tone::red: return QColor(0xd9, 0x30, 0x25);
    }
    return {};
}

QLabel* iconLabel(const char* name, int size, std::optional<Tone> tone) {
    auto* label = new QLabel;
    const QColor color = tone ? toneColor(*tone) : label->palette().color(QPalette::WindowText);
    label->setPixmap(tintedPixmap(symbolIcon(name), size, color, label->devicePixelRatioF()));
    label->setFixedSize(size, size);
    return label;
}

QLabel* textLabel(const QString& text, std::optional<Tone> tone, bool small) {
    auto* label = new QLabel(text);
    if (tone) {
        auto palette = label->palette();
        palette.setColor(QPalette::WindowText, toneColor(*tone));
        label->setPalette(palette);
    }
    if (small) {
        auto font = label->font();
        font.setPointSizeF(font.pointSizeF() * 0.85);
        label->setFont(font);
    }
    return label;
}

QLabel* elidedLabel(const QString& text, int width, bool bold) {
    auto* label = new QLabel;
    if (bold) {
        auto font = label->font();
        font.setBold(true);
        label->setFont(font);
    }
    setElidedText(label, text, width);
    return label;
}

void setElidedText(QLabel* label, const QString& text, int width) {
    label->setText(QFontMetrics(label->font()).elidedText(text, Qt::ElideMiddle, width));
    label->setToolTip(label->text() != text ? text : QString());
}

QHBoxLayout* iconTextLine(const char* icon, QLabel* label, std::optional<Tone> tone, bool small) {
    auto* line = new QHBoxLayout;
    line->setSpacing(6);
    line->addWidget(iconLabel(icon, small ? 12 : 14, tone));
    line->addWidget(label);
    line->addStretch();
    return line;
}

QLabel* sectionHeading(const QString& text) {
    auto* label = textLabel(text, Tone::secondary, true);
    auto font = label->font();
    font.setBold(true);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.6);
    label->setFont(font);
    return label;
}

QToolButton* flatButton(const QString& text, const char* icon, std::function<void()> action) {
    auto* button = new QToolButton;
    button->setText(text);
    button->setAutoRaise(true);
    if (icon) {
        button->setIcon(symbolIcon(icon));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
    if (action)
        QObject::connect(button, &QToolButton::clicked, button, [action] { action(); });
    else
        button->setEnabled(false);
    return button;
}

void placeInOrder(QBoxLayout* layout, const std::vector<QWidget*>& widgets) {
    for (int i = 0; i < static_cast<int>(widgets.size()); ++i) {
        if (layout->indexOf(widgets[i]) == i) continue;
        layout->removeWidget(widgets[i]);
        layout->insertWidget(i, widgets[i]);
    }
}

void clearLayout(QLayout* layout) {
    while (auto* item = layout->takeAt(0)) {
        if (auto* widget = item->widget()) {
            widget->hide();
            widget->deleteLater();
        } else if (auto* inner = item->layout()) {
            clearLayout(inner);
        }
        delete item;
    }
}

KeptRow::~KeptRow() {
    widget_->hide();
    widget_->deleteLater();
}

ClickableRow::ClickableRow(std::function<void()> onClick) : onClick_(std::move(onClick)) {
    setObjectName(QStringLiteral("row"));
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setStyleSheet(QStringLiteral(
        "QFrame#row { border-radius: 6px; } QFrame#row:hover { background: rgba(0,0,0,0.06); }"));
}

void ClickableRow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) && onClick_)
        onClick_();
    QFrame::mouseReleaseEvent(event);
}

}  // namespace tarnel
