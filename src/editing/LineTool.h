#pragma once

#include "editing/ShapeTool.h"

namespace kestrel::editing {

// A straight line with both its end pixels.
class LineTool : public ShapeTool {
  public:
    using ShapeTool::ShapeTool;

  protected:
    void DrawRubberBand(gdi::Surface& grid, const Corners& band) const override;
    void Draw(gdi::Surface& plane, const Corners& cells, ShapeColors colors) const override;
};

}  // namespace kestrel::editing
