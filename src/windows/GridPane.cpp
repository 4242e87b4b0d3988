#include "windows/GridPane.h"

#include <QCursor>
#include <QPixmap>

#include "desktop/Pictures.h"
#include "platform/gdi/PixelArt.h"
#include "resources/Cursors.h"
#include "windows/FrmMouseButtons.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

using editing::GridCursor;

constexpr int kGuardAfterOpen = 250;  // milliseconds

QCursor ReadCursor(std::string_view art, int hotX, int hotY) {
    constexpr gdi::ArtInk kInks[] = {{'k', gdi::kBlack}, {'w', gdi::kWhite}};
    return QCursor(QPixmap::fromImage(desktop::ToImage(gdi::ReadIconArt(art, kInks))), hotX, hotY);
}

QCursor ToCursor(GridCursor cursor) {
    using namespace resources;
    switch (cursor) {
        case GridCursor::Cross:
            return Qt::CrossCursor;
        case GridCursor::Move:
            return Qt::SizeAllCursor;
        case GridCursor::Pencil:
            return ReadCursor(kPencilCursor, kPencilHotX, kPencilHotY);
        case GridCursor::Eraser:
            return ReadCursor(kEraserCursor, kEraserHotX, kEraserHotY);
        case GridCursor::Picker:
            return ReadCursor(kPickerCursor, kPickerHotX, kPickerHotY);
        case GridCursor::FloodFill:
            return ReadCursor(kFloodFillCursor, kFloodFillHotX, kFloodFillHotY);
    }
    return Qt::CrossCursor;
}

}  // namespace

GridPane::GridPane(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    constexpr std::string_view kLineAndCell = "|.........";
    picMain_.DivideBy({kLineAndCell, kLineAndCell});
    picMain_.move(widgets::kEdgeDistance, widgets::kEdgeDistance);
    tmr_.setInterval(kGuardAfterOpen);
    tmr_.setSingleShot(true);
    tmr_.callOnTimeout(this, [this] { EnableGrid(true); });
}

void GridPane::Show(editing::Editor& editor) {
    picMain_.Show(editor.Views().PicMain);
    setFixedSize(widgets::WithEdge(picMain_.size()));
    picMain_.onMouseDown = [&editor](Qt::MouseButton button, QPoint at) {
        editor.PicMain_MouseDown(ToButton(button), at.x(), at.y());
    };
    picMain_.onMouseMove = [&editor](Qt::MouseButtons held, QPoint at) {
        editor.PicMain_MouseMove(ToHeldButtons(held), at.x(), at.y());
    };
    picMain_.onMouseUp = [&editor](Qt::MouseButton button, QPoint at) {
        editor.PicMain_MouseUp(ToButton(button), at.x(), at.y());
    };
}

void GridPane::FollowPointer() {
    if (picMain_.underMouse()) picMain_.onMouseMove(Qt::NoButton, picMain_.PointerAt());
}

void GridPane::SetGridCursor(GridCursor cursor) {
    picMain_.setCursor(ToCursor(cursor));
}

void GridPane::ShowEditingPopup() {
    if (onPopup) onPopup();
}

void GridPane::EnableGrid(bool enabled) {
    // A tick that is still due belongs to an earlier Open.
    tmr_.stop();
    // A disabled widget would be painted twice, for nothing.
    picMain_.IgnoreMouse(!enabled);
}

void GridPane::paintEvent(QPaintEvent* /*event*/) {
    widgets::DrawEdgeAround(*this, picMain_.geometry());
}

}  // namespace kestrel::windows
