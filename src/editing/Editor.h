#pragma once

#include <map>
#include <memory>

#include "editing/ColorWells.h"
#include "editing/EditSteps.h"
#include "editing/EditorViews.h"
#include "editing/GridTool.h"
#include "editing/ModCollections.h"
#include "editing/Palette.h"
#include "editing/PointerReadout.h"
#include "editing/Selection.h"
#include "editing/TargetEdit.h"
#include "editing/ToolPalette.h"
#include "editing/Work.h"
#include "formats/IconImage.h"

namespace kestrel::editing {

// The open icon and everything that edits it.
class Editor {
  public:
    // `windowColor` is the desktop's window colour. The document is the empty icon, recorded as
    // the first undo entry.
    Editor(const EditorViews& views, gdi::COLORREF windowColor);

    document::IconDocument& Document() { return document_; }
    document::Canvas& Views() { return canvas_; }
    ColorWells& Wells() { return wells_; }
    Palette& ColorPalette() { return palette_; }
    ToolPalette& Tools() { return tools_; }
    ModCollections& History() { return history_; }
    const ModCollections& History() const { return history_; }
    Selection& Selected() { return selection_; }

    // A new, empty icon, with tools, colours, palette and history as at start-up.
    void ResetDocument();
    // Makes `icon`, fitted to 32 x 32, the content of the document just reset, and its oldest
    // state.
    void ReadIconIntoDocument(const formats::IconImage& icon);

    // Mouse events of the editing grid; points in grid units, also outside while captured. A
    // gesture belongs to the button that began it; others are ignored until it ends.
    void PicMain_MouseDown(Button button, int x, int y);
    void PicMain_MouseMove(HeldButtons held, int x, int y);
    void PicMain_MouseUp(Button button, int x, int y);
    // Ends a gesture where it is, as if its button came up there. For whatever may take the mouse
    // away in its midst, such as a command by keyboard.
    void EndGesture();
    // A button is held that went down on the grid.
    bool IsInGesture() const { return gestureButton_ != Button::None; }

    // Drops the selection, then goes one step of the history back or forward if there is one.
    void PopUndoSnapshot();
    void PopRedoSnapshot();
    // Whether there is one. To drop a floating selection makes the entry to go back from.
    bool CanUndo();
    bool CanRedo() const { return history_.CanRedo(); }

    // Opens a change of the whole icon, or of what is selected where something is.
    IconEdit EditIcon(Leaves leaves) { return {parts_, leaves}; }
    TargetEdit EditTarget(Leaves ofSelection) { return {parts_, selection_, ofSelection}; }

    // The icon as it is seen: with what floats over it.
    gdi::IconPlanes Composited() const;
    // Selects the whole icon, with the Selection tool.
    void SelectAll();
    // Selects these planes, floating at the top left corner, with the Selection tool.
    void FloatSelection(gdi::IconPlanes planes);

    // The desktop's window colour has changed.
    void SetWindowColor(gdi::COLORREF color);

    // Shows the document's file title in the title of the window.
    void ShowTitle();

    // What one would miss if the editor were gone, besides the history.
    Work CurrentWork() const;
    // Brings back what CurrentWork and the history's pictures were.
    void Restore(const Work& work, PictureHistory history);
    // Lets the log find what a command has changed of the document besides its planes.
    void EndStep() { const EditSteps::Step step(steps_); }

  private:
    Outcome ReleaseTool(Button button, int x, int y);
    void ShowReadout(int x, int y);
    bool IsSizing() const;
    void ShowStep(const PackedPicture* picture);

    GridView& grid_;
    EditorWindow& window_;
    EditSteps steps_;
    document::IconDocument document_;
    document::Canvas canvas_;
    LoggedColors colors_;
    ColorWells wells_;
    Palette palette_;
    ModCollections history_;
    EditParts parts_;
    Selection selection_;
    ToolPalette tools_;
    PointerReadout readout_;
    std::map<ToolId, std::unique_ptr<GridTool>> gridTools_;

    // The gesture under way: its button (None: there is none), where it began, and its tool.
    Button gestureButton_ = Button::None;
    GridPoint press_;
    GridTool* gestureTool_ = nullptr;
    // The grid point of the last pointer event.
    GridPoint pointer_;
};

}  // namespace kestrel::editing
