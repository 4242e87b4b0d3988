#pragma once

#include <array>

#include "platform/gdi/Color.h"

namespace kestrel::editing {

// The mouse buttons that draw; others do nothing on the grid.
enum class Button { None = 0, Left = 1, Right = 2 };

// The drawing buttons held during a pointer move.
struct HeldButtons {
    bool left = false;
    bool right = false;

    bool Has(Button button) const { return button == Button::Left ? left : right; }
    bool IsOnly(Button button) const { return Has(button) && left != right; }
};

// What each mouse button draws with: a colour, or transparency.
class ColorWells {
  public:
    // The colour of a button's well; white while the well is transparent.
    gdi::COLORREF PenColor(Button button) const { return penColors_[IndexOf(button)]; }
    bool IsTransparent(Button button) const { return transparent_[IndexOf(button)]; }

    void SetPenColor(Button button, gdi::COLORREF color);
    void SetTransparent(Button button);

    // Black for the left button, white for the right; whether a well is transparent stays.
    void ResetDefaultColors();
    // Neither well is transparent any more; the colours stay.
    void ClearTransparent();

  private:
    static std::size_t IndexOf(Button button) { return button == Button::Right ? 1 : 0; }

    std::array<gdi::COLORREF, 2> penColors_{gdi::kBlack, gdi::kWhite};
    std::array<bool, 2> transparent_{};
};

}  // namespace kestrel::editing
