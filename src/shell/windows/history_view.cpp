#include "shell/windows/history_view.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>
#include <array>

#include "records/stats_service.h"
#include "shell/bridge/qt_text.h"
#include "shell/popover/popover_widgets.h"
#include "shell/windows/window_parts.h"
#include "shell/windows/window_texts.h"

namespace tarnel {

namespace {

struct Column {
    const char* title;
    int minimumWidth;
    int width;
};
// "Error" takes what is left.
constexpr std::array<Column, 7> columns{{{UI_TEXT("Time"), 60, 66},
                                         {UI_TEXT("Status"), 60, 84},
                                         {UI_TEXT("Connection"), 60, 110},
                                         {UI_TEXT("File"), 120, 170},
                                         {UI_TEXT("Size"), 50, 70},
                                         {UI_TEXT("Destination"), 80, 150},
                                         {UI_TEXT("Error"), 60, 120}}};

constexpr std::array<std::optional<TransferStatus>, 4> pickerStatuses{
    std::nullopt, TransferStatus::success, TransferStatus::error, TransferStatus::retryExhausted};

Tone toneOf(TransferStatus status) {
    return status == TransferStatus::success ? Tone::green
           : status == TransferStatus::error ? Tone::red
                                             : Tone::orange;
}

QTableWidgetItem* cell(const std::string& text) {
    auto* item = new QTableWidgetItem(qs(text));
    item->setToolTip(item->text());
    return item;
}

}  // namespace

HistoryView::HistoryView(HistoryService& historyService, const Clock& clock)
    : historyService_(historyService),
      clock_(clock),
      statusPicker_(new QComboBox),
      searchField_(new QLineEdit),
      body_(new QStackedWidget),
      emptyNote_(emptyNote(ui("No transfer history."))),
      rows_(plainTable(static_cast<int>(columns.size()))) {
    makeToolWindow(*this, ui("Tarnel History"));
    setMinimumSize(700, 400);
    resize(800, 500);

    auto* layout = new QVBoxLayout(this);
    auto* head = headRow(layout, ui("Transfer History"));
    head->addWidget(new QLabel(ui("Status")));
    for (const auto& status : pickerStatuses)
        statusPicker_->addItem(status ? qs(displayText(*status)) : ui("All"));
    statusPicker_->setFixedWidth(130);
    head->addWidget(statusPicker_);
    searchField_->setPlaceholderText(ui("Search..."));
    searchField_->setClearButtonEnabled(true);
    searchField_->setFixedWidth(150);
    head->addWidget(searchField_);
    head->addWidget(commandButton(ui("Clear All"), this, [this] { historyService_.clear(); }));

    QStringList titles;
    for (const auto& column : columns) titles << ui(column.title);
    rows_->setHorizontalHeaderLabels(titles);
    auto* header = rows_->horizontalHeader();
    header->setStretchLastSection(true);
    header->setMinimumSectionSize(0);
    for (int i = 0; i < rows_->columnCount(); ++i) rows_->setColumnWidth(i, columns[i].width);
    // Each column keeps its own minimum when the user drags its edge.
    connect(header, &QHeaderView::sectionResized, this, [this](int index, int, int size) {
        const int minimum = columns[static_cast<std::size_t>(index)].minimumWidth;
        if (size < minimum) rows_->setColumnWidth(index, minimum);
    });
    rows_->setWordWrap(false);
    rows_->setTextElideMode(Qt::ElideMiddle);
    body_->addWidget(emptyNote_);
    body_->addWidget(rows_);
    layout->addWidget(body_, 1);

    connect(statusPicker_, &QComboBox::currentIndexChanged, this, [this](int index) {
        statusFilter_ = index >= 0 ? pickerStatuses[static_cast<std::size_t>(index)] : std::nullopt;
        refresh();
    });
    connect(searchField_, &QLineEdit::textChanged, this, [this](const QString& text) {
        searchText_ = text.toStdString();
        refresh();
    });
    // Every placed file changes the history: a hidden window catches up when it is shown.
    subscription_ = historyService_.entries().subscribe([this](const auto&) {
        if (isVisible()) refresh();
    });
}

void HistoryView::showEvent(QShowEvent* event) {
    refresh();
    QWidget::showEvent(event);
}

void HistoryView::refresh() {
    const auto shown = historyService_.filtered(searchText_, statusFilter_);
    body_->setCurrentWidget(shown.empty() ? static_cast<QWidget*>(emptyNote_) : rows_);
    rows_->setRowCount(static_cast<int>(shown.size()));
    for (int row = 0; row < rows_->rowCount(); ++row) {
        const auto& entry = shown[static_cast<std::size_t>(row)];
        auto* status = cell(displayText(entry.status));
        status->setForeground(toneColor(toneOf(entry.status)));
        auto* size = cell(StatsService::formatBytes(entry.sizeBytes));
        size->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        const std::array items{cell(timeOfDayText(clock_, entry.timestamp)),
                               status,
                               cell(entry.connectionName),
                               cell(entry.finalFilename),
                               size,
                               cell(entry.destinationPath),
                               cell(entry.errorMessage.value_or(std::string()))};
        for (int column = 0; column < static_cast<int>(items.size()); ++column)
            rows_->setItem(row, column, items[static_cast<std::size_t>(column)]);
    }
}

}  // namespace tarnel
