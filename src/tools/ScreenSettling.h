#pragma once

#include <chrono>
#include <vector>

#include "platform/gdi/Surface.h"

namespace kestrel::tools {

// Whether a window is gone from the screen. Nearly: it seems so, but not for long enough yet.
enum class Gone { No, Nearly, Yes };

// Tells from pictures of one place of the screen when a window that lay there is gone from it:
// window managers take their frame away a moment later, compositors fade windows out, and programs
// below without a background show what lay there before until they repaint.
class ScreenSettling {
  public:
    // The place while the window is still there, the part of it that the window covers, and how
    // long one waits at most.
    ScreenSettling(gdi::Surface before, gdi::Rect window, std::chrono::milliseconds patience);

    // From what the place shows so long after the window was taken away. While the answer does not
    // go back to No, the place has not changed.
    Gone Look(std::chrono::milliseconds elapsed, const gdi::Surface& now);

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
