#pragma once

#include <QDialog>
#include <optional>

#include "windows/widgets/DigitBox.h"

namespace kestrel::windows {

// Asks for a gamma factor. Modal.
class frmGamma : public QDialog {
  public:
    explicit frmGamma(QWidget* owner);

    // The factor times 100, 0 for an empty box; none when the dialog is closed without OK.
    std::optional<int> Ask();

  private:
    widgets::DigitBox* txtGamma_;
};

}  // namespace kestrel::windows
