#include "editing/ColorWells.h"

#include <utility>

namespace kestrel::editing {

void ColorWells::SetPenColor(Button button, gdi::COLORREF color) {
    wells_[IndexOf(button)] = {color, false};
    Show();
}

void ColorWells::SetTransparent(Button button) {
    wells_[IndexOf(button)] = {gdi::kWhite, true};
    Show();
}

void ColorWells::SetOpaque(Button button) {
    wells_[IndexOf(button)].transparent = false;
    Show();
}

void ColorWells::ResetDefaultColors() {
    wells_[0].color = wells_[0].transparent ? gdi::kWhite : gdi::kBlack;
    wells_[1].color = gdi::kWhite;
    Show();
}

void ColorWells::ClearTransparent() {
    SetOpaque(Button::Left);
    SetOpaque(Button::Right);
}

void ColorWells::Interchange() {
    std::swap(wells_[0], wells_[1]);
    Show();
}

void ColorWells::InterchangeTransparent() {
    if (wells_[0].transparent == wells_[1].transparent) return;
    for (Well& well : wells_)
        well = {gdi::kWhite, !well.transparent};
    Show();
}

void ColorWells::Show() {
    for (const Button button : {Button::Left, Button::Right})
        view_.ShowWell(button, PenColor(button), IsTransparent(button));
}

}  // namespace kestrel::editing
