#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "platform/gdi/Surface.h"

namespace kestrel::tools {

// A monitor: its part of the screen's picture, and how many of its pixels look as wide as one of an
// unscaled desktop.
struct Monitor {
    gdi::Rect area;
    int scale = 1;
};

// A frozen picture of the screen from which one picks a square as large as an icon. A frame just
// outside marks the square, and a loupe shows its pixels enlarged. Points are pixels of the
// picture.
class Capture {
  public:
    // Without monitors the whole picture counts as one.
    Capture(gdi::Surface screen, std::vector<Monitor> monitors);

    const std::vector<Monitor>& Monitors() const { return monitors_; }
    // The corners that a square in the picture can have.
    gdi::Rect Corners() const;

    // The square begins at this pixel or, where it would not lie on the monitors, at the nearest
    // one where it does.
    void PointAt(gdi::Point pixel);
    gdi::Point Corner() const { return corner_; }
    // Its pixels.
    gdi::Surface Square() const;

    // What frame and loupe cover.
    std::array<gdi::Rect, 2> Marks() const { return {Frame(), Loupe()}; }
    // A part of the picture with them over it; black where it lies outside.
    gdi::Surface Shown(gdi::Rect area) const;

  private:
    bool IsOnMonitors(gdi::Point corner) const;
    void FindMonitor(gdi::Point pixel);
    const Monitor& PointersMonitor() const { return monitors_[monitor_]; }
    // A line's width there.
    int Line() const { return PointersMonitor().scale; }
    // The side of one enlarged pixel.
    int Enlargement() const;
    gdi::Rect Frame() const;
    gdi::Rect Loupe() const;
    void DrawLoupe(gdi::Surface& target, gdi::Point leftTop) const;

    gdi::Surface screen_;
    std::vector<Monitor> monitors_;
    // Where the pointer is.
    std::size_t monitor_ = 0;
    gdi::Point corner_;
};

}  // namespace kestrel::tools
