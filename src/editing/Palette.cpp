#include "editing/Palette.h"

#include <cmath>

#include "platform/gdi/Draw.h"
#include "resources/DefaultPalette.h"

namespace kestrel::editing {

Palette::Palette(ColorsView& view)
    : view_(view), picPal_(kColumns * kCellSize, kRows * kCellSize, gdi::kBlack) {
    DrawPalette(PaletteReload::Yes);
}

std::optional<std::size_t> Palette::CellAt(int x, int y) {
    if (x < 0 || y < 0 || x >= kColumns * kCellSize || y >= kRows * kCellSize) return {};
    return static_cast<std::size_t>(y / kCellSize * kColumns + x / kCellSize);
}

void Palette::DrawPalette(PaletteReload reload) {
    if (reload == PaletteReload::Yes) {
        colors_ = resources::kDefaultPalette;
        kind_ = PaletteKind::Default;
    }
    int cell = 0;
    for (const gdi::COLORREF color : colors_) {
        const int x = cell % kColumns * kCellSize;
        const int y = cell / kColumns * kCellSize;
        gdi::FillBox(picPal_, x, y, x + kCellSize - 1, y + kCellSize - 1, color);
        gdi::DrawSunkenEdge(picPal_, x, y, x + kCellSize, y + kCellSize);
        ++cell;
    }
    view_.RepaintPalette();
}

void Palette::Randomize(system::RandomNumbers& random) {
    for (std::size_t cell = 1; cell + 1 < colors_.size(); ++cell)
        colors_[cell] = static_cast<gdi::COLORREF>(std::nearbyint(random.Next() * gdi::kColorBits));
    kind_ = PaletteKind::Random;
    DrawPalette(PaletteReload::No);
}

void Palette::SetColor(std::size_t cell, gdi::COLORREF color) {
    colors_.at(cell) = color;
    kind_ = PaletteKind::Own;
    DrawPalette(PaletteReload::No);
}

void Palette::SetColors(const gdi::PaletteColors& colors, PaletteKind kind) {
    colors_ = colors;
    kind_ = kind;
    DrawPalette(PaletteReload::No);
}

void Palette::SetChkPal(bool ticked) {
    chkPal_ = ticked;
    view_.ShowChkPal(ticked);
}

}  // namespace kestrel::editing
