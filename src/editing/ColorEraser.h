#pragma once

#include "editing/FreehandTool.h"

namespace kestrel::editing {

// Clears, with either button and whatever the colours.
class ColorEraser : public FreehandTool {
  public:
    using FreehandTool::FreehandTool;

  protected:
    void Paint(IconEdit& edit, Button /*button*/, int cx, int cy) override {
        edit.PaintCellTransparent(cx, cy);
    }
};

}  // namespace kestrel::editing
