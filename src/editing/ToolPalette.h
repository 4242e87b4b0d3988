#pragma once

#include <optional>

#include "editing/EditorViews.h"
#include "editing/Mouse.h"
#include "editing/Selection.h"
#include "editing/ToolId.h"
#include "platform/gdi/Surface.h"

namespace kestrel::editing {

// The palette of tools: 4 columns and 3 rows of glyphs, the current tool and one that is being
// pressed with a sunken edge, the current one on a tinted ground. Points are in pixels of the
// palette.
class ToolPalette {
  public:
    static constexpr int kColumns = 4;
    static constexpr int kRows = 3;
    // In pixels.
    static constexpr int kCellWidth = 23;
    static constexpr int kCellHeight = 22;

    ToolPalette(const EditorViews& views, Selection& selection, gdi::COLORREF windowColor);

    // What the palette looks like.
    const gdi::Surface& PicTools() const { return picTools_; }

    ToolId CurrentTool() const { return currentTool_; }
    // The last tool other than Selection and Color picker.
    ToolId LastDrawingTool() const { return lastDrawingTool_; }

    // Makes a tool current, shows it so and gives the grid its pointer shape. Drops the selection.
    void SelectTool(ToolId tool);
    void RestoreLastDrawingTool() { SelectTool(lastDrawingTool_); }

    // A press belongs to the button that began it; it selects a tool when it ends where it began.
    void PicTools_MouseDown(Button button, int x, int y);
    void PicTools_MouseMove(HeldButtons held, int x, int y);
    void PicTools_MouseUp(Button button, int x, int y);

    // The ground of the palette.
    void SetWindowColor(gdi::COLORREF color);

  private:
    // The tool under a point; none outside the palette.
    static std::optional<ToolId> ToolAt(int x, int y);

    void Paint();
    void DrawEdge(ToolId tool);
    void ShowHints(ToolId tool);
    void ShowPressed(bool shown);
    void EndPress();

    EditorViews views_;
    Selection& selection_;
    gdi::Surface strip_;
    gdi::Surface picTools_;
    ToolId currentTool_ = ToolId::Pencil;
    ToolId lastDrawingTool_ = ToolId::Pencil;
    // The tool pressed and not released yet; never the current one.
    std::optional<ToolId> paletteHitTool_;
    Button pressedBy_ = Button::None;
    // Whether the pointer is on the tool that it pressed.
    bool pressedShown_ = false;
};

}  // namespace kestrel::editing
