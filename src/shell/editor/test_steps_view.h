#pragma once

#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>
#include <optional>
#include <vector>

#include "transfer/ftp_service.h"

namespace tarnel {

// The rows of a connection test as they run: an icon for the state ("circle" pending, a
// spinner while running, a check or a cross), the step's name and its detail; then the result.
class TestStepsView final : public QWidget {
public:
    TestStepsView();

    void showSteps(const std::vector<FTPService::TestStep>& steps);
    // The summary under the rows; nothing hides it.
    void showResult(const std::optional<QString>& result, bool succeeded);

    const std::vector<FTPService::TestStep>& steps() const { return steps_; }
    QString resultText() const { return result_->text(); }

private:
    void paintSpinners();

    std::vector<FTPService::TestStep> steps_;
    QVBoxLayout* rows_;
    QLabel* result_;
    QTimer spin_;
    int spinPhase_ = 0;
    std::vector<QLabel*> running_;
};

}  // namespace tarnel
