#include "windows/widgets/PictureBox.h"

#include <qdrawutil.h>

#include <QMouseEvent>
#include <QPainter>

#include "windows/widgets/MousePoint.h"

namespace kestrel::widgets {

PictureBox::PictureBox(Edge edge, QWidget* parent) : QWidget(parent), edge_(edge) {
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
}

void PictureBox::Show(const QColor& color, const QIcon& picture) {
    color_ = color;
    picture_ = picture;
    update();
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (color_.isValid()) {
        painter.fillRect(rect(), color_);
    } else if (edge_ == Edge::Sunken) {
        painter.fillRect(rect(), palette().color(QPalette::Button));
    }
    picture_.paint(&painter, rect());
    if (edge_ == Edge::Sunken || pressed_ || underMouse()) {
        qDrawShadePanel(&painter, rect(), palette(), edge_ == Edge::Sunken || pressed_, 1);
    }
}

void PictureBox::mousePressEvent(QMouseEvent* /*event*/) {
    SetPressed(true);
}

// The second press of a quick pair is a press like any other.
void PictureBox::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
    const bool inside = rect().contains(UnitOf(*event));
    // A button may come up where nobody sees it.
    SetPressed(inside && event->buttons() != Qt::NoButton);
    if (inside && onMouseMove) onMouseMove();
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    SetPressed(false);
    if (rect().contains(UnitOf(*event)) && onMouseUp) onMouseUp(event->button());
}

void PictureBox::SetPressed(bool pressed) {
    if (pressed_ == pressed) return;
    pressed_ = pressed;
    update();
}

}  // namespace kestrel::widgets
