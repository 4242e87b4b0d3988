#include "windows/widgets/PictureBox.h"

#include <qdrawutil.h>

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>

#include "windows/widgets/ArrowStep.h"
#include "windows/widgets/KeyChoice.h"
#include "windows/widgets/MousePoint.h"

namespace kestrel::widgets {

namespace {

class AccessibleBox : public QAccessibleWidget {
  public:
    explicit AccessibleBox(PictureBox& box) : QAccessibleWidget(&box), box_(box) {}

    QAccessible::Role role() const override {
        return box_.onMouseUp ? QAccessible::Button : QAccessible::Graphic;
    }
    QStringList actionNames() const override {
        return box_.onMouseUp ? QStringList{pressAction()} : QStringList();
    }
    void doAction(const QString& name) override {
        if (name == pressAction() && box_.onMouseUp) box_.onMouseUp(Qt::LeftButton);
    }

  private:
    PictureBox& box_;
};

QAccessibleInterface* NewAccessibleBox(const QString& /*className*/, QObject* object) {
    auto* box = dynamic_cast<PictureBox*>(object);
    return box == nullptr ? nullptr : new AccessibleBox(*box);
}

}  // namespace

PictureBox::PictureBox(Edge edge, QWidget* parent) : QWidget(parent), edge_(edge) {
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
    QAccessible::installFactory(NewAccessibleBox);
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
    if (!hasFocus()) return;
    const bool isFilled = edge_ == Edge::Sunken;
    DrawFocusMark(painter, rect(), isFilled ? MarkGround::AnyColor : MarkGround::Window, palette());
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

void PictureBox::keyPressEvent(QKeyEvent* event) {
    const Qt::MouseButton button = ButtonOfKey(*event);
    const auto step = ArrowStep(event->key());
    if (button != Qt::NoButton) {
        if (!event->isAutoRepeat() && onMouseUp) onMouseUp(button);
    } else if (step && onArrow && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        onArrow(*step);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void PictureBox::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (IsByKey(event->reason()) && onMouseMove) onMouseMove();
}

void PictureBox::SetPressed(bool pressed) {
    if (pressed_ == pressed) return;
    pressed_ = pressed;
    update();
}

}  // namespace kestrel::widgets
