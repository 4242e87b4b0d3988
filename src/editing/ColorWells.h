#pragma once

#include <array>

#include "editing/EditorViews.h"
#include "editing/Mouse.h"
#include "platform/gdi/Color.h"

namespace kestrel::editing {

// What each mouse button draws with: a colour, or transparency. The view is told of changes.
class ColorWells {
  public:
    explicit ColorWells(ColorsView& view) : view_(view) { Show(); }

    // The colour of a button's well; white while the well is transparent.
    gdi::COLORREF PenColor(Button button) const { return wells_[IndexOf(button)].color; }
    bool IsTransparent(Button button) const { return wells_[IndexOf(button)].transparent; }

    void SetPenColor(Button button, gdi::COLORREF color);
    void SetTransparent(Button button);
    // The well is not transparent any more; its colour stays.
    void SetOpaque(Button button);

    // Black for the left button, white for the right; whether a well is transparent stays.
    void ResetDefaultColors();
    // Neither well is transparent any more; the colours stay.
    void ClearTransparent();

    // The wells change places; two transparent ones do not.
    void Interchange();
    // Transparency goes over to the other well, which loses its colour.
    void InterchangeTransparent();

  private:
    struct Well {
        gdi::COLORREF color = gdi::kBlack;
        bool transparent = false;
    };

    void Show();
    static std::size_t IndexOf(Button button) { return button == Button::Right ? 1 : 0; }

    ColorsView& view_;
    std::array<Well, 2> wells_{{{gdi::kBlack, false}, {gdi::kWhite, false}}};
};

}  // namespace kestrel::editing
