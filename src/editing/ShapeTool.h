#pragma once

#include <optional>

#include "editing/Corners.h"
#include "editing/GridTool.h"

namespace kestrel::editing {

// Which pixels of a closed figure are drawn: the outline alone, the inside in the same colour, or
// the inside in the other button's colour.
enum class Interior { Plain, Solid, Filled };

// The colours of one figure: the button's own, and that of the other button.
struct ShapeColors {
    gdi::COLORREF own = gdi::kBlack;
    gdi::COLORREF other = gdi::kWhite;
};

// Draws a figure from the cell where the button went down to the cell where it comes up. Until
// then an inverted outline between the middles of both cells follows the pointer. Figures are
// opaque; a transparent well draws white.
class ShapeTool : public GridTool {
  public:
    explicit ShapeTool(const ToolParts& parts)
        : parts_(parts.edit), wells_(parts.wells), grid_(parts.grid) {}

    void Press(Button button, int x, int y) final;
    void Move(Button button, int x, int y) final;
    Outcome Release(Button button, int x, int y) final;

  protected:
    // The outline on the grid, in grid units.
    virtual void DrawRubberBand(gdi::Surface& grid, const Corners& band) const = 0;
    // The figure on a plane, in icon coordinates.
    virtual void Draw(gdi::Surface& plane, const Corners& cells, ShapeColors colors) const = 0;

  private:
    // Draws the rubber band or, when it is shown, takes it away.
    void InvertRubberBand();

    EditParts parts_;
    const ColorWells& wells_;
    document::GridDisplay& grid_;
    std::optional<IconEdit> edit_;
    Corners band_;
};

}  // namespace kestrel::editing
