#pragma once

#include <QColor>
#include <QIcon>
#include <QWidget>
#include <functional>

#include "windows/widgets/FocusMark.h"

namespace kestrel::widgets {

// A small box that shows a colour or a picture and hands on its mouse events. Where it has the
// keyboard, Space and Return click it, with Shift as the right button would.
class PictureBox : public QWidget {
  public:
    // Always sunken; or flat, raised under the pointer and sunken while pressed.
    enum class Edge { Sunken, Button };

    PictureBox(Edge edge, QWidget* parent);

    // An invalid colour stands for the ground of buttons, a null icon for no picture.
    void Show(const QColor& color, const QIcon& picture);

    // For screen readers, which know it as a button where a click does something.
    void SetName(const QString& name) {
        if (name != accessibleName()) setAccessibleName(name);
    }

    // A button came up over the box that had gone down there, or a key stood for it.
    std::function<void(Qt::MouseButton button)> onMouseUp;
    // The pointer moved over it, or the keyboard has come.
    std::function<void()> onMouseMove;
    // An arrow key, as a step to the right or down.
    std::function<void(QPoint step)> onArrow;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    void SetPressed(bool pressed);

    Edge edge_;
    QColor color_;
    QIcon picture_;
    bool pressed_ = false;
};

}  // namespace kestrel::widgets
