#pragma once

#include <QLabel>
#include <QStackedWidget>
#include <QTableWidget>
#include <QWidget>

#include "platform/clock.h"
#include "platform/observable.h"
#include "records/log_service.h"

namespace tarnel {

// "Tarnel Log": the entries of the log service in its order, the newest scrolled into view,
// with "Clear" and "Copy All".
class LogView final : public QWidget {
public:
    LogView(LogService& logService, const Clock& clock);

    // The rows now shown (for a look from outside, as a person would read them).
    QTableWidget& rows() const { return *rows_; }
    bool showsEmptyNote() const { return body_->currentWidget() == emptyNote_; }

    void clear();
    void copyAll();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void showEntries(const std::vector<LogEntry>& entries);

    LogService& logService_;
    const Clock& clock_;
    QStackedWidget* body_;
    QLabel* emptyNote_;
    QTableWidget* rows_;
    Subscription subscription_;
};

}  // namespace tarnel
