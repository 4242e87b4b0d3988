#include "editing/ColorWells.h"

#include <utility>

namespace kestrel::editing {

void ColorWells::SetPenColor(Button button, gdi::COLORREF color) {
    wells_[IndexOf(button)] = {color, false};
    window_.RepaintWells();
}

void ColorWells::SetTransparent(Button button) {
    wells_[IndexOf(button)] = {gdi::kWhite, true};
    window_.RepaintWells();
}

void ColorWells::SetOpaque(Button button) {
    wells_[IndexOf(button)].transparent = false;
    window_.RepaintWells();
}

void ColorWells::ResetDefaultColors() {
    wells_[0].color = wells_[0].transparent ? gdi::kWhite : gdi::kBlack;
    wells_[1].color = gdi::kWhite;
    window_.RepaintWells();
}

void ColorWells::ClearTransparent() {
    SetOpaque(Button::Left);
    SetOpaque(Button::Right);
}

void ColorWells::Interchange() {
    std::swap(wells_[0], wells_[1]);
    window_.RepaintWells();
}

void ColorWells::InterchangeTransparent() {
    if (wells_[0].transparent == wells_[1].transparent) return;
    for (Well& well : wells_)
        well = {gdi::kWhite, !well.transparent};
    window_.RepaintWells();
}

}  // namespace kestrel::editing
