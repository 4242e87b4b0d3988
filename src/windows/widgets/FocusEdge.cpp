#include "windows/widgets/FocusEdge.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace kestrel::widgets {

FocusEdge::FocusEdge(QWidget* control, QWidget* parent) : QFrame(parent), control_(control) {
    setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    auto* inside = new QVBoxLayout(this);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(control);
    control->installEventFilter(this);
}

void FocusEdge::paintEvent(QPaintEvent* event) {
    if (!control_->hasFocus()) return QFrame::paintEvent(event);
    QPainter painter(this);
    // Filled: a line may leave out a side where a unit is no whole number of pixels.
    for (const QRect& side : QRegion(rect()) - contentsRect())
        painter.fillRect(side, palette().color(QPalette::Highlight));
}

bool FocusEdge::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
    return QFrame::eventFilter(object, event);
}

}  // namespace kestrel::widgets
