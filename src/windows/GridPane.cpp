#include <QCursor>
#include <QKeyEvent>
#include <QPixmap>
#include <algorithm>

#include "desktop/Pictures.h"
#include "i18n/Captions.h"
#include "platform/gdi/PixelArt.h"
#include "resources/Cursors.h"
#include "windows/FrmIcoEd.h"
#include "windows/FrmMouseButtons.h"

namespace kestrel::windows {

namespace {

using editing::GridCursor;
using editing::StatusPanel;

QCursor ReadCursor(std::string_view art, int hotX, int hotY) {
    const gdi::Surface mask = gdi::ReadPixelArt(art, {{'.', gdi::kWhite}}, gdi::kBlack);
    const gdi::Surface color =
        gdi::ReadPixelArt(art, {{'k', gdi::kBlack}, {'w', gdi::kWhite}}, gdi::kBlack);
    return QCursor(QPixmap::fromImage(desktop::ToImage(mask, color)), hotX, hotY);
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

void FrmIcoEd::ConnectGrid() {
    picMain_->onMouseDown = [this](Qt::MouseButton button, QPoint at) {
        editor_.PicMain_MouseDown(ToButton(button), at.x(), at.y());
    };
    picMain_->onMouseMove = [this](Qt::MouseButtons held, QPoint at) {
        editor_.PicMain_MouseMove(ToHeldButtons(held), at.x(), at.y());
    };
    picMain_->onMouseUp = [this](Qt::MouseButton button, QPoint at) {
        editor_.PicMain_MouseUp(ToButton(button), at.x(), at.y());
    };
    picIcon_->onMouseMove = [this](Qt::MouseButtons /*held*/, QPoint /*at*/) {
        SetStatusPanel(StatusPanel::Hint, i18n::kActualSize.Now());
    };
}

// While the editor is being built there is no widget yet.
void FrmIcoEd::RepaintGrid(gdi::Rect area) {
    if (picMain_ != nullptr) picMain_->Repaint(area);
}

void FrmIcoEd::RepaintPreview(gdi::Rect area) {
    if (picIcon_ != nullptr) picIcon_->Repaint(area);
}

void FrmIcoEd::SetGridCursor(GridCursor cursor) {
    picMain_->setCursor(ToCursor(cursor));
}

void FrmIcoEd::SetStatusPanel(StatusPanel panel, std::string_view text) {
    statusBar_->SetText(static_cast<int>(panel), text);
}

std::string FrmIcoEd::StatusText(StatusPanel panel) const {
    return statusBar_->Text(static_cast<int>(panel));
}

void FrmIcoEd::ClearStatusPanels() {
    for (const StatusPanel panel :
         {StatusPanel::Hint, StatusPanel::Pixel, StatusPanel::Cell, StatusPanel::DragSize}) {
        SetStatusPanel(panel, {});
    }
}

void FrmIcoEd::mouseMoveEvent(QMouseEvent* /*event*/) {
    ClearStatusPanels();
}

// On the window's own background it puts the selection down. Controls hand on what they do not use.
void FrmIcoEd::mouseReleaseEvent(QMouseEvent* event) {
    if (!rect().contains(event->pos()) || childAt(event->pos()) != nullptr) return;
    RunCommand([this] { editor_.Selected().DropSelection(); });
}

// The arrow keys; false for any other key.
bool FrmIcoEd::MoveSelectionByKey(const QKeyEvent& event) {
    constexpr struct {
        Qt::Key key;
        int columns;
        int rows;
    } kArrows[] = {
        {Qt::Key_Left, -1, 0}, {Qt::Key_Right, 1, 0}, {Qt::Key_Up, 0, -1}, {Qt::Key_Down, 0, 1}};
    const auto* const arrow = std::find_if(std::begin(kArrows), std::end(kArrows),
                                           [&](const auto& a) { return a.key == event.key(); });
    const bool modified = (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier;
    // On the toolbar they go from button to button.
    if (arrow == std::end(kArrows) || modified || !hasFocus()) return false;
    RunCommand([&] { editor_.Selected().MoveBy(arrow->columns, arrow->rows); });
    return true;
}

}  // namespace kestrel::windows
