#pragma once

#include "editing/FreehandTool.h"

namespace kestrel::editing {

// Paints in the button's colour, or clears while its well is transparent.
class Pencil : public FreehandTool {
  public:
    explicit Pencil(const ToolParts& parts) : FreehandTool(parts), wells_(parts.wells) {}

  protected:
    void Paint(IconEdit& edit, Button button, int cx, int cy) override;

  private:
    const ColorWells& wells_;
};

}  // namespace kestrel::editing
