#pragma once

#include <QLineEdit>

namespace kestrel::widgets {

// A box for a whole number: of the keys that have a character it takes the digits and Enter alone.
class DigitBox : public QLineEdit {
  public:
    enum class Backspace { Discarded, Taken };

    explicit DigitBox(Backspace backspace);

    // As wide as its digits.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool Takes(const QKeyEvent& event) const;

    Backspace backspace_;
};

}  // namespace kestrel::widgets
