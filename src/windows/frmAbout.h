#pragma once

#include <QDialog>

#include "tools/SystemInformation.h"

namespace kestrel::windows {

// What the program is, which version, and under which licence. Modal; closes with OK or Escape.
class frmAbout : public QDialog {
  public:
    // `information` outlives the dialog.
    frmAbout(QWidget* owner, tools::SystemInformation& information);

  private:
    QLayout* NewTexts();
    QWidget* NewButtons(tools::SystemInformation& information);
};

}  // namespace kestrel::windows
