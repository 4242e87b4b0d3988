#pragma once

#include <optional>

#include "editing/GridTool.h"

namespace kestrel::editing {

// Paints the cell under each pointer event; nothing in between.
class FreehandTool : public GridTool {
  public:
    explicit FreehandTool(const ToolParts& parts) : parts_(parts.edit) {}

    void Press(Button button, int x, int y) final;
    void Move(Button button, int x, int y) final;
    Outcome Release(Button button, int x, int y) final;

  protected:
    // In icon coordinates, possibly outside the icon.
    virtual void Paint(IconEdit& edit, Button button, int cx, int cy) = 0;
    // What is drawn with now.
    gdi::COLORREF PenColor() const { return parts_.canvas.PicMain.state.foreColor; }

  private:
    EditParts parts_;
    std::optional<IconEdit> edit_;
};

}  // namespace kestrel::editing
