#pragma once

#include "document/IconDocument.h"
#include "platform/gdi/Surface.h"

namespace kestrel::document {

// What shows PicMain.
class GridDisplay {
  public:
    virtual ~GridDisplay() = default;
    // These pixels of the grid are new.
    virtual void RepaintGrid(gdi::Rect area) = 0;
};

// What shows PicIcon.
class PreviewDisplay {
  public:
    virtual ~PreviewDisplay() = default;
    // These pixels of the preview are new.
    virtual void RepaintPreview(gdi::Rect area) = 0;
};

// What lies over the icon in the views without being part of it.
class CanvasOverlay {
  public:
    virtual ~CanvasOverlay() = default;
    // On the grid over the magnified pixels, and after that over the grid lines.
    virtual void DrawUnderLines(gdi::Surface& grid) const = 0;
    virtual void DrawOverLines(gdi::Surface& grid) const = 0;
    // On the preview, which has an icon pixel to a pixel.
    virtual void DrawOnPreview(gdi::Surface& preview) const = 0;
};

// The magnified editing grid, the preview and the images they are composed from. Composition is
// always (ground AND mask) XOR colour; the grid's ground is the hatch of transparent cells, the
// preview's the window colour.
class Canvas {
  public:
    // `windowColor` is the desktop's window colour. The views show the empty icon afterwards.
    Canvas(const IconDocument& document, GridDisplay& grid, PreviewDisplay& preview,
           gdi::COLORREF windowColor);

    // The editing grid with its lines, 10 grid units per icon pixel.
    gdi::Surface PicMain;
    // The same without lines: what rubber bands and a floating selection are drawn over.
    gdi::Surface PicMainCopy;
    // The icon in actual size.
    gdi::Surface PicIcon;

    // Rebuilds every view from the planes.
    void RedrawAll();
    // Recomposes the preview from the planes and what lies over them.
    void PreviewIcon();
    // Empties the preview and the grid; the planes are the caller's.
    void ShowEmptyIcon();
    // Redraws the grid from its backing copy and what lies over it.
    void ShowGrid();
    // What every redraw draws over the icon from now on.
    void SetOverlay(const CanvasOverlay& overlay) { overlay_ = &overlay; }

    // Paints one icon pixel, given in icon coordinates, in the views without touching the others.
    void PaintCell(int cx, int cy, gdi::COLORREF color);
    void PaintCellTransparent(int cx, int cy);

    // The desktop's window colour has changed.
    void SetWindowColor(gdi::COLORREF color);

    // What every drawing surface draws with from now on.
    void SetPenColor(gdi::COLORREF color);

  private:
    // Shows an all-transparent icon, without lines until OverlayGrid.
    void ClearView();
    // Blackens the grid lines and repaints the grid.
    void OverlayGrid();
    void MakeGridLines();
    void MakeTransparentGrid();
    void RebuildBackingCopy();
    void RepaintCell(int cx, int cy);

    const IconDocument& document_;
    GridDisplay& grid_;
    PreviewDisplay& preview_;
    gdi::Surface gridLinesImage_;
    gdi::Surface transparentGridImage_;
    const CanvasOverlay* overlay_ = nullptr;
};

}  // namespace kestrel::document
