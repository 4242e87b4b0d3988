#pragma once

#include "editing/GridTool.h"

namespace kestrel::editing {

// Acts once, where the button comes up.
class ClickTool : public GridTool {
  public:
    void Press(Button /*button*/, int /*x*/, int /*y*/) final {}
    void Move(Button /*button*/, int /*x*/, int /*y*/) final {}
};

}  // namespace kestrel::editing
