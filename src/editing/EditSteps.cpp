#include "editing/EditSteps.h"

namespace kestrel::editing {

void LoggedColors::ShowWell(Button button, gdi::COLORREF color, bool transparent) {
    const EditSteps::Step step(steps_);
    view_.ShowWell(button, color, transparent);
}

void LoggedColors::RepaintPalette() {
    const EditSteps::Step step(steps_);
    view_.RepaintPalette();
}

void LoggedColors::ShowChkPal(bool ticked) {
    const EditSteps::Step step(steps_);
    view_.ShowChkPal(ticked);
}

}  // namespace kestrel::editing
