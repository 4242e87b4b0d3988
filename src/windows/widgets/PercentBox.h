#pragma once

#include <QLineEdit>
#include <functional>

namespace kestrel::widgets {

// A box that shows a percentage and, while it has the keyboard, its number alone, all selected.
// Takes digits and control characters.
class PercentBox : public QLineEdit {
  public:
    explicit PercentBox(QWidget* parent);

    // Enter was pressed.
    std::function<void()> onEnter;
    // The keyboard left it.
    std::function<void()> onLeave;
    // A character was refused.
    std::function<void()> onRefuse;

    // As wide as its text.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace kestrel::widgets
