#pragma once

#include "editing/GridTool.h"

namespace kestrel::editing {

// Paints the cell under each pointer event; nothing in between.
class FreehandTool : public GridTool {
  public:
    explicit FreehandTool(const ToolParts& parts)
        : canvas_(parts.canvas), history_(parts.history) {}

    void Press(Button button, int x, int y) final;
    void Move(Button button, int x, int y) final;
    Outcome Release(Button /*button*/, int /*x*/, int /*y*/) final { return Outcome::Changed; }

  protected:
    // In icon coordinates, possibly outside the icon.
    virtual void Paint(Button button, int cx, int cy) = 0;

    document::Canvas& canvas_;

  private:
    ModCollections& history_;
};

}  // namespace kestrel::editing
