#include "windows/GridPane.h"

#include <QCursor>
#include <QPixmap>
#include <algorithm>
#include <utility>

#include "desktop/Pictures.h"
#include "desktop/Text.h"
#include "document/GridCoordinates.h"
#include "i18n/Speech.h"
#include "platform/gdi/PixelArt.h"
#include "resources/Cursors.h"
#include "windows/FrmMouseButtons.h"
#include "windows/widgets/AccessibleCells.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

using editing::GridCursor;

constexpr int kGuardAfterOpen = 250;  // milliseconds

// With the line that closes the grid.
constexpr widgets::CellLayout kGridCells{gdi::kIconSize, gdi::kIconSize,
                                         QSize(document::kCellSize, document::kCellSize), 1,
                                         widgets::MarkGround::AnyColor};

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

QPoint CellAt(QPoint point) {
    const auto cell = [](int v) { return std::clamp(document::CellOf(v), 0, gdi::kIconSize - 1); };
    return {cell(point.x()), cell(point.y())};
}

QString NameIn(const gdi::IconPlanes& seen, QPoint cell) {
    const auto [x, y] = std::pair(cell.x(), cell.y());
    const std::string color = i18n::ColorName(seen.image.GetPixel(x, y), seen.IsTransparent(x, y));
    return QString::fromStdString(i18n::PixelName(x, y, color));
}

QString NameOf(editing::Editor& editor, QPoint cell) {
    return editor.Selected().SelectionFloating() ? NameIn(editor.Composited(), cell)
                                                 : NameIn(editor.Document().Planes(), cell);
}

}  // namespace

GridPane::GridPane(QWidget* parent) : QWidget(parent), picMain_(kGridCells, this) {
    setMouseTracking(true);
    constexpr std::string_view kLineAndCell = "|.........";
    picMain_.DivideBy({kLineAndCell, kLineAndCell});
    picMain_.setObjectName("PicMain");
    picMain_.setFocusPolicy(Qt::StrongFocus);
    picMain_.move(widgets::kEdgeDistance, widgets::kEdgeDistance);
    tmr_.setInterval(kGuardAfterOpen);
    tmr_.setSingleShot(true);
    tmr_.callOnTimeout(this, [this] { EnableGrid(true); });
}

void GridPane::Show(editing::Editor& editor) {
    picMain_.Show(editor.Views().PicMain);
    setFixedSize(widgets::WithEdge(picMain_.size()));
    TakeMouse(editor);
    TakeKeys(editor);
}

void GridPane::TakeMouse(editing::Editor& editor) {
    picMain_.onMouseDown = [this, &editor](Qt::MouseButton button, QPoint at) {
        // The keys go on from here.
        const QPoint cell = CellAt(at);
        picMain_.PutCell(cell);
        cursor_->Put({cell.x(), cell.y()});
        editor.PicMain_MouseDown(ToButton(button), at.x(), at.y());
    };
    picMain_.onMouseMove = [this, &editor](Qt::MouseButtons held, QPoint at) {
        // A pointer that is only pushed must not end what a key drags.
        if (cursor_->IsPressed()) return;
        editor.PicMain_MouseMove(ToHeldButtons(held), at.x(), at.y());
    };
    picMain_.onMouseUp = [&editor](Qt::MouseButton button, QPoint at) {
        editor.PicMain_MouseUp(ToButton(button), at.x(), at.y());
    };
}

// A selection has the arrow keys to itself.
void GridPane::TakeKeys(editing::Editor& editor) {
    cursor_.emplace(editor);
    picMain_.mayMove = [&editor] { return !editor.Selected().Exists(); };
    picMain_.onCell = [this](QPoint cell) {
        said_.clear();
        cursor_->MoveTo({cell.x(), cell.y()});
    };
    picMain_.onKeyDown = [this](Qt::MouseButton button) {
        said_.clear();
        cursor_->Press(ToButton(button));
    };
    picMain_.onKeyUp = [this](Qt::MouseButton /*button*/) { cursor_->Release(); };
    picMain_.nameOf = [this, &editor](QPoint cell) {
        return cell == picMain_.Cell() ? said_ + NameOf(editor, cell) : NameOf(editor, cell);
    };
}

void GridPane::FollowPointer() {
    said_.clear();
    if (picMain_.ShowsMark()) {
        cursor_->MoveTo(cursor_->Cell());
    } else if (picMain_.underMouse()) {
        picMain_.onMouseMove(Qt::NoButton, picMain_.PointerAt());
    }
    widgets::TellAccessibleCells(picMain_);
}

// Screen readers read out what has the keyboard anew, and nothing else unasked.
void GridPane::Say(std::string_view text) {
    said_ = desktop::ToText(text) + QStringLiteral("; ");
    widgets::TellAccessibleFocus(picMain_);
}

QPoint GridPane::PopupPoint() const {
    if (picMain_.ShowsMark())
        return picMain_.mapToGlobal(picMain_.PlaceOf(picMain_.Cell()).bottomRight());
    return picMain_.underMouse() ? QCursor::pos() : mapToGlobal(rect().center());
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
