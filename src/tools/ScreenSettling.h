#pragma once

#include <chrono>
#include <vector>

#include "platform/gdi/Surface.h"

namespace kestrel::tools {

// Tells from pictures of one place of the screen when a window that lay there is gone from it:
// window managers take their frame away a moment later, compositors fade windows out, and programs
// below without a background show what lay there before until they repaint.
class ScreenSettling {
  public:
    // The place while the window is still there, the part of it that the window covers, and how
    // long one waits at most.
    ScreenSettling(gdi::Surface before, gdi::Rect window, std::chrono::milliseconds patience);

    // Whether the window is gone, so long after it was taken away, from what the place shows now.
    bool IsOver(std::chrono::milliseconds elapsed, const gdi::Surface& now);

  private:
    bool ShowsWindow(const gdi::Surface& now) const;

    gdi::Surface before_;
    std::chrono::milliseconds patience_;
    // Left top corners of the parts by which the window is known: those of more than one colour.
    std::vector<gdi::Point> details_;
    gdi::Surface last_;
    std::chrono::milliseconds lastChange_{};
};

}  // namespace kestrel::tools
