#include "shell/popover/download_row.h"

#include <QBoxLayout>

#include "shell/bridge/qt_text.h"
#include "shell/popover/popover_texts.h"

namespace tarnel {

namespace {
constexpr int nameWidth = 290;
constexpr int barSteps = 1000;
}  // namespace

DownloadRow::DownloadRow()
    : KeptRow(new QWidget),
      name_(elidedLabel({}, nameWidth, true)),
      bar_(new QProgressBar),
      details_(textLabel({}, Tone::secondary, true)) {
    auto* row = new QHBoxLayout(widget());
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(iconLabel("arrow.down.circle", 16, Tone::blue), 0, Qt::AlignTop);
    auto* text = new QVBoxLayout;
    text->setSpacing(1);
    text->addWidget(name_);
    bar_->setRange(0, barSteps);
    bar_->setTextVisible(false);
    bar_->setFixedHeight(5);
    text->addWidget(bar_);
    text->addWidget(details_);
    row->addLayout(text, 1);
}

void DownloadRow::update(const DownloadProgress& download) {
    setElidedText(name_, qs(download.fileName), nameWidth);
    bar_->setValue(download.totalBytes > 0
                       ? static_cast<int>(double(barSteps) * download.downloadedBytes / download.totalBytes)
                       : 0);
    details_->setText(qs(download.connectionName) + QStringLiteral("  ·  ") +
                      qs(progressPercentText(download)) + QStringLiteral("  ·  ") +
                      qs(download.speedText()));
}

}  // namespace tarnel
