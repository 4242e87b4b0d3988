#pragma once

#include <optional>

#include "editing/EditorViews.h"
#include "platform/gdi/Surface.h"
#include "platform/system/RandomNumbers.h"

namespace kestrel::editing {

// What the colours of the palette are: those of a new document, random ones, or the user's own.
enum class PaletteKind { Default, Random, Own };
enum class PaletteReload { No, Yes };

// The palette's colours and their picture, 16 rows of 16 cells. The view is told of changes.
class Palette {
  public:
    static constexpr int kColumns = 16;
    static constexpr int kRows = 16;
    static constexpr int kCellSize = 13;  // pixels, with the edge

    explicit Palette(ColorsView& view);

    const gdi::PaletteColors& Colors() const { return colors_; }
    PaletteKind Kind() const { return kind_; }
    const gdi::Surface& PicPal() const { return picPal_; }
    // The cell under a point in pixels of PicPal.
    static std::optional<std::size_t> CellAt(int x, int y);

    // Paints every cell, after a reload of the default colours if wanted.
    void DrawPalette(PaletteReload reload);
    // All but the first and the last, which stay black and white in the default palette.
    void Randomize(system::RandomNumbers& random);
    void SetColor(std::size_t cell, gdi::COLORREF color);
    void SetColors(const gdi::PaletteColors& colors, PaletteKind kind = PaletteKind::Own);

    // Whether a click on a cell changes its colour.
    bool ChkPal() const { return chkPal_; }
    void SetChkPal(bool ticked);

  private:
    ColorsView& view_;
    gdi::PaletteColors colors_{};
    PaletteKind kind_ = PaletteKind::Default;
    gdi::Surface picPal_;
    bool chkPal_ = false;
};

}  // namespace kestrel::editing
