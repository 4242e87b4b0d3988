#include "tools/ScreenSettling.h"

#include <algorithm>
#include <utility>

namespace kestrel::tools {

namespace {

using std::chrono::milliseconds;

// Nothing has changed for so long.
constexpr milliseconds kQuiet{30};
constexpr milliseconds kNearlyQuiet{10};

// The side of a part by which the window is known.
constexpr int kPart = 16;

bool IsOneColor(const gdi::Surface& picture, gdi::Point at) {
    const gdi::COLORREF color = picture.GetPixel(at.x, at.y);
    for (int y = at.y; y < at.y + kPart; ++y) {
        const auto row = picture.Row(y).subspan(static_cast<std::size_t>(at.x), kPart);
        if (!std::ranges::all_of(row, [color](gdi::COLORREF pixel) { return pixel == color; }))
            return false;
    }
    return true;
}

bool IsSamePart(const gdi::Surface& one, const gdi::Surface& other, gdi::Point at) {
    for (int y = at.y; y < at.y + kPart; ++y) {
        const auto left = static_cast<std::size_t>(at.x);
        if (!std::ranges::equal(one.Row(y).subspan(left, kPart), other.Row(y).subspan(left, kPart)))
            return false;
    }
    return true;
}

}  // namespace

ScreenSettling::ScreenSettling(gdi::Surface before, gdi::Rect window, milliseconds patience)
    : before_(std::move(before)), patience_(patience), last_(before_) {
    const int right = std::min(window.left + window.width, before_.Width());
    const int bottom = std::min(window.top + window.height, before_.Height());
    for (int y = std::max(window.top, 0); y + kPart <= bottom; y += kPart) {
        for (int x = std::max(window.left, 0); x + kPart <= right; x += kPart) {
            if (!IsOneColor(before_, {x, y})) details_.push_back({x, y});
        }
    }
}

bool ScreenSettling::ShowsWindow(const gdi::Surface& now) const {
    return std::ranges::any_of(details_,
                               [&](gdi::Point at) { return IsSamePart(before_, now, at); });
}

Gone ScreenSettling::Look(milliseconds elapsed, const gdi::Surface& now) {
    if (!now.SamePixels(last_)) {
        last_ = now;
        lastChange_ = elapsed;
    }
    const milliseconds quiet = elapsed - lastChange_;
    if (elapsed >= patience_) return Gone::Yes;
    if (quiet < kNearlyQuiet || ShowsWindow(now)) return Gone::No;
    return quiet < kQuiet ? Gone::Nearly : Gone::Yes;
}

}  // namespace kestrel::tools
