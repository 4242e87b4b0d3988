#pragma once

#include "editing/ShapeTool.h"

namespace kestrel::editing {

// A box that covers both its corner cells.
class RectangleTool : public ShapeTool {
  public:
    RectangleTool(const ToolParts& parts, Interior interior)
        : ShapeTool(parts), interior_(interior) {}

  protected:
    void DrawRubberBand(gdi::Surface& grid, const Corners& band) const override;
    void Draw(gdi::Surface& plane, const Corners& cells, ShapeColors colors) const override;

  private:
    Interior interior_;
};

}  // namespace kestrel::editing
