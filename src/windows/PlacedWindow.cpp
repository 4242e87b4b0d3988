#include "windows/PlacedWindow.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace kestrel::windows {

namespace {

constexpr int kTwipsOfPixel = 15;
// Of the free room on the screen, how much lies to the left and above at first.
constexpr qreal kPlace = 0.9;
// Of a title that can still be grasped with the mouse.
constexpr QSize kGrasp(80, 20);

settings::WindowBounds InTwips(QPoint leftTop, QSize size) {
    return {leftTop.x() * kTwipsOfPixel, leftTop.y() * kTwipsOfPixel, size.width() * kTwipsOfPixel,
            size.height() * kTwipsOfPixel};
}

bool IsGraspable(QRect title) {
    return std::ranges::any_of(QGuiApplication::screens(), [&](const QScreen* screen) {
        const QSize seen = (screen->availableGeometry() & title).size();
        return seen.width() >= kGrasp.width() && seen.height() >= kGrasp.height();
    });
}

}  // namespace

settings::WindowState PlacedWindow::State() const {
    using enum settings::WindowState;
    if (window_.isMinimized()) return Minimised;
    return window_.isMaximized() ? Maximised : Normal;
}

settings::WindowBounds PlacedWindow::Bounds() const {
    return InTwips(window_.pos(), window_.size() + FrameSize());
}

settings::WindowBounds PlacedWindow::Screen() const {
    return InTwips({}, window_.screen()->virtualSize());
}

void PlacedWindow::Move(const settings::WindowBounds& bounds) {
    window_.resize(QSize(bounds.width, bounds.height) / kTwipsOfPixel - FrameSize());
    window_.move(bounds.left / kTwipsOfPixel, bounds.top / kTwipsOfPixel);
}

void PlacedWindow::Maximise() {
    window_.setWindowState(window_.windowState() | Qt::WindowMaximized);
}

void PlacedWindow::PlaceAtFirst() {
    const QRect free = window_.screen()->availableGeometry();
    const QSize room = RoomIn(free) * kPlace;
    window_.move(free.topLeft() + QPoint(room.width(), room.height()));
}

void PlacedWindow::BringOntoMonitor() {
    if (IsGraspable({window_.pos(), QSize(window_.width(), kGrasp.height())})) return;
    const QRect free = window_.screen()->availableGeometry();
    window_.resize(window_.size().boundedTo(free.size() - FrameSize()));
    const QSize room = RoomIn(free);
    const QPoint farthest = free.topLeft() + QPoint(room.width(), room.height());
    window_.move(std::clamp(window_.x(), free.left(), std::max(free.left(), farthest.x())),
                 std::clamp(window_.y(), free.top(), std::max(free.top(), farthest.y())));
}

}  // namespace kestrel::windows
