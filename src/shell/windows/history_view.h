#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTableWidget>
#include <QWidget>
#include <optional>
#include <string>

#include "platform/clock.h"
#include "platform/observable.h"
#include "records/history_service.h"

namespace tarnel {

// "Tarnel History": the transfers of the history service, newest first, narrowed by a status
// picker and a search over file, connection and host, with "Clear All".
class HistoryView final : public QWidget {
public:
    HistoryView(HistoryService& historyService, const Clock& clock);

    const std::string& searchText() const { return searchText_; }
    std::optional<TransferStatus> statusFilter() const { return statusFilter_; }

    // The controls and the rows now shown, as a person would use and read them.
    QComboBox& statusPicker() const { return *statusPicker_; }
    QLineEdit& searchField() const { return *searchField_; }
    const QTableWidget& rows() const { return *rows_; }
    bool showsEmptyNote() const { return body_->currentWidget() == emptyNote_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void refresh();

    HistoryService& historyService_;
    const Clock& clock_;
    std::string searchText_;
    std::optional<TransferStatus> statusFilter_;
    QComboBox* statusPicker_;
    QLineEdit* searchField_;
    QStackedWidget* body_;
    QLabel* emptyNote_;
    QTableWidget* rows_;
    Subscription subscription_;
};

}  // namespace tarnel
