#include "windows/FrmSnap.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/ScreenPixels.h"
#include "windows/widgets/ArrowStep.h"

namespace kestrel::windows {

namespace {

// Where the scale is no whole number, a monitor's own edge may be missed by so many pixels.
constexpr int kRounding = 2;

QRect LayoutOf(const QScreen& monitor) {
    const gdi::Rect area = desktop::PixelsOf(monitor);
    return {area.left, area.top, area.width, area.height};
}

// A side of the layout as one of the picture, whose end is the end of both.
int Scaled(int at, double scale, int end) {
    const int pixel = static_cast<int>(std::lround(at * scale));
    return std::abs(pixel - end) <= kRounding ? end : pixel;
}

// The parts of the picture that the monitors show, in the order of the desktop. A picture that the
// desktop gave shows the monitors alone, in a scale of its choice.
std::vector<tools::Monitor> MonitorsIn(gdi::Size picture, bool ofDesktop) {
    QRect all;
    for (const QScreen* monitor : QGuiApplication::screens())
        all |= LayoutOf(*monitor);
    const QPoint from = ofDesktop ? all.topLeft() : QPoint();
    const double scale = ofDesktop ? double{1} * picture.width / all.width() : 1;
    std::vector<tools::Monitor> monitors;
    for (const QScreen* monitor : QGuiApplication::screens()) {
        const QRect place = LayoutOf(*monitor).translated(-from);
        const int left = Scaled(place.left(), scale, picture.width);
        const int top = Scaled(place.top(), scale, picture.height);
        const int right = Scaled(place.left() + place.width(), scale, picture.width);
        const int bottom = Scaled(place.top() + place.height(), scale, picture.height);
        const double pixels = double{1} * (right - left) / monitor->geometry().width();
        monitors.push_back({{left, top, right - left, bottom - top},
                            std::max(1, static_cast<int>(std::lround(pixels)))});
    }
    return monitors;
}

tools::Capture NewCapture(gdi::Surface picture, bool ofDesktop) {
    auto monitors = MonitorsIn({picture.Width(), picture.Height()}, ofDesktop);
    return {std::move(picture), std::move(monitors)};
}

}  // namespace

FrmSnap::FrmSnap(services::Screen& screen, gdi::Surface picture)
    : screen_(screen), capture_(NewCapture(std::move(picture), !screen.IsSeen())) {}

std::optional<gdi::Surface> FrmSnap::Pick() {
    capture_.PointAt(screen_.Pointer());
    CoverMonitors();
    FollowMonitors();
    const auto hold = screen_.Hold(static_cast<services::WindowHandle>(monitors_.front()->winId()),
                                   capture_.Corners());
    loop_.exec();
    return std::move(taken_);
}

void FrmSnap::CoverMonitors() {
    auto part = capture_.Monitors().begin();
    for (QScreen* monitor : QGuiApplication::screens()) {
        auto& window = *monitors_.emplace_back(
            std::make_unique<widgets::FrozenMonitor>(capture_, (part++)->area, monitor));
        window.onPointer = [this](gdi::Point pixel) { PointAt(pixel); };
        window.onClick = [this] { Take(); };
        window.onKey = [this](int key) { PressKey(key); };
        window.onGone = [this] { loop_.quit(); };
        // Where programs do not see the screen, the desktop shows no windows that it does not know.
        screen_.IsSeen() ? window.CoverUnmanaged() : window.CoverManaged();
    }
}

// Another layout of monitors is another screen.
void FrmSnap::FollowMonitors() {
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &loop_, &QEventLoop::quit);
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &loop_, &QEventLoop::quit);
    for (const QScreen* monitor : QGuiApplication::screens())
        QObject::connect(monitor, &QScreen::geometryChanged, &loop_, &QEventLoop::quit);
}

void FrmSnap::PointAt(gdi::Point pixel) {
    const gdi::Point before = capture_.Corner();
    const auto marks = capture_.Marks();
    capture_.PointAt(pixel);
    if (capture_.Corner() == before) return;
    for (const auto& window : monitors_) {
        for (const gdi::Rect& mark : marks)
            window->Repaint(mark);
        for (const gdi::Rect& mark : capture_.Marks())
            window->Repaint(mark);
    }
}

void FrmSnap::PressKey(int key) {
    if (const auto step = widgets::ArrowStep(key)) {
        const gdi::Point at = capture_.Corner();
        PointAt({at.x + step->x(), at.y + step->y()});
        screen_.MovePointer(capture_.Corner());
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        Take();
    } else if (key == Qt::Key_Escape) {
        loop_.quit();
    }
}

void FrmSnap::Take() {
    // What comes after it in the same breath counts no more.
    if (!taken_) taken_ = capture_.Square();
    loop_.quit();
}

}  // namespace kestrel::windows
