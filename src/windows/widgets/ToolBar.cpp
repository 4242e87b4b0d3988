#include "windows/widgets/ToolBar.h"

#include <qdrawutil.h>

#include <QMouseEvent>
#include <QPainter>

#include "desktop/Text.h"
#include "windows/widgets/AccessibleRole.h"
#include "windows/widgets/MousePoint.h"

namespace kestrel::widgets {

namespace {

// On either side of a button; a line between groups takes those of its two neighbours.
constexpr int kButtonGap = 1;
// Leaves room for twice the pictures on screens of one and a half device pixels.
constexpr int kButtonMargin = 3;
// Of the lines between groups, above and below.
constexpr int kLineMargin = 4;

}  // namespace

ToolBar::ToolBar(const controls::ImageList& pictures, QSize buttonSize, QWidget* parent)
    : QWidget(parent), pictures_(pictures), buttonSize_(buttonSize) {
    setMouseTracking(true);
    SetRole(*this, QAccessible::ToolBar);
}

void ToolBar::AddButton(std::string_view key, int number) {
    const QSize picture =
        buttonSize_.shrunkBy(QMargins(kButtonMargin, kButtonMargin, kButtonMargin, kButtonMargin));
    auto* button = new PictureButton(pictures_, number, picture, this);
    const QRect place(QPoint(ButtonCount() * ButtonWidth(), 0), buttonSize_);
    button->setGeometry(place.adjusted(kButtonGap, 0, -kButtonGap, 0));
    button->setMouseTracking(true);
    button->installEventFilter(this);
    const auto entry = buttons_.emplace(key, button).first;
    connect(button, &QToolButton::clicked, this, [this, &name = entry->first] {
        if (onClick) onClick(name);
    });
    resize(ButtonCount() * ButtonWidth(), buttonSize_.height());
}

void ToolBar::SetToolTip(std::string_view key, std::string_view text) const {
    if (PictureButton* button = Button(key); button != nullptr) {
        button->SetName(desktop::ToText(text));
    }
}

void ToolBar::SetEnabled(std::string_view key, bool enabled) const {
    if (PictureButton* button = Button(key); button != nullptr) button->setEnabled(enabled);
}

PictureButton* ToolBar::Button(std::string_view key) const {
    const auto found = buttons_.find(key);
    return found == buttons_.end() ? nullptr : found->second;
}

bool ToolBar::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::MouseMove && onMouseMove) {
        const QPoint inButton = UnitOf(*static_cast<QMouseEvent*>(event));
        const QPoint point = static_cast<QWidget*>(object)->mapToParent(inButton);
        // With a button held down the pointer may be anywhere.
        if (rect().contains(point)) onMouseMove(point.x());
    }
    return false;
}

void ToolBar::mouseMoveEvent(QMouseEvent* event) {
    if (onMouseMove) onMouseMove(UnitOf(*event).x());
}

void ToolBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    for (const int before : groups_) {
        const int x = before * ButtonWidth();
        qDrawShadeLine(&painter, x, kLineMargin, x, height() - 1 - kLineMargin, palette());
    }
}

void ToolBar::leaveEvent(QEvent* /*event*/) {
    if (onLeave) onLeave();
}

}  // namespace kestrel::widgets
