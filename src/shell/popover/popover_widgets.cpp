#include "shell/popover/popover_widgets.h"

#include <QApplication>
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

namespace {
QColor colorOf(const QLabel* label, std::optional<Tone> tone) {
    return tone ? toneColor(*tone) : QApplication::palette(label).color(QPalette::WindowText);
}
}  // namespace

QLabel* iconLabel(const char* name, int size, std::optional<Tone> tone) {
    auto* label = new QLabel;
    setIcon(label, name, size, tone);
    label->setFixedSize(size, size);
    return label;
}

void setIcon(QLabel* label, const char* name, int size, std::optional<Tone> tone) {
    const auto shown = QStringLiteral("%1 %2 %3").arg(QLatin1String(name)).arg(size).arg(tone ? int(*tone) : -1);
    if (label->property("shownIcon").toString() == shown) return;
    label->setProperty("shownIcon", shown);
    label->setPixmap(tintedPixmap(symbolIcon(name), size, colorOf(label, tone), label->devicePixelRatioF()));
}

QLabel* textLabel(const QString& text, std::optional<Tone> tone, bool small) {
    auto* label = new QLabel(text);
    if (tone) setTone(label, tone);
    if (small) {
        auto font = label->font();
        font.setPointSizeF(font.pointSizeF() * 0.85);
        label->setFont(font);
    }
    return label;
}

void setTone(QLabel* label, std::optional<Tone> tone) {
    auto palette = label->palette();
    const QColor color = colorOf(label, tone);
    if (palette.color(QPalette::WindowText) == color) return;
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
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

KeptLine::KeptLine(int iconSize, int texts, bool smallFirst) : iconSize_(iconSize) {
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(6);
    if (iconSize > 0) {
        icon_ = new QLabel;
        icon_->setFixedSize(iconSize, iconSize);
        line->addWidget(icon_);
    }
    for (int i = 0; i < texts; ++i) {
        texts_.push_back(i == 0 ? textLabel({}, std::nullopt, smallFirst) : textLabel({}, Tone::secondary, true));
        line->addWidget(texts_.back(), i == 0 && texts > 1 ? 1 : 0);
    }
    if (texts == 1) line->addStretch();
}

void KeptLine::setIcon(const char* name, std::optional<Tone> tone) {
    tarnel::setIcon(icon_, name, iconSize_, tone);
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
