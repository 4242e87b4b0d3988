#include "editing/ColorWells.h"

namespace kestrel::editing {

void ColorWells::SetPenColor(Button button, gdi::COLORREF color) {
    penColors_[IndexOf(button)] = color;
    transparent_[IndexOf(button)] = false;
}

void ColorWells::SetTransparent(Button button) {
    penColors_[IndexOf(button)] = gdi::kWhite;
    transparent_[IndexOf(button)] = true;
}

void ColorWells::ResetDefaultColors() {
    penColors_ = {transparent_[0] ? gdi::kWhite : gdi::kBlack, gdi::kWhite};
}

void ColorWells::ClearTransparent() {
    transparent_ = {};
}

}  // namespace kestrel::editing
