#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>

namespace tarnel {

// The small mark beside a connection: a download arrow while it downloads, arrows that turn
// once a second while it syncs, nothing otherwise. Turns only while it is on screen.
class SyncIndicator final : public QWidget {
public:
    enum class Mode { none, downloading, syncing };
    explicit SyncIndicator(Mode mode);

    Mode mode() const { return mode_; }
    // Keeps the turn it has reached, so that an update in the middle of a sync does not jump.
    void setMode(Mode mode);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    Mode mode_ = Mode::none;
    QPixmap pixmap_;  // drawn once, turned at each frame
    double rotation_ = 0;
    QTimer frameClock_;
};

}  // namespace tarnel
