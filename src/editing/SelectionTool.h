#pragma once

#include "editing/GridTool.h"

namespace kestrel::editing {

// With the left button it marks cells or moves what is selected; the right one asks for the editing
// pop-up.
class SelectionTool : public GridTool {
  public:
    explicit SelectionTool(const ToolParts& parts) : selection_(parts.selection) {}

    void Press(Button button, int x, int y) override;
    void Move(Button button, int x, int y) override;
    Outcome Release(Button button, int x, int y) override;

  private:
    Selection& selection_;
};

}  // namespace kestrel::editing
