#include "windows/widgets/ToolBar.h"

#include <qdrawutil.h>

#include <QKeyEvent>
#include <QPainter>

#include "desktop/Text.h"
#include "windows/widgets/MousePoint.h"
#include "windows/widgets/PictureIcon.h"

namespace kestrel::widgets {

namespace {

// On either side of a button; a line between groups takes those of its two neighbours.
constexpr int kGap = 1;
// Leaves room for twice the pictures on screens of one and a half device pixels.
constexpr int kMargin = 3;
// Of the lines between groups, above and below.
constexpr int kLineMargin = 4;

// The style's own sign of the keyboard is lost on dark desktops.
class ToolBarButton : public QToolButton {
  public:
    using QToolButton::QToolButton;

  protected:
    void paintEvent(QPaintEvent* event) override {
        QToolButton::paintEvent(event);
        if (!hasFocus()) return;
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            animateClick();
        } else {
            QToolButton::keyPressEvent(event);
        }
    }
};

}  // namespace

ToolBar::ToolBar(const controls::ImageList& pictures, QSize buttonSize, QWidget* parent)
    : QWidget(parent), pictures_(pictures), buttonSize_(buttonSize) {
    setMouseTracking(true);
}

void ToolBar::AddButton(std::string_view key, int picture) {
    auto* button = new ToolBarButton(this);
    const QRect place(QPoint(ButtonCount() * ButtonWidth(), 0), buttonSize_);
    button->setGeometry(place.adjusted(kGap, 0, -kGap, 0));
    button->setIcon(PictureIcon(pictures_, picture));
    button->setIconSize(buttonSize_.shrunkBy(QMargins(kMargin, kMargin, kMargin, kMargin)));
    button->setAutoRaise(true);
    // A click leaves the keyboard where it is.
    button->setFocusPolicy(Qt::TabFocus);
    button->setMouseTracking(true);
    button->installEventFilter(this);
    const auto entry = buttons_.emplace(key, button).first;
    connect(button, &QToolButton::clicked, this, [this, &name = entry->first] {
        if (onClick) onClick(name);
    });
    resize(ButtonCount() * ButtonWidth(), buttonSize_.height());
}

void ToolBar::SetToolTip(std::string_view key, std::string_view text) const {
    QToolButton* button = Button(key);
    if (button == nullptr) return;
    button->setToolTip(desktop::ToText(text));
    button->setAccessibleName(desktop::ToText(text));
}

void ToolBar::SetEnabled(std::string_view key, bool enabled) const {
    if (QToolButton* button = Button(key); button != nullptr) button->setEnabled(enabled);
}

QToolButton* ToolBar::Button(std::string_view key) const {
    const auto found = buttons_.find(key);
    return found == buttons_.end() ? nullptr : found->second;
}

bool ToolBar::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::MouseMove && onMouseMove) {
        const QPoint inButton = UnitOf(*static_cast<QMouseEvent*>(event));
        const QPoint point = static_cast<QToolButton*>(object)->mapToParent(inButton);
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
