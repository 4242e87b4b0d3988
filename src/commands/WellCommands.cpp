#include "commands/WellCommands.h"

namespace kestrel::commands {

void WellCommands::ImgDefaultColor_MouseUp(editing::Button button) {
    if (button != editing::Button::Left) return;
    wells_.ClearTransparent();
    wells_.ResetDefaultColors();
}

void WellCommands::ImgInterchangeColor_MouseUp(editing::Button button) {
    if (button == editing::Button::Left) {
        wells_.Interchange();
    } else {
        wells_.InterchangeTransparent();
    }
}

void WellCommands::ImgTransparent_MouseUp(editing::Button button) {
    application_.Beep();
    if (button != editing::Button::None) wells_.SetTransparent(button);
}

void WellCommands::PicForeColor_MouseUp(editing::Button button) {
    if (button == editing::Button::Left) ChooseColor(editing::Button::Left);
}

void WellCommands::PicBackColor_MouseUp(editing::Button button) {
    if (button == editing::Button::Left) ChooseColor(editing::Button::Right);
}

void WellCommands::ChooseColor(editing::Button well) {
    wells_.SetOpaque(well);
    const auto chosen = cdb_.ShowColor(wells_.PenColor(well));
    if (chosen) wells_.SetPenColor(well, *chosen);
}

}  // namespace kestrel::commands
