#include "editing/Editor.h"

#include <utility>

#include "document/GridCoordinates.h"
#include "i18n/Messages.h"

namespace kestrel::editing {

Editor::Editor(const EditorViews& views, gdi::COLORREF windowColor)
    : grid_(views.grid),
      window_(views.window),
      steps_(views.log, *this),
      canvas_(document_, views.grid, views.preview, windowColor),
      colors_(views.colors, steps_),
      wells_(colors_),
      palette_(colors_),
      history_(document_, views.log),
      parts_{document_, canvas_, history_, views.window, steps_},
      selection_(parts_, views.grid),
      tools_(views, selection_, windowColor),
      readout_(document_, views.status, views.preview) {
    const ToolParts parts{parts_, wells_, selection_, views.grid, views.application};
    for (const ToolRow& row : ToolTable())
        gridTools_[row.id] = row.make(parts);
    history_.PushUndoSnapshot();
    steps_.Built();
}

void Editor::ResetDocument() {
    EndGesture();
    const EditSteps::Step step(steps_);
    selection_.Forget();
    document_.Reset();
    ShowTitle();
    tools_.SelectTool(ToolId::Pencil);
    wells_.ClearTransparent();
    wells_.ResetDefaultColors();
    palette_.SetChkPal(false);
    palette_.DrawPalette(PaletteReload::Yes);
    canvas_.ShowEmptyIcon();
    history_.ClearUndoHistory();
    history_.PushUndoSnapshot();
}

void Editor::ReadIconIntoDocument(const formats::IconImage& icon) {
    EditIcon(Leaves::OldestEntry).Planes() =
        gdi::Stretched(icon.planes, gdi::kIconSize, gdi::kIconSize);
}

void Editor::PicMain_MouseDown(Button button, int x, int y) {
    if (button == Button::None) return;
    if (gestureButton_ != Button::None) {
        if (button != gestureButton_) return;
        EndGesture();
    }
    gestureButton_ = button;
    press_ = {x, y};
    // A marquee begins at a grid line.
    if (tools_.CurrentTool() == ToolId::Selection && button == Button::Left) {
        document::SnapToNearestLine(press_.x, press_.y);
    }
    gestureTool_ = gridTools_.at(tools_.CurrentTool()).get();
    ShowReadout(x, y);
    canvas_.SetPenColor(wells_.PenColor(button));
    gestureTool_->Press(button, x, y);
}

void Editor::PicMain_MouseMove(HeldButtons held, int x, int y) {
    // Where the button came up nobody saw.
    if (gestureButton_ != Button::None && !held.Has(gestureButton_)) EndGesture();
    ShowReadout(x, y);
    if (gestureButton_ == Button::None || !held.IsOnly(gestureButton_)) return;
    gestureTool_->Move(gestureButton_, x, y);
}

void Editor::PicMain_MouseUp(Button button, int x, int y) {
    if (button == Button::None || button != gestureButton_) return;
    // Where a button comes up the pointer has been before.
    if (x != pointer_.x || y != pointer_.y) {
        PicMain_MouseMove({button == Button::Left, button == Button::Right}, x, y);
    }
    if (ReleaseTool(button, x, y) == Outcome::OpenPopup) grid_.ShowEditingPopup();
}

void Editor::EndGesture() {
    // The button is still held: a pop-up would come unasked.
    if (gestureButton_ != Button::None) ReleaseTool(gestureButton_, pointer_.x, pointer_.y);
}

Outcome Editor::ReleaseTool(Button button, int x, int y) {
    gestureButton_ = Button::None;
    const Outcome outcome = gestureTool_->Release(button, x, y);
    if (outcome == Outcome::HandBack) tools_.RestoreLastDrawingTool();
    // What lies under the pointer may have changed.
    ShowReadout(pointer_.x, pointer_.y);
    return outcome;
}

void Editor::PopUndoSnapshot() {
    EndGesture();
    const EditSteps::Step step(steps_);
    selection_.DropSelection();
    ShowStep(history_.PopUndoSnapshot());
}

void Editor::PopRedoSnapshot() {
    EndGesture();
    const EditSteps::Step step(steps_);
    selection_.DropSelection();
    ShowStep(history_.PopRedoSnapshot());
}

void Editor::ShowStep(const PackedPicture* picture) {
    if (picture != nullptr) Unpack(*picture, EditIcon(Leaves::NoEntry).Planes());
}

bool Editor::CanUndo() {
    if (selection_.SelectionFloating()) return true;
    // What a gesture has changed so far is no entry of its own.
    return gestureButton_ == Button::None ? history_.CanUndo() : history_.UndoCount() > 1;
}

gdi::IconPlanes Editor::Composited() const {
    gdi::IconPlanes icon = document_.Planes();
    if (selection_.SelectionFloating()) selection_.CompositeOver(icon);
    return icon;
}

void Editor::SelectAll() {
    EndGesture();
    tools_.SelectTool(ToolId::Selection);
    selection_.MarkAll();
}

void Editor::FloatSelection(gdi::IconPlanes planes) {
    EndGesture();
    tools_.SelectTool(ToolId::Selection);
    selection_.Float(std::move(planes));
}

void Editor::SetWindowColor(gdi::COLORREF color) {
    canvas_.SetWindowColor(color);
    tools_.SetWindowColor(color);
}

void Editor::ShowTitle() {
    window_.SetTitle(i18n::WindowTitle(document_.FileTitle));
}

void Editor::ShowReadout(int x, int y) {
    pointer_ = {x, y};
    if (tools_.CurrentTool() == ToolId::Selection) selection_.UpdateMoveCursor(x, y);
    readout_.Show(tools_.CurrentTool(), pointer_,
                  IsSizing() ? std::optional(press_) : std::nullopt);
}

// A move never changes the selection's size.
bool Editor::IsSizing() const {
    const bool moving = tools_.CurrentTool() == ToolId::Selection &&
                        gestureButton_ == Button::Left && selection_.HasMoveCursor();
    return gestureButton_ != Button::None && !moving;
}

}  // namespace kestrel::editing
