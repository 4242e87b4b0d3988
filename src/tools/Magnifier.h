#pragma once

#include "platform/gdi/Surface.h"
#include "services/Screen.h"

namespace kestrel::tools {

// What a picture shows of the screen: the pixels of `source`, stretched over `drawn` pixels from
// the picture's left top corner on.
struct Magnification {
    gdi::Rect source;
    gdi::Size drawn;

    bool operator==(const Magnification&) const = default;
};

// With the pointer in the middle of a picture of this size. Only the factor is rounded to single
// precision, all else is reckoned in double. Pixels that fit only in part are taken too.
Magnification MagnificationAt(gdi::Point pointer, gdi::Size picture, float factor);

// Draws lines between the enlarged pixels, in a checkerboard of two greys, into the rows of a
// picture from `top` on; below a factor of 3 there would be little else to see, and nothing is
// drawn.
void DrawPixelGrid(gdi::Surface& rows, int top, float factor);

// Shows the screen around the pointer in a picture.
class Magnifier {
  public:
    explicit Magnifier(services::Screen& screen) : screen_(screen) {}

    void SetZoom(int percent) { percent_ = percent; }
    void ShowGrid(bool shown) { grid_ = shown; }
    // What the picture has where there is no screen.
    void SetGround(gdi::COLORREF color) { ground_ = color; }

    // Looks at the screen for a picture of this size with the pointer in its middle. False when
    // that would be the picture as it is, or the screen gave nothing.
    bool Look(gdi::Point pointer, gdi::Size size);
    // Draws the picture's rows from `top` on: a few at a time need not leave the processor's cache
    // before they are on the screen.
    void DrawRows(gdi::Surface& rows, int top) const;

  private:
    // All that a picture depends on, besides the screen's pixels.
    struct Frame {
        // Of the pixels copied, counted from the first of them.
        Magnification shown;
        gdi::Size size;
        int percent = 0;
        bool grid = false;
        gdi::COLORREF ground = 0;

        bool operator==(const Frame&) const = default;
    };

    services::Screen& screen_;
    int percent_ = 100;
    bool grid_ = false;
    gdi::COLORREF ground_ = gdi::kBlack;
    Frame frame_;
    // The part of the screen that the picture shows, and room for the next.
    gdi::Surface copied_{0, 0};
    gdi::Surface next_{0, 0};
};

}  // namespace kestrel::tools
