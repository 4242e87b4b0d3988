#pragma once

#include "editing/ShapeTool.h"

namespace kestrel::editing {

// An ellipse that touches the edges of the box between both cells.
class EllipseTool : public ShapeTool {
  public:
    EllipseTool(const ToolParts& parts, Interior interior)
        : ShapeTool(parts), interior_(interior) {}

  protected:
    void DrawRubberBand(gdi::Surface& grid, const Corners& band) const override;
    void Draw(gdi::Surface& plane, const Corners& cells, ShapeColors colors) const override;

  private:
    Interior interior_;
};

}  // namespace kestrel::editing
