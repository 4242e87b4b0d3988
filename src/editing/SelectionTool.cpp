#include "editing/SelectionTool.h"

namespace kestrel::editing {

void SelectionTool::Press(Button button, int x, int y) {
    if (button != Button::Left) return;
    if (selection_.HasMoveCursor()) {
        selection_.BeginMove(x, y);
    } else {
        selection_.BeginMarquee(x, y);
    }
}

void SelectionTool::Move(Button button, int x, int y) {
    if (button != Button::Left) return;
    if (selection_.MovingSelection()) {
        selection_.MoveTo(x, y);
    } else {
        selection_.StretchMarquee(x, y);
    }
}

Outcome SelectionTool::Release(Button button, int /*x*/, int /*y*/) {
    if (button != Button::Left) return Outcome::OpenPopup;
    if (selection_.MovingSelection()) {
        selection_.EndMove();
    } else {
        selection_.EndMarquee();
    }
    return Outcome::Nothing;
}

}  // namespace kestrel::editing
