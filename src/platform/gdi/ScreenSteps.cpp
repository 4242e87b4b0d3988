#include "platform/gdi/ScreenSteps.h"

#include <algorithm>
#include <cmath>

namespace kestrel::gdi {

namespace {

constexpr std::string_view kEven = ".";

char LetterOf(std::string_view pattern, int pixel) {
    return pattern[static_cast<std::size_t>(pixel) % pattern.size()];
}

int WidthIn(const std::vector<int>& starts, int pixel, int count) {
    return starts[static_cast<std::size_t>(pixel + count)] -
           starts[static_cast<std::size_t>(pixel)];
}

}  // namespace

ScreenSteps::ScreenSteps(const StepPattern& pattern, Size surface, Size room, double scale)
    : scale_(scale) {
    const Counts across = CountsOf(pattern.columns, surface.width);
    const Counts down = CountsOf(pattern.rows, surface.height);
    const int nearest = std::max(1, static_cast<int>(std::lround(scale)));
    // Large pictures count more than thick lines.
    for (int picture = nearest; picture > 0; --picture) {
        for (int line = nearest; line > 0; --line) {
            const Widths widths{line, picture};
            if (across.Fixed(widths) > room.width || down.Fixed(widths) > room.height) continue;
            columns_ = StartsOf(pattern.columns, surface.width, room.width, widths);
            rows_ = StartsOf(pattern.rows, surface.height, room.height, widths);
            return;
        }
    }
    columns_ = StartsOf(kEven, surface.width, room.width, {});
    rows_ = StartsOf(kEven, surface.height, room.height, {});
}

ScreenSteps::Counts ScreenSteps::CountsOf(std::string_view pattern, int pixels) {
    Counts counts;
    for (int i = 0; i < pixels; ++i) {
        const char letter = LetterOf(pattern, i);
        ++(letter == '|' ? counts.lines : letter == '#' ? counts.pictures : counts.others);
    }
    return counts;
}

ScreenSteps::Starts ScreenSteps::StartsOf(std::string_view pattern, int pixels, int room,
                                          Widths widths) {
    const Counts all = CountsOf(pattern, pixels);
    const int free = room - all.Fixed(widths);
    const int before = all.others == 0 ? free / 2 : 0;
    Starts starts;
    Counts passed;
    for (int i = 0; i <= pixels; ++i) {
        const int share = all.others == 0 ? 0 : free * passed.others / all.others;
        starts.push_back(before + passed.Fixed(widths) + share);
        const char letter = LetterOf(pattern, i);
        ++(letter == '|' ? passed.lines : letter == '#' ? passed.pictures : passed.others);
    }
    return starts;
}

int ScreenSteps::PixelAt(const Starts& starts, int screen) const {
    const auto outside = [&](int from) {
        return static_cast<int>(std::floor((screen - from) / scale_));
    };
    if (screen < starts.front()) return outside(starts.front());
    if (screen >= starts.back())
        return static_cast<int>(starts.size()) - 1 + outside(starts.back());
    return static_cast<int>(std::ranges::upper_bound(starts, screen) - starts.begin()) - 1;
}

Point ScreenSteps::At(Point screen) const {
    return {PixelAt(columns_, screen.x), PixelAt(rows_, screen.y)};
}

Rect ScreenSteps::PlaceOf(const Rect& pixels) const {
    return {columns_[static_cast<std::size_t>(pixels.left)],
            rows_[static_cast<std::size_t>(pixels.top)],
            WidthIn(columns_, pixels.left, pixels.width),
            WidthIn(rows_, pixels.top, pixels.height)};
}

Surface ScreenSteps::Shown(const Surface& surface, const Rect& part, COLORREF ground) const {
    Surface shown(part.width, part.height, ground);
    std::vector<int> columns;
    for (int x = 0; x < part.width; ++x)
        columns.push_back(PixelAt(columns_, part.left + x));
    for (int y = 0; y < part.height; ++y) {
        const int row = PixelAt(rows_, part.top + y);
        if (row < 0 || row >= surface.Height()) continue;
        const auto from = surface.Row(row);
        const auto to = shown.Row(y);
        for (std::size_t x = 0; x < columns.size(); ++x) {
            if (surface.Contains(columns[x], row))
                to[x] = from[static_cast<std::size_t>(columns[x])];
        }
    }
    return shown;
}

}  // namespace kestrel::gdi
