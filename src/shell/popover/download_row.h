#pragma once

#include <QLabel>
#include <QProgressBar>

#include "shell/popover/popover_widgets.h"
#include "transfer/download_progress.h"

namespace tarnel {

// One download's row in the popover's activity, made once and updated in place as its
// progress comes in.
class DownloadRow : public KeptRow {
public:
    DownloadRow();

    void update(const DownloadProgress& download);

private:
    QLabel* name_;
    QProgressBar* bar_;
    QLabel* details_;
};

}  // namespace tarnel
