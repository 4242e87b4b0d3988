#pragma once

#include "editing/Editor.h"

namespace kestrel::editing {

// Works the grid by keyboard: a cursor that stands on a cell of the icon, and presses, drags and
// lets go there as a mouse would in the middle of it.
class CellCursor {
  public:
    explicit CellCursor(Editor& editor) : editor_(editor) {}

    // The icon's pixel that it stands on.
    GridPoint Cell() const { return cell_; }
    bool IsPressed() const { return held_ != Button::None; }

    // Stands there from now on, unseen by the editor; for where a mouse has worked.
    void Put(GridPoint cell) { cell_ = cell; }
    // Goes there, drags there while it is pressed, and tells what lies there.
    void MoveTo(GridPoint cell);
    void Press(Button button);
    void Release();

  private:
    void Sweep();

    Editor& editor_;
    GridPoint cell_;
    Button held_ = Button::None;
    // Where it was pressed, and whether that began a marquee.
    GridPoint press_;
    bool sweeps_ = false;
};

}  // namespace kestrel::editing
