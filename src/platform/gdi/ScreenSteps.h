#pragma once

#include <string_view>
#include <vector>

#include "platform/gdi/Surface.h"

namespace kestrel::gdi {

// How a surface is divided, one letter for each of its columns or rows, repeated to its end:
//   '|' belongs to a line: all lines are of one width;
//   '#' belongs to a picture: each takes the same whole number of the screen's pixels;
//   '.' takes what these leave.
struct StepPattern {
    std::string_view columns = "#";
    std::string_view rows = "#";
};

// Where the pixels of a surface stand on a screen that has more pixels, in whole pixels of the
// screen. What the pattern leaves free lies around the surface.
class ScreenSteps {
  public:
    // So many pixels of the screen are there for the surface; one unit of its window has `scale`.
    ScreenSteps(const StepPattern& pattern, Size surface, Size room, double scale);

    // The pixel of the surface that a pixel of the room shows, and what it would be outside.
    Point At(Point screen) const;
    // The pixels of the room that show these of the surface.
    Rect PlaceOf(const Rect& pixels) const;
    // Part of the room, which need not lie in it; `ground` where no surface is.
    Surface Shown(const Surface& surface, const Rect& part, COLORREF ground) const;

  private:
    // One axis: the first pixel of the screen for each of the surface, and the end.
    using Starts = std::vector<int>;
    struct Widths {
        int line = 0;
        int picture = 0;
    };
    struct Counts {
        int lines = 0;
        int pictures = 0;
        int others = 0;

        int Fixed(Widths widths) const { return lines * widths.line + pictures * widths.picture; }
    };

    static Counts CountsOf(std::string_view pattern, int pixels);
    static Starts StartsOf(std::string_view pattern, int pixels, int room, Widths widths);
    int PixelAt(const Starts& starts, int screen) const;

    double scale_;
    Starts columns_;
    Starts rows_;
};

}  // namespace kestrel::gdi
