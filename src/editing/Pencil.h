#pragma once

#include "document/Canvas.h"
#include "editing/ColorWells.h"
#include "editing/GridTool.h"
#include "editing/ModCollections.h"

namespace kestrel::editing {

// Paints the cell under each pointer event in the button's colour; nothing in between.
class Pencil : public GridTool {
  public:
    Pencil(document::Canvas& canvas, const ColorWells& wells, ModCollections& history)
        : canvas_(canvas), wells_(wells), history_(history) {}

    void Press(Button button, int x, int y) override;
    void Move(Button button, int x, int y) override;

  private:
    document::Canvas& canvas_;
    const ColorWells& wells_;
    ModCollections& history_;
};

}  // namespace kestrel::editing
