#include "commands/WellCommands.h"

namespace kestrel::editing {

void WellCommands::ImgDefaultColor_MouseUp(Button button) {
    if (button != Button::Left) return;
    wells_.ClearTransparent();
    wells_.ResetDefaultColors();
}

void WellCommands::ImgInterchangeColor_MouseUp(Button button) {
    if (button == Button::Left) {
        wells_.Interchange();
    } else {
        wells_.InterchangeTransparent();
    }
}

void WellCommands::ImgTransparent_MouseUp(Button button) {
    window_.Beep();
    if (button != Button::None) wells_.SetTransparent(button);
}

void WellCommands::PicForeColor_MouseUp(Button button) {
    if (button == Button::Left) ChooseColor(Button::Left);
}

void WellCommands::PicBackColor_MouseUp(Button button) {
    if (button == Button::Left) ChooseColor(Button::Right);
}

void WellCommands::ChooseColor(Button well) {
    wells_.SetOpaque(well);
    const auto chosen = cdb_.ShowColor(wells_.PenColor(well));
    if (chosen) wells_.SetPenColor(well, *chosen);
}

}  // namespace kestrel::editing
