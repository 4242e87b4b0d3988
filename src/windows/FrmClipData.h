#pragma once

#include <QDialog>
#include <array>
#include <optional>

#include "imaging/PasteFit.h"

class QRadioButton;

namespace kestrel::windows {

// Asks how a picture from the clipboard that is larger than the icon shall be shrunk. Modal.
class FrmClipData : public QDialog {
  public:
    FrmClipData(QWidget* owner, gdi::Size picture);

    // Shows the dialog; none when it is closed without OK.
    std::optional<imaging::PasteFit> Ask();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void LayOutControls();

    QString sizeText_;
    // In the order of PasteFit.
    std::array<QRadioButton*, 2> opt_{};
};

}  // namespace kestrel::windows
