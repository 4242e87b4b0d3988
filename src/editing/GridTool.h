#pragma once

#include "editing/ColorWells.h"

namespace kestrel::editing {

// A tool of the editing grid. Points are in grid units and may lie outside the grid while the mouse
// is captured. The editor calls Press once, then Move for each pointer event, then Release; it has
// set the pen colour before Press and records the new image after Release.
class GridTool {
  public:
    virtual ~GridTool() = default;
    virtual void Press(Button button, int x, int y) = 0;
    virtual void Move(Button button, int x, int y) = 0;
    virtual void Release(Button /*button*/, int /*x*/, int /*y*/) {}
};

}  // namespace kestrel::editing
