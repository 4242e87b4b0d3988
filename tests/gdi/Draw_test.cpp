#include "platform/gdi/Draw.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "platform/gdi/Blit.h"
#include "tests/support/PictureText.h"

namespace kestrel::gdi {
namespace {

using test::ComparePicture;

constexpr COLORREF kRed = 0x0000FF;

int StepOf(const Surface& target) {
    return target.state.lineStyle == LineStyle::Dot ? 2 : 1;
}

// Divides for every step; half way between two pixels counts to the one nearer to the start.
void SlowLine(Surface& target, int x1, int y1, int x2, int y2, COLORREF color) {
    const int length = std::max(std::abs(x2 - x1), std::abs(y2 - y1));
    for (int i = 0; i < length; i += StepOf(target)) {
        const auto at = [&](int from, int to) {
            const int way = (2 * std::abs(to - from) * i + length - 1) / (2 * length);
            return from + (to < from ? -way : way);
        };
        target.SetPixel(at(x1, x2), at(y1, y2), color);
    }
}

// All pixels of a box, or of its outline those at an even distance from the top left corner.
template <bool filled>
void SlowBox(Surface& target, int x1, int y1, int x2, int y2, COLORREF color) {
    const auto [left, right] = std::minmax(x1, x2);
    const auto [top, bottom] = std::minmax(y1, y2);
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x) {
            const bool rim = x == left || x == right || y == top || y == bottom;
            if (filled || (rim && (x - left + y - top) % StepOf(target) == 0))
                target.SetPixel(x, y, color);
        }
    }
}

// Whether x is at most half a pixel farther out than the curve at y. Distances from the middle are
// doubled, so that they are whole numbers.
bool Reaches(int x, int y, int span, int height) {
    return x <= 1 || (x - 1) * (x - 1) * height * height <= span * span * (height * height - y * y);
}

// The curve runs through the middles of the outermost pixels; a pixel is covered when the curve
// reaches it along its row or its column, and belongs to the outline when a pixel beside it is not.
void SlowEllipse(Surface& target, int x1, int y1, int x2, int y2, COLORREF outline) {
    const int spanX = std::abs(x2 - x1) - 1;
    const int spanY = std::abs(y2 - y1) - 1;
    const auto covers = [&](int column, int row) {
        const int x = std::abs(2 * (column - std::min(x1, x2)) - spanX);
        const int y = std::abs(2 * (row - std::min(y1, y2)) - spanY);
        return x <= spanX && y <= spanY &&
               (Reaches(x, y, spanX, spanY) || Reaches(y, x, spanY, spanX));
    };
    for (int i = 0; i < target.Width() * target.Height(); ++i) {
        const int x = i % target.Width();
        const int y = i / target.Width();
        const bool inner =
            covers(x - 1, y) && covers(x + 1, y) && covers(x, y - 1) && covers(x, y + 1);
        if (inner && target.state.fillStyle == FillStyle::Solid)
            target.SetPixel(x, y, target.state.fillColor);
        if (covers(x, y) && !inner) target.SetPixel(x, y, outline);
    }
}

void FastEllipse(Surface& target, int x1, int y1, int x2, int y2, COLORREF /*outline*/) {
    Ellipse(target, x1, y1, x2, y2);
}

using Figure = void (*)(Surface&, int, int, int, int, COLORREF);
constexpr std::pair<Figure, Figure> kTwins[] = {{DrawLine, SlowLine},
                                                {DrawBox, SlowBox<false>},
                                                {FillBox, SlowBox<true>},
                                                {FastEllipse, SlowEllipse}};

TEST(Draw, AgreesWithSlowTwinsInEverySizeAndDirectionAndWhereItIsCut) {
    Surface blank(17, 13);
    for (int figure = 0; figure < 3 * 4; ++figure) {
        const auto& [fast, slow] = kTwins[figure % 4];
        // Drawn over, by dots, or by inversion, where a pixel that is touched twice shows.
        blank.state = {kBlack, kRed};
        if (figure / 4 == 0) blank.state.fillStyle = FillStyle::Solid;
        if (figure / 4 == 1) blank.state.lineStyle = LineStyle::Dot;
        if (figure / 4 == 2) blank.state.drawMode = DrawMode::Invert;
        for (const auto& [x1, y1] : {std::pair{8, 6}, {0, 12}, {-37, 5}, {3, -30}, {40, 31}}) {
            for (int end = 0; end < 25 * 21; ++end) {
                Surface target = blank;
                Surface expected = blank;
                fast(target, x1, y1, end % 25 - 4, end / 25 - 4, kBlack);
                slow(expected, x1, y1, end % 25 - 4, end / 25 - 4, kBlack);
                ASSERT_TRUE(ComparePicture(target, expected))
                    << figure << ' ' << x1 << ' ' << y1 << ' ' << end;
            }
        }
    }
}

}  // namespace
}  // namespace kestrel::gdi
