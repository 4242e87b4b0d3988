#pragma once

#include "editing/ClickTool.h"

namespace kestrel::editing {

// Fills the area of one colour under the pointer with the button's colour. What it fills becomes
// opaque, with a transparent well white.
class FloodFill : public ClickTool {
  public:
    explicit FloodFill(const ToolParts& parts) : parts_(parts.edit) {}

    Outcome Release(Button button, int x, int y) override;

  private:
    void Fill(int cx, int cy, gdi::COLORREF color);

    EditParts parts_;
};

}  // namespace kestrel::editing
