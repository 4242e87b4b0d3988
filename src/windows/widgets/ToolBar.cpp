#include "windows/widgets/ToolBar.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "desktop/Text.h"
#include "windows/widgets/PictureIcon.h"

namespace kestrel::widgets {

namespace {

// Leaves room for twice the pictures on screens of one and a half device pixels.
constexpr int kMargin = 3;

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
    : QWidget(parent), pictures_(pictures), buttonSize_(buttonSize) {}

void ToolBar::AddButton(std::string_view key, int picture) {
    auto* button = new ToolBarButton(this);
    button->setGeometry(QRect(QPoint(ButtonCount() * ButtonWidth(), 0), buttonSize_));
    button->setIcon(PictureIcon(pictures_, picture));
    button->setIconSize(buttonSize_.shrunkBy(QMargins(kMargin, kMargin, kMargin, kMargin)));
    button->setAutoRaise(true);
    // A click leaves the keyboard where it is.
    button->setFocusPolicy(Qt::TabFocus);
    button->setMouseTracking(true);
    button->installEventFilter(this);
    const auto place = buttons_.emplace(key, button).first;
    connect(button, &QToolButton::clicked, this, [this, &name = place->first] {
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
        const QPoint inButton = static_cast<QMouseEvent*>(event)->position().toPoint();
        const QPoint point = static_cast<QToolButton*>(object)->mapToParent(inButton);
        // With a button held down the pointer may be anywhere.
        if (rect().contains(point)) onMouseMove(point.x());
    }
    return false;
}

void ToolBar::leaveEvent(QEvent* /*event*/) {
    if (onLeave) onLeave();
}

}  // namespace kestrel::widgets
