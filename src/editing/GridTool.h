#pragma once

#include "editing/ColorWells.h"
#include "editing/IconEdit.h"
#include "editing/Mouse.h"
#include "editing/Selection.h"
#include "services/Application.h"

namespace kestrel::editing {

// What a tool may need; each keeps what it does need.
struct ToolParts {
    EditParts edit;
    ColorWells& wells;
    Selection& selection;
    document::GridDisplay& grid;
    services::Application& application;
};

// What the editor does after a gesture: after HandBack the drawing tool that was used before is
// current again; OpenPopup asks for the editing pop-up at the pointer.
enum class Outcome { Nothing, HandBack, OpenPopup };

// A tool of the editing grid. Points are in grid units and may lie outside the grid while the mouse
// is captured. The editor calls Press once, then Move for each pointer event, then Release where
// the last of them was; it has set the pen colour before Press. A tool that draws holds an edit
// from Press to Release, which records the gesture also where the image looks as before.
class GridTool {
  public:
    virtual ~GridTool() = default;
    virtual void Press(Button button, int x, int y) = 0;
    virtual void Move(Button button, int x, int y) = 0;
    virtual Outcome Release(Button button, int x, int y) = 0;
};

}  // namespace kestrel::editing
