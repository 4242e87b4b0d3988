#pragma once

#include <QFrame>

namespace kestrel::widgets {

// A sunken edge around a control, one unit wide, that shows the keyboard while the control has it.
class FocusEdge : public QFrame {
  public:
    // Takes the control as its child.
    FocusEdge(QWidget* control, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QWidget* control_;
};

}  // namespace kestrel::widgets
