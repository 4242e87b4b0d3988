#include "editing/Editor.h"

#include "i18n/Messages.h"

namespace kestrel::editing {

Editor::Editor(EditorWindow& window, gdi::COLORREF windowColor)
    : window_(window),
      canvas_(document_, window, windowColor),
      tools_(window),
      history_(document_),
      readout_(document_, window),
      pencil_(canvas_, wells_, history_) {
    history_.PushUndoSnapshot();
}

void Editor::ResetDocument() {
    gestureTool_ = nullptr;
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

GridTool* Editor::CurrentGridTool() {
    return tools_.CurrentTool() == ToolId::Pencil ? &pencil_ : nullptr;
}

void Editor::PicMain_MouseDown(Button button, int x, int y) {
    if (button == Button::None) return;
    if (gestureTool_ != nullptr) {
        if (button != gestureButton_) return;
        EndGesture();
    }
    readout_.Show(tools_.CurrentTool(), x, y);
    pointerX_ = x;
    pointerY_ = y;
    gestureTool_ = CurrentGridTool();
    if (gestureTool_ == nullptr) return;
    gestureButton_ = button;
    canvas_.SetPenColor(wells_.PenColor(button));
    gestureTool_->Press(button, x, y);
}

void Editor::PicMain_MouseMove(HeldButtons held, int x, int y) {
    // The button came up where nobody saw it.
    if (gestureTool_ != nullptr && !held.Has(gestureButton_)) EndGesture();
    readout_.Show(tools_.CurrentTool(), x, y);
    pointerX_ = x;
    pointerY_ = y;
    if (gestureTool_ != nullptr && held.IsOnly(gestureButton_)) {
        gestureTool_->Move(gestureButton_, x, y);
    }
}

void Editor::PicMain_MouseUp(Button button, int x, int y) {
    if (gestureTool_ == nullptr || button != gestureButton_) return;
    gestureTool_->Release(button, x, y);
    RecordGesture();
}

void Editor::EndGesture() {
    PicMain_MouseUp(gestureButton_, pointerX_, pointerY_);
}

void Editor::ShowTitle() {
    window_.SetTitle(i18n::WindowTitle(document_.FileTitle));
}

void Editor::RecordGesture() {
    gestureTool_ = nullptr;
    gestureButton_ = Button::None;
    history_.PushUndoSnapshot();
    document_.Modified = true;
    window_.RefreshEditCommands();
    // What lies under the pointer has changed.
    readout_.Show(tools_.CurrentTool(), pointerX_, pointerY_);
}

}  // namespace kestrel::editing
