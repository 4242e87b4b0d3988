#pragma once

#include <QScrollBar>

namespace kestrel::widgets {

// A scroll bar that sets a value: it takes the keyboard focus and shows it. A vertical one has its
// maximum at the top.
class ValueBar : public QScrollBar {
  public:
    explicit ValueBar(Qt::Orientation orientation);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void TurnOver(int action);
};

}  // namespace kestrel::widgets
