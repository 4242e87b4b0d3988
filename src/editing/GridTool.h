#pragma once

#include "document/Canvas.h"
#include "document/IconDocument.h"
#include "editing/ColorWells.h"
#include "editing/ModCollections.h"
#include "editing/Mouse.h"
#include "editing/Selection.h"
#include "services/Application.h"

namespace kestrel::editing {

// What a tool may need; each keeps what it does need.
struct ToolParts {
    document::IconDocument& document;
    document::Canvas& canvas;
    ColorWells& wells;
    ModCollections& history;
    Selection& selection;
    document::GridDisplay& grid;
    services::Application& application;
};

// What a gesture came to. A changed image is recorded, also where it looks as before; after
// HandBack the drawing tool that was used before is current again; OpenPopup asks for the editing
// pop-up at the pointer.
enum class Outcome { Nothing, Changed, HandBack, OpenPopup };

// A tool of the editing grid. Points are in grid units and may lie outside the grid while the mouse
// is captured. The editor calls Press once, then Move for each pointer event, then Release where
// the last of them was; it has set the pen colour before Press.
class GridTool {
  public:
    virtual ~GridTool() = default;
    virtual void Press(Button button, int x, int y) = 0;
    virtual void Move(Button button, int x, int y) = 0;
    virtual Outcome Release(Button button, int x, int y) = 0;
};

}  // namespace kestrel::editing
