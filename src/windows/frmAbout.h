#pragma once

#include <QDialog>

namespace kestrel::windows {

// What the program is, which version, and under which licence. Modal; closes with OK or Escape.
class frmAbout : public QDialog {
  public:
    explicit frmAbout(QWidget* owner);

  private:
    QLayout* NewTexts();
    QWidget* NewButtons();
};

}  // namespace kestrel::windows
