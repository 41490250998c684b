#include "shell/windows/log_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "shell/bridge/qt_text.h"
#include "shell/icons/symbol_icon.h"
#include "shell/popover/popover_widgets.h"
#include "shell/windows/window_parts.h"
#include "shell/windows/window_texts.h"

namespace tarnel {

namespace {

struct LevelLook {
    const char* icon;
    Tone tone;
};

LevelLook lookOf(LogLevel level) {
    switch (level) {
        case LogLevel::info:
            return {"info.circle", Tone::blue};
        case LogLevel::success:
            return {"checkmark.circle.fill", Tone::green};
        case LogLevel::warning:
            return {"exclamationmark.triangle", Tone::orange};
        case LogLevel::error:
            return {"xmark.circle.fill", Tone::red};
    }
    return {"info.circle", Tone::blue};
}

}  // namespace

LogView::LogView(LogService& logService, const Clock& clock)
    : logService_(logService),
      clock_(clock),
      body_(new QStackedWidget),
      emptyNote_(emptyNote(ui("No log entries yet."))),
      rows_(plainTable(3)) {
    makeToolWindow(*this, ui("Tarnel Log"));
    setMinimumSize(500, 300);
    resize(600, 400);

    auto* layout = new QVBoxLayout(this);
    auto* head = headRow(layout, ui("Sync Log"));
    head->addWidget(commandButton(ui("Clear"), this, [this] { clear(); }));
    head->addWidget(commandButton(ui("Copy All"), this, [this] { copyAll(); }));

    rows_->horizontalHeader()->hide();
    rows_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    rows_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    rows_->horizontalHeader()->setStretchLastSection(true);
    rows_->setWordWrap(false);
    body_->addWidget(emptyNote_);
    body_->addWidget(rows_);
    layout->addWidget(body_, 1);

    // Every transfer writes several lines: a hidden window catches up when it is shown.
    subscription_ = logService_.entries().subscribe([this](const auto& entries) {
        if (isVisible()) showEntries(entries);
    });
}

void LogView::showEvent(QShowEvent* event) {
    showEntries(logService_.entries()());
    QWidget::showEvent(event);
    // Entries that came while the window was closed were scrolled before it had a size.
    QTimer::singleShot(0, rows_, [rows = rows_] { rows->scrollToBottom(); });
}

void LogView::clear() {
    logService_.clear();
}

void LogView::copyAll() {
    QGuiApplication::clipboard()->setText(qs(copyAllText(clock_, logService_.entries()())));
}

void LogView::showEntries(const std::vector<LogEntry>& entries) {
    body_->setCurrentWidget(entries.empty() ? static_cast<QWidget*>(emptyNote_) : rows_);
    rows_->setRowCount(static_cast<int>(entries.size()));
    const QColor secondary = toneColor(Tone::secondary);
    for (int row = 0; row < rows_->rowCount(); ++row) {
        const auto& entry = entries[static_cast<std::size_t>(row)];
        const auto look = lookOf(entry.level);
        auto* time = new QTableWidgetItem(qs(timeOfDayText(clock_, entry.timestamp)));
        time->setForeground(secondary);
        time->setFont(QFont(QStringLiteral("monospace")));
        rows_->setItem(row, 0, time);
        auto* icon = new QTableWidgetItem;
        icon->setIcon(QIcon(tintedPixmap(symbolIcon(look.icon), 14, toneColor(look.tone),
                                         devicePixelRatioF())));
        rows_->setItem(row, 1, icon);
        auto* message = new QTableWidgetItem(qs(entry.message));
        message->setToolTip(message->text());
        rows_->setItem(row, 2, message);
    }
    rows_->scrollToBottom();
}

}  // namespace tarnel
