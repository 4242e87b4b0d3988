#include "editing/Editor.h"

#include "i18n/Messages.h"

namespace kestrel::editing {

Editor::Editor(EditorWindow& window, gdi::COLORREF windowColor)
    : window_(window),
      canvas_(document_, window, windowColor),
      wells_(window),
      tools_(window, windowColor),
      history_(document_),
      readout_(document_, window) {
    const ToolParts parts{document_, canvas_, wells_, history_, window};
    for (const ToolRow& row : ToolTable()) {
        if (row.make != nullptr) gridTools_[row.id] = row.make(parts);
    }
    history_.PushUndoSnapshot();
}

void Editor::ResetDocument() {
    gestureButton_ = Button::None;
    document_.Reset();
    ShowTitle();
    tools_.SelectTool(ToolId::Pencil);
    wells_.ClearTransparent();
    wells_.ResetDefaultColors();
    canvas_.ShowEmptyIcon();
    history_.ClearUndoHistory();
    history_.PushUndoSnapshot();
}

void Editor::ShowOpenedIcon(const icons::IconImage& icon) {
    canvas_.ReadIconIntoDocument(icon);
    history_.ClearUndoHistory();
    history_.PushUndoSnapshot();
}

void Editor::PicMain_MouseDown(Button button, int x, int y) {
    if (button == Button::None) return;
    if (gestureButton_ != Button::None) {
        if (button != gestureButton_) return;
        EndGesture();
    }
    gestureButton_ = button;
    press_ = {x, y};
    const auto tool = gridTools_.find(tools_.CurrentTool());
    gestureTool_ = tool == gridTools_.end() ? nullptr : tool->second.get();
    ShowReadout(x, y);
    canvas_.SetPenColor(wells_.PenColor(button));
    if (gestureTool_ != nullptr) gestureTool_->Press(button, x, y);
}

void Editor::PicMain_MouseMove(HeldButtons held, int x, int y) {
    // Where the button came up nobody saw.
    if (gestureButton_ != Button::None && !held.Has(gestureButton_)) EndGesture();
    ShowReadout(x, y);
    if (gestureButton_ == Button::None || !held.IsOnly(gestureButton_)) return;
    if (gestureTool_ != nullptr) gestureTool_->Move(gestureButton_, x, y);
}

void Editor::PicMain_MouseUp(Button button, int x, int y) {
    if (button == Button::None || button != gestureButton_) return;
    // Where a button comes up the pointer has been before.
    if (x != pointer_.x || y != pointer_.y) {
        PicMain_MouseMove({button == Button::Left, button == Button::Right}, x, y);
    }
    gestureButton_ = Button::None;
    if (gestureTool_ == nullptr) return;
    const Outcome outcome = gestureTool_->Release(button, x, y);
    if (outcome == Outcome::Changed) RecordChange();
    if (outcome == Outcome::HandBack) tools_.RestoreLastDrawingTool();
}

void Editor::EndGesture() {
    PicMain_MouseUp(gestureButton_, pointer_.x, pointer_.y);
}

void Editor::PopUndoSnapshot() {
    EndGesture();
    if (history_.PopUndoSnapshot()) canvas_.RedrawAll();
}

void Editor::PopRedoSnapshot() {
    EndGesture();
    if (history_.PopRedoSnapshot()) canvas_.RedrawAll();
}

void Editor::SetWindowColor(gdi::COLORREF color) {
    canvas_.SetWindowColor(color);
    tools_.SetWindowColor(color);
}

void Editor::ShowTitle() {
    window_.SetTitle(i18n::WindowTitle(document_.FileTitle));
}

void Editor::RefreshReadout() {
    ShowReadout(pointer_.x, pointer_.y);
}

void Editor::ShowReadout(int x, int y) {
    pointer_ = {x, y};
    const bool dragging = gestureButton_ != Button::None;
    readout_.Show(tools_.CurrentTool(), pointer_, dragging ? std::optional(press_) : std::nullopt);
}

void Editor::RecordChange() {
    history_.PushUndoSnapshot();
    document_.Modified = true;
    window_.RefreshEditCommands();
    // What lies under the pointer has changed.
    RefreshReadout();
}

}  // namespace kestrel::editing
