#include "windows/widgets/IconGridView.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "desktop/Pictures.h"
#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "i18n/Messages.h"
#include "windows/widgets/AccessibleRole.h"
#include "windows/widgets/DevicePixels.h"
#include "windows/widgets/MousePoint.h"

namespace kestrel::widgets {

namespace {

using tools::IconGrid;

QRect ToRect(gdi::Rect area) {
    return {area.left, area.top, area.width, area.height};
}

// Of the row at this height; a row outside has none.
int FirstIconAt(int y) {
    return y / IconGrid::kCellSize * IconGrid::kColumns;
}

}  // namespace

IconGridView::IconGridView(tools::IconExtraction& extraction, QWidget* parent)
    : QWidget(parent), extraction_(extraction) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    SetRole(*this, QAccessible::Graphic);
    ShowFile();
}

void IconGridView::ShowFile() {
    setFixedSize(IconGrid::kWidth, extraction_.Grid().Height());
    boxed_ = extraction_.SelectedIndex();
    TellSelection();
    update();
}

void IconGridView::ShowSelection() {
    UpdateBox(std::exchange(boxed_, extraction_.SelectedIndex()));
    UpdateBox(boxed_);
    TellSelection();
}

// A changed name is an event, which screen readers speak while the grid has the focus.
void IconGridView::TellSelection() {
    setAccessibleName(extraction_.HasIcons() ? QString::fromStdString(i18n::IconOf(
                                                   boxed_ + 1, extraction_.Grid().Count()))
                                             : desktop::ToText(i18n::kIconsName.Now()));
}

void IconGridView::UpdateBox(int icon) {
    update(ToRect(extraction_.Grid().BoxOf(icon)));
}

void IconGridView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    const IconGrid& grid = extraction_.Grid();
    const int end =
        std::min(FirstIconAt(event->rect().bottom()) + IconGrid::kColumns, grid.Count());
    for (int icon = FirstIconAt(event->rect().top()); icon < end; ++icon) {
        const QRect picture = ToRect(grid.PictureOf(icon));
        if (event->region().intersects(picture))
            DrawSharp(painter, picture,
                      desktop::ToImage(extraction_.PictureOf(icon),
                                       {0, 0, picture.width(), picture.height()}));
    }
    if (!extraction_.HasIcons()) return;
    DrawOutline(painter, ToRect(grid.BoxOf(boxed_)), Qt::black);
}

void IconGridView::mousePressEvent(QMouseEvent* /*event*/) {
    doubleClicked_ = false;
}

void IconGridView::mouseDoubleClickEvent(QMouseEvent* event) {
    doubleClicked_ = event->button() == Qt::LeftButton;
}

void IconGridView::mouseReleaseEvent(QMouseEvent* event) {
    const bool second = std::exchange(doubleClicked_, false);
    const QPoint at = UnitOf(*event);
    if (onMouseUp && visibleRegion().contains(at)) onMouseUp(at, second);
}

}  // namespace kestrel::widgets
