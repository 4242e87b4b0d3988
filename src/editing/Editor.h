#pragma once

#include "document/Canvas.h"
#include "document/IconDocument.h"
#include "editing/ColorWells.h"
#include "editing/EditorWindow.h"
#include "editing/ModCollections.h"
#include "editing/Pencil.h"
#include "editing/PointerReadout.h"
#include "editing/ToolPalette.h"

namespace kestrel::editing {

// The open icon and everything that edits it.
class Editor {
  public:
    // `windowColor` is the desktop's window colour. The document is the empty icon, recorded as
    // the first undo entry.
    Editor(EditorWindow& window, gdi::COLORREF windowColor);

    document::IconDocument& Document() { return document_; }
    document::Canvas& Views() { return canvas_; }
    ColorWells& Wells() { return wells_; }
    ToolPalette& Tools() { return tools_; }
    ModCollections& History() { return history_; }

    // A new, empty icon, with tools, colours and history as at start-up.
    void ResetDocument();
    // Makes `icon` the content of the document just reset, and its oldest state.
    void ShowOpenedIcon(const icons::IconImage& icon);

    // Mouse events of the editing grid; points in grid units, also outside while captured. A
    // gesture belongs to the button that began it; others are ignored until it ends.
    void PicMain_MouseDown(Button button, int x, int y);
    void PicMain_MouseMove(HeldButtons held, int x, int y);
    void PicMain_MouseUp(Button button, int x, int y);
    // Ends a gesture where it is, as if its button came up there. For whatever may take the mouse
    // away in its midst, such as a command by keyboard.
    void EndGesture();

    // Shows the document's file title in the title of the window.
    void ShowTitle();

  private:
    GridTool* CurrentGridTool();
    void RecordGesture();

    EditorWindow& window_;
    document::IconDocument document_;
    document::Canvas canvas_;
    ColorWells wells_;
    ToolPalette tools_;
    ModCollections history_;
    PointerReadout readout_;
    Pencil pencil_;

    GridTool* gestureTool_ = nullptr;
    Button gestureButton_ = Button::None;
    // The grid point of the last pointer event.
    int pointerX_ = 0;
    int pointerY_ = 0;
};

}  // namespace kestrel::editing
