#include "editing/PointerReadout.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "document/GridCoordinates.h"
#include "i18n/Language.h"

namespace kestrel::editing {

namespace {

constexpr i18n::Text kPencilHint{"Left-Click (Forecolor) Or Right-Click (Backcolor)",
                                 "点击鼠标左键 (前景色) 或 点击鼠标右键 (背景色)"};
constexpr i18n::Text kTransparent{"Transparent", "透明"};

// A short text in a buffer of its own: the readouts change with every pointer event.
class ShortText {
  public:
    template <class... Values>
    explicit ShortText(const char* format, Values... values) {
        const int length = std::snprintf(buffer_.data(), buffer_.size(), format, values...);
        length_ = std::clamp<std::size_t>(static_cast<std::size_t>(length), 0, buffer_.size() - 1);
    }
    std::string_view View() const { return {buffer_.data(), length_}; }

  private:
    std::array<char, 32> buffer_{};
    std::size_t length_ = 0;
};

}  // namespace

void PointerReadout::Show(ToolId tool, int x, int y) {
    window_.SetStatusPanel(StatusPanel::Hint,
                           tool == ToolId::Pencil ? kPencilHint.Now() : std::string_view());
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
        window_.SetStatusPanel(StatusPanel::Pixel, kTransparent.Now());
    } else {
        const ShortText text("#%X", document_.PicImage.GetPixel(cx, cy));
        window_.SetStatusPanel(StatusPanel::Pixel, text.View());
    }
}

void PointerReadout::ShowPointerReadout(int cx, int cy) {
    const ShortText text("%d , %d", std::clamp(cx, 0, document::kIconSize - 1),
                         std::clamp(cy, 0, document::kIconSize - 1));
    window_.SetStatusPanel(StatusPanel::Cell, text.View());
    window_.PrintPointerCell(text.View());
}

}  // namespace kestrel::editing
