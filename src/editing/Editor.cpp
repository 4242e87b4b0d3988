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
    window_.SetTitle(i18n::WindowTitle(document_.FileTitle));
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
        PicMain_MouseLost();
    }
    pointerX_ = x;
    pointerY_ = y;
    gestureTool_ = CurrentGridTool();
    if (gestureTool_ == nullptr) return;
    gestureButton_ = button;
    canvas_.SetPenColor(wells_.PenColor(button));
    gestureTool_->Press(button, x, y);
}

void Editor::PicMain_MouseMove(Button held, int x, int y) {
    readout_.Show(tools_.CurrentTool(), x, y);
    pointerX_ = x;
    pointerY_ = y;
    if (gestureTool_ != nullptr && held == gestureButton_) gestureTool_->Move(held, x, y);
}

void Editor::PicMain_MouseUp(Button button, int x, int y) {
    if (gestureTool_ == nullptr || button != gestureButton_) return;
    gestureTool_->Release(button, x, y);
    RecordGesture();
}

void Editor::PicMain_MouseLost() {
    PicMain_MouseUp(gestureButton_, pointerX_, pointerY_);
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
