#include "shell/windows/window_parts.h"

#include <QHeaderView>

#include "shell/popover/popover_widgets.h"

// Q_INIT_RESOURCE declares a function of the global namespace.
static void initWindowIcons() {
    Q_INIT_RESOURCE(window_icons);
}

namespace tarnel {

void makeToolWindow(QWidget& window, const QString& title) {
    initWindowIcons();
    window.setWindowTitle(title);
    window.setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
}

QHBoxLayout* headRow(QBoxLayout* into, const QString& title) {
    auto* row = new QHBoxLayout;
    auto* label = new QLabel(title);
    auto font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.15);
    label->setFont(font);
    row->addWidget(label);
    row->addStretch();
    into->addLayout(row);
    return row;
}

QPushButton* commandButton(const QString& text, QObject* context, std::function<void()> action) {
    auto* button = new QPushButton(text);
    QObject::connect(button, &QPushButton::clicked, context, [action = std::move(action)] { action(); });
    return button;
}

QLabel* emptyNote(const QString& text) {
    auto* label = textLabel(text, Tone::secondary);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QTableWidget* plainTable(int columns) {
    auto* table = new QTableWidget(0, columns);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(22);
    table->setAlternatingRowColors(true);
    return table;
}

}  // namespace tarnel
