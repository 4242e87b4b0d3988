#include "editing/ToolPalette.h"

#include "editing/ToolStrip.h"
#include "editing/ToolTable.h"
#include "platform/gdi/Blit.h"
#include "platform/gdi/Draw.h"

namespace kestrel::editing {

namespace {

// Where a glyph stands in its cell.
constexpr int kGlyphX = 4;
constexpr int kGlyphY = 3;

// The colour that the tool in use has from behind, a part in three.
constexpr gdi::COLORREF kTint = gdi::Rgb(92, 152, 220);

constexpr std::uint8_t Tinted(std::uint8_t ground, std::uint8_t tint) {
    return static_cast<std::uint8_t>((2 * ground + tint) / 3);
}
constexpr gdi::COLORREF Tinted(gdi::COLORREF ground) {
    return gdi::Rgb(Tinted(gdi::Red(ground), gdi::Red(kTint)),
                    Tinted(gdi::Green(ground), gdi::Green(kTint)),
                    Tinted(gdi::Blue(ground), gdi::Blue(kTint)));
}

constexpr int SlotOf(ToolId tool) {
    return static_cast<int>(tool) - 1;
}
constexpr int LeftOf(ToolId tool) {
    return SlotOf(tool) % ToolPalette::kColumns * ToolPalette::kCellWidth;
}
constexpr int TopOf(ToolId tool) {
    return SlotOf(tool) / ToolPalette::kColumns * ToolPalette::kCellHeight;
}

}  // namespace

ToolPalette::ToolPalette(const EditorViews& views, Selection& selection, gdi::COLORREF windowColor)
    : views_(views),
      selection_(selection),
      strip_(ToolStrip()),
      picTools_(kColumns * kCellWidth, kRows * kCellHeight, windowColor) {
    Paint();
}

std::optional<ToolId> ToolPalette::ToolAt(int x, int y) {
    if (x < 0 || y < 0 || x >= kColumns * kCellWidth || y >= kRows * kCellHeight) return {};
    return static_cast<ToolId>(x / kCellWidth + 1 + kColumns * (y / kCellHeight));
}

void ToolPalette::SelectTool(ToolId tool) {
    selection_.DropSelection();
    if (tool != ToolId::Selection && tool != ToolId::ColorPicker) lastDrawingTool_ = tool;
    currentTool_ = tool;
    Paint();
    views_.grid.SetGridCursor(RowOf(tool).cursor);
}

void ToolPalette::PicTools_MouseDown(Button button, int x, int y) {
    if (button == Button::None || (paletteHitTool_ && button != pressedBy_)) return;
    EndPress();
    const auto tool = ToolAt(x, y);
    if (!tool || tool == currentTool_) return;
    paletteHitTool_ = tool;
    pressedBy_ = button;
    ShowPressed(true);
}

void ToolPalette::PicTools_MouseMove(HeldButtons held, int x, int y) {
    const auto tool = ToolAt(x, y);
    if (!held.left && !held.right) {
        // Where the button came up nobody saw.
        EndPress();
        if (tool) ShowHints(*tool);
    } else if (held.left && paletteHitTool_) {
        ShowPressed(tool == paletteHitTool_);
    }
}

void ToolPalette::PicTools_MouseUp(Button button, int x, int y) {
    if (!paletteHitTool_ || button != pressedBy_) return;
    const ToolId pressed = *paletteHitTool_;
    EndPress();
    if (ToolAt(x, y) == pressed) SelectTool(pressed);
}

void ToolPalette::SetWindowColor(gdi::COLORREF color) {
    picTools_.SetBackColor(color);
    Paint();
}

void ToolPalette::ShowHints(ToolId tool) {
    views_.tools.SetToolTipOfTools(RowOf(tool).toolTip.Now());
    views_.status.SetStatusPanel(StatusPanel::Hint, RowOf(tool).status.Now());
}

void ToolPalette::EndPress() {
    paletteHitTool_.reset();
    ShowPressed(false);
}

void ToolPalette::ShowPressed(bool shown) {
    if (pressedShown_ == shown) return;
    pressedShown_ = shown;
    Paint();
}

void ToolPalette::Paint() {
    picTools_.Clear();
    gdi::PatBlt(picTools_, {LeftOf(currentTool_), TopOf(currentTool_), kCellWidth, kCellHeight},
                Tinted(picTools_.BackColor()));
    for (const ToolRow& row : ToolTable()) {
        // Two of the glyphs stand one pixel further left.
        const bool further = row.id == ToolId::ColorPicker || row.id == ToolId::FloodFill;
        const int x = LeftOf(row.id) + kGlyphX - (further ? 1 : 0);
        const int y = TopOf(row.id) + kGlyphY;
        const int slot = SlotOf(row.id) * kGlyphSize;
        gdi::BitBlt(picTools_, x, y, kGlyphSize, kGlyphSize, strip_, slot, 0, gdi::RasterOp::And);
        gdi::BitBlt(picTools_, x, y, kGlyphSize, kGlyphSize, strip_, slot, kGlyphSize,
                    gdi::RasterOp::Xor);
    }
    DrawEdge(currentTool_);
    if (paletteHitTool_ && pressedShown_) DrawEdge(*paletteHitTool_);
    views_.tools.RepaintTools();
}

void ToolPalette::DrawEdge(ToolId tool) {
    gdi::DrawSunkenEdge(picTools_, LeftOf(tool), TopOf(tool), LeftOf(tool) + kCellWidth,
                        TopOf(tool) + kCellHeight);
}

}  // namespace kestrel::editing
