#include "shell/editor/test_steps_view.h"

#include <QHBoxLayout>
#include <QPainter>

#include "shell/bridge/qt_text.h"
#include "shell/icons/symbol_icon.h"
#include "shell/popover/popover_widgets.h"

namespace tarnel {

namespace {

constexpr int iconSize = 16;

QPixmap stateIcon(TestStepStatus status, qreal ratio) {
    switch (status) {
        case TestStepStatus::pending:
            return tintedPixmap(symbolIcon("circle"), iconSize, QColor(0x9a, 0x9a, 0x9e), ratio);
        case TestStepStatus::success:
            return tintedPixmap(symbolIcon("checkmark.circle.fill"), iconSize,
                                QColor(0x28, 0xa7, 0x45), ratio);
        case TestStepStatus::failure:
            return tintedPixmap(symbolIcon("xmark.circle.fill"), iconSize,
                                QColor(0xd7, 0x3a, 0x31), ratio);
        case TestStepStatus::running:
            break;
    }
    return {};
}

// A quarter-turning arc: the running row's spinner.
QPixmap spinnerFrame(int phase, qreal ratio) {
    QPixmap pixmap(qRound(iconSize * ratio), qRound(iconSize * ratio));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x0a, 0x84, 0xff), 2.0, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(2, 2, iconSize - 4, iconSize - 4), -phase * 30 * 16, 270 * 16);
    return pixmap;
}

}  // namespace

TestStepsView::TestStepsView() : rows_(new QVBoxLayout), result_(new QLabel) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    rows_->setSpacing(4);
    layout->addLayout(rows_);
    result_->setWordWrap(true);
    result_->setTextFormat(Qt::PlainText);
    result_->hide();
    layout->addWidget(result_);
    spin_.setInterval(100);
    connect(&spin_, &QTimer::timeout, this, &TestStepsView::paintSpinners);
}

void TestStepsView::showSteps(const std::vector<FTPService::TestStep>& steps) {
    steps_ = steps;
    running_.clear();
    clearLayout(rows_);
    for (const auto& step : steps) {
        auto* row = new QWidget;
        auto* line = new QHBoxLayout(row);
        line->setContentsMargins(0, 0, 0, 0);
        auto* icon = new QLabel;
        icon->setFixedSize(iconSize, iconSize);
        if (step.status == TestStepStatus::running)
            running_.push_back(icon);
        else
            icon->setPixmap(stateIcon(step.status, devicePixelRatioF()));
        line->addWidget(icon, 0, Qt::AlignTop);
        auto* words = new QLabel(qs(step.name));
        words->setTextFormat(Qt::PlainText);
        if (step.status == TestStepStatus::pending) words->setEnabled(false);
        line->addWidget(words);
        if (step.detail) {
            auto* detail = new QLabel(qs(*step.detail));
            detail->setTextFormat(Qt::PlainText);
            detail->setWordWrap(true);
            // A failure's reason is the line to read; other details are asides.
            detail->setEnabled(step.status == TestStepStatus::failure);
            line->addWidget(detail, 1);
        } else {
            line->addStretch(1);
        }
        rows_->addWidget(row);
    }
    paintSpinners();
    if (running_.empty())
        spin_.stop();
    else if (!spin_.isActive())
        spin_.start();
}

void TestStepsView::showResult(const std::optional<QString>& result, bool succeeded) {
    result_->setVisible(result.has_value());
    result_->setText(result.value_or(QString()));
    auto palette = result_->palette();
    palette.setColor(QPalette::WindowText,
                     succeeded ? QColor(0x1e, 0x7e, 0x34) : QColor(0xc0, 0x30, 0x28));
    result_->setPalette(palette);
}

void TestStepsView::paintSpinners() {
    ++spinPhase_;
    for (auto* icon : running_) icon->setPixmap(spinnerFrame(spinPhase_, devicePixelRatioF()));
}

}  // namespace tarnel
