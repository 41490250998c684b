#include "shell/popover/popover.h"

#include <QVBoxLayout>

namespace tarnel {

Popover::Popover(Kind kind, MenuBarView* view) : kind_(kind), view_(view) {
    setWindowFlags(kind == Kind::popup ? Qt::Popup | Qt::FramelessWindowHint : Qt::Window);
    setWindowTitle(QStringLiteral("Tarnel"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);
    setFixedSize(MenuBarView::width, MenuBarView::height);
    if (kind == Kind::popup) {
        setObjectName(QStringLiteral("popover"));
        setAttribute(Qt::WA_StyledBackground);
        setStyleSheet(QStringLiteral("QWidget#popover { border: 1px solid rgba(0,0,0,0.3); }"));
    }
}

void Popover::showAt(const QPoint& position) {
    if (kind_ == Kind::popup) move(position);
    show();
    raise();
    activateWindow();
}

void Popover::showEvent(QShowEvent* event) {
    view_->appeared();
    QWidget::showEvent(event);
}

}  // namespace tarnel
