#include "tools/Capture.h"

#include <algorithm>
#include <utility>

#include "platform/gdi/Blit.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::tools {

namespace {

constexpr int kSide = gdi::kIconSize;
// White between black is seen on every ground.
constexpr gdi::COLORREF kEdge[] = {gdi::kBlack, gdi::kWhite, gdi::kBlack};
constexpr int kLinesOfEdge = 3;
// Lines of the loupe part blocks of so many pixels.
constexpr int kBlock = 8;
constexpr int kLinesOfLoupe = kSide / kBlock - 1;
constexpr gdi::COLORREF kLoupeLine = 0x808080;
constexpr int kEnlargement = 6;
// Between square and loupe.
constexpr int kDistance = 14;

gdi::Rect Grown(gdi::Rect area, int by) {
    return {area.left - by, area.top - by, area.width + 2 * by, area.height + 2 * by};
}

bool Contains(gdi::Rect area, gdi::Point at) {
    return at.x >= area.left && at.y >= area.top && at.x < area.left + area.width &&
           at.y < area.top + area.height;
}

// The square's nearest corner with all of it inside `area`.
gdi::Point Within(gdi::Rect area, gdi::Point corner) {
    return {std::max(area.left, std::min(corner.x, area.left + area.width - kSide)),
            std::max(area.top, std::min(corner.y, area.top + area.height - kSide))};
}

// Around `inside`, which it leaves alone.
void DrawRing(gdi::Surface& target, gdi::Rect inside, int line, gdi::COLORREF color) {
    const gdi::Rect outside = Grown(inside, line);
    const int right = inside.left + inside.width;
    const int bottom = inside.top + inside.height;
    PatBlt(target, {outside.left, outside.top, outside.width, line}, color);
    PatBlt(target, {outside.left, bottom, outside.width, line}, color);
    PatBlt(target, {outside.left, inside.top, line, inside.height}, color);
    PatBlt(target, {right, inside.top, line, inside.height}, color);
}

void DrawEdge(gdi::Surface& target, gdi::Rect inside, int line) {
    for (int i = 0; i < kLinesOfEdge; ++i)
        DrawRing(target, Grown(inside, i * line), line, kEdge[i]);
}

}  // namespace

Capture::Capture(gdi::Surface screen, std::vector<Monitor> monitors)
    : screen_(std::move(screen)), monitors_(std::move(monitors)) {
    if (monitors_.empty()) monitors_.push_back({screen_.Bounds()});
    PointAt({0, 0});
}

gdi::Rect Capture::Corners() const {
    return {0, 0, std::max(screen_.Width() - kSide, 0) + 1,
            std::max(screen_.Height() - kSide, 0) + 1};
}

// Between the monitors it stays the last one.
void Capture::FindMonitor(gdi::Point pixel) {
    const auto found = std::ranges::find_if(
        monitors_, [&](const Monitor& monitor) { return Contains(monitor.area, pixel); });
    if (found != monitors_.end()) monitor_ = static_cast<std::size_t>(found - monitors_.begin());
}

bool Capture::IsOnMonitors(gdi::Point corner) const {
    const gdi::Point ends[] = {corner,
                               {corner.x + kSide - 1, corner.y},
                               {corner.x, corner.y + kSide - 1},
                               {corner.x + kSide - 1, corner.y + kSide - 1}};
    return std::ranges::all_of(ends, [this](gdi::Point end) {
        return std::ranges::any_of(
            monitors_, [&](const Monitor& monitor) { return Contains(monitor.area, end); });
    });
}

void Capture::PointAt(gdi::Point pixel) {
    FindMonitor(pixel);
    corner_ = Within(screen_.Bounds(), pixel);
    if (!IsOnMonitors(corner_)) corner_ = Within(PointersMonitor().area, pixel);
}

gdi::Surface Capture::Square() const {
    gdi::Surface square(kSide, kSide, gdi::kBlack);
    BitBlt(square, 0, 0, kSide, kSide, screen_, corner_.x, corner_.y, gdi::RasterOp::Copy);
    return square;
}

gdi::Rect Capture::Frame() const {
    return Grown({corner_.x, corner_.y, kSide, kSide}, kLinesOfEdge * Line());
}

// So much that the loupe fits on one side of the square or on the other, wherever that is.
int Capture::Enlargement() const {
    const int shorter = std::min(PointersMonitor().area.width, PointersMonitor().area.height);
    const int edges = (2 * kLinesOfEdge + kLinesOfLoupe) * Line();
    const int free = (shorter - kSide) / 2 - kDistance * Line() - edges;
    return std::clamp(free / kSide, 1, kEnlargement * Line());
}

// To the right of the square and below it, else on the other side.
gdi::Rect Capture::Loupe() const {
    const int side = kSide * Enlargement() + (kLinesOfLoupe + 2 * kLinesOfEdge) * Line();
    const int distance = kDistance * Line();
    const gdi::Rect& on = PointersMonitor().area;
    gdi::Point at{corner_.x + kSide + distance, corner_.y + kSide + distance};
    if (at.x + side > on.left + on.width) at.x = corner_.x - distance - side;
    if (at.y + side > on.top + on.height) at.y = corner_.y - distance - side;
    return {at.x, at.y, side, side};
}

gdi::Surface Capture::Shown(gdi::Rect area) const {
    gdi::Surface shown(area.width, area.height, gdi::kBlack);
    BitBlt(shown, 0, 0, area.width, area.height, screen_, area.left, area.top, gdi::RasterOp::Copy);
    const gdi::Point leftTop{area.left, area.top};
    DrawEdge(shown, {corner_.x - leftTop.x, corner_.y - leftTop.y, kSide, kSide}, Line());
    DrawLoupe(shown, leftTop);
    return shown;
}

void Capture::DrawLoupe(gdi::Surface& target, gdi::Point leftTop) const {
    gdi::Rect inside = Grown(Loupe(), -kLinesOfEdge * Line());
    inside.left -= leftTop.x;
    inside.top -= leftTop.y;
    DrawEdge(target, inside, Line());
    PatBlt(target, inside, kLoupeLine);
    const int block = kBlock * Enlargement();
    for (int y = 0; y <= kLinesOfLoupe; ++y) {
        for (int x = 0; x <= kLinesOfLoupe; ++x) {
            StretchBlt(target,
                       {inside.left + x * (block + Line()), inside.top + y * (block + Line()),
                        block, block},
                       screen_, {corner_.x + x * kBlock, corner_.y + y * kBlock, kBlock, kBlock},
                       gdi::RasterOp::Copy);
        }
    }
}

}  // namespace kestrel::tools
