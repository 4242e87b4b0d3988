#include "editing/PointerReadout.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

#include "document/GridCoordinates.h"
#include "i18n/Captions.h"

namespace kestrel::editing {

void PointerReadout::Show(ToolId tool, int x, int y) {
    window_.SetStatusPanel(StatusPanel::Hint,
                           tool == ToolId::Pencil ? i18n::kPencilHint.Now() : std::string_view());
    // Left of or above the grid, -9 to -1 would truncate into the first cell.
    const int cx = x < 0 ? -1 : document::CellOf(x);
    const int cy = y < 0 ? -1 : document::CellOf(y);
    ShowPixel(cx, cy);
    ShowPointerReadout(cx, cy);
}

void PointerReadout::ShowPixel(int cx, int cy) {
    if (!document_.PicMask.Contains(cx, cy)) {
        window_.SetStatusPanel(StatusPanel::Pixel, {});
    } else if (document_.IsTransparent(cx, cy)) {
        window_.SetStatusPanel(StatusPanel::Pixel, i18n::kTransparent.Now());
    } else {
        // Blue, green, red without leading zeros.
        std::array<char, 8> digits{};
        std::snprintf(digits.data(), digits.size(), "#%X", document_.PicImage.GetPixel(cx, cy));
        window_.SetStatusPanel(StatusPanel::Pixel, digits.data());
    }
}

void PointerReadout::ShowPointerReadout(int cx, int cy) {
    const auto inside = [](int cell) {
        return std::to_string(std::clamp(cell, 0, document::kIconSize - 1));
    };
    const std::string text = inside(cx) + " , " + inside(cy);
    window_.SetStatusPanel(StatusPanel::Cell, text);
    window_.PrintPointerCell(text);
}

}  // namespace kestrel::editing
