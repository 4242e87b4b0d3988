#include "windows/widgets/CellSurface.h"

#include <QGuiApplication>
#include <QPaintEvent>
#include <algorithm>
#include <utility>

#include "windows/widgets/AccessibleCells.h"
#include "windows/widgets/ArrowStep.h"
#include "windows/widgets/KeyChoice.h"

namespace kestrel::widgets {

namespace {

// Where a key leads among so many cells; nothing for other keys.
std::optional<QPoint> Goal(int key, QPoint from, const CellLayout& layout) {
    switch (key) {
        case Qt::Key_Home:
            return QPoint(0, from.y());
        case Qt::Key_End:
            return QPoint(layout.columns - 1, from.y());
        case Qt::Key_PageUp:
            return QPoint(from.x(), 0);
        case Qt::Key_PageDown:
            return QPoint(from.x(), layout.rows - 1);
        default:
            break;
    }
    const auto step = ArrowStep(key);
    if (!step) return std::nullopt;
    return QPoint(std::clamp(from.x() + step->x(), 0, layout.columns - 1),
                  std::clamp(from.y() + step->y(), 0, layout.rows - 1));
}

bool IsMouseHeld() {
    return QGuiApplication::mouseButtons() != Qt::NoButton;
}

}  // namespace

CellSurface::CellSurface(const CellLayout& layout, QWidget* parent)
    : SurfaceWidget(parent), layout_(layout) {
    // A click leaves the keyboard where it is.
    setFocusPolicy(Qt::TabFocus);
    InstallAccessibleCells();
}

QRect CellSurface::PlaceOf(QPoint cell) const {
    const QSize size = layout_.cell + QSize(layout_.lastLine, layout_.lastLine);
    return {QPoint(cell.x() * layout_.cell.width(), cell.y() * layout_.cell.height()), size};
}

QRectF CellSurface::MarkPlace() const {
    const QRect cell = PlaceOf(cell_);
    const int outside = layout_.lastLine;
    return UnitsOf({cell.x(), cell.y(), cell.width(), cell.height()})
        .adjusted(-outside, -outside, outside, outside);
}

// The desktop library rounds once more before it hands on what was painted.
QRect CellSurface::MarkArea() const {
    return MarkPlace().toAlignedRect().adjusted(-1, -1, 1, 1);
}

void CellSurface::PutCell(QPoint cell) {
    UpdateMark();
    cell_ = cell;
    UpdateMark();
}

void CellSurface::UpdateMark() {
    if (ShowsMark()) update(MarkArea());
}

void CellSurface::Click(QPoint cell, Qt::MouseButton button) {
    MarkCell(cell);
    const QPoint at = PlaceOf(cell).center();
    if (onMouseDown) onMouseDown(button, at);
    if (onMouseUp) onMouseUp(button, at);
    TellAccessibleCells(*this);
}

void CellSurface::MarkCell(QPoint cell) {
    PutCell(cell);
    PointAtCell();
    TellAccessibleFocus(*this);
}

void CellSurface::PointAtCell() {
    if (onCell) {
        onCell(cell_);
    } else if (onMouseMove) {
        onMouseMove(Qt::NoButton, PlaceOf(cell_).center());
    }
}

void CellSurface::UseByKeyboard(bool used) {
    UpdateMark();
    byKeyboard_ = used;
    UpdateMark();
}

bool CellSurface::MoveByKey(const QKeyEvent& event) {
    const auto goal = Goal(event.key(), cell_, layout_);
    // Shift holds the right button down.
    const auto meaningless = held_ == Qt::RightButton ? Qt::KeypadModifier | Qt::ShiftModifier
                                                      : Qt::KeyboardModifiers(Qt::KeypadModifier);
    if (!goal || (event.modifiers() & ~meaningless) != Qt::NoModifier) return false;
    if (held_ == Qt::NoButton && mayMove && !mayMove()) return false;
    if (IsMouseHeld()) return true;
    UseByKeyboard(true);
    MarkCell(*goal);
    return true;
}

bool CellSurface::PressByKey(const QKeyEvent& event) {
    const Qt::MouseButton button = ButtonOfKey(event);
    if (button == Qt::NoButton || (onKeyDown && event.key() != Qt::Key_Space)) return false;
    if (event.isAutoRepeat() || held_ != Qt::NoButton || IsMouseHeld()) return true;
    const bool isSeen = ShowsMark();
    UseByKeyboard(true);
    // What draws does so where one sees it.
    if (onKeyDown && !isSeen) return true;
    if (!onKeyDown) {
        Click(cell_, button);
    } else {
        held_ = button;
        onKeyDown(button);
        TellAccessibleCells(*this);
    }
    return true;
}

void CellSurface::LetGo() {
    const Qt::MouseButton held = std::exchange(held_, Qt::NoButton);
    if (held == Qt::NoButton || !onKeyUp) return;
    onKeyUp(held);
    TellAccessibleCells(*this);
}

void CellSurface::paintEvent(QPaintEvent* event) {
    SurfaceWidget::paintEvent(event);
    if (!ShowsMark() || !event->region().intersects(MarkArea())) return;
    QPainter painter(this);
    DrawFocusMark(painter, MarkPlace(), layout_.ground, palette());
}

void CellSurface::mousePressEvent(QMouseEvent* event) {
    LetGo();
    UseByKeyboard(false);
    SurfaceWidget::mousePressEvent(event);
}

void CellSurface::keyPressEvent(QKeyEvent* event) {
    if (!MoveByKey(*event) && !PressByKey(*event)) SurfaceWidget::keyPressEvent(event);
}

void CellSurface::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) return SurfaceWidget::keyReleaseEvent(event);
    if (!event->isAutoRepeat()) LetGo();
}

void CellSurface::focusInEvent(QFocusEvent* event) {
    if (IsByKey(event->reason())) UseByKeyboard(true);
    update(MarkArea());
    if (!ShowsMark()) return;
    PointAtCell();
    // The library has yet to tell that the list as such has the keyboard.
    const auto tell = [this] { TellAccessibleFocus(*this); };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void CellSurface::focusOutEvent(QFocusEvent* /*event*/) {
    LetGo();
    update(MarkArea());
}

}  // namespace kestrel::widgets
