#pragma once

#include <QColor>
#include <QIcon>
#include <QWidget>
#include <functional>

namespace kestrel::widgets {

// A small box that shows a colour or a picture and hands on its mouse events.
class PictureBox : public QWidget {
  public:
    // Always sunken; or flat, raised under the pointer and sunken while pressed.
    enum class Edge { Sunken, Button };

    PictureBox(Edge edge, QWidget* parent);

    // An invalid colour stands for the ground of buttons, a null icon for no picture.
    void Show(const QColor& color, const QIcon& picture);

    // A button came up over the box that had gone down there.
    std::function<void(Qt::MouseButton button)> onMouseUp;
    std::function<void()> onMouseMove;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void SetPressed(bool pressed);

    Edge edge_;
    QColor color_;
    QIcon picture_;
    bool pressed_ = false;
};

}  // namespace kestrel::widgets
