#pragma once

#include <QWidget>

#include "platform/dialogs/ColorDialog.h"

namespace kestrel::qt {

// The colour dialog of the desktop library. It keeps the user's custom colours.
class QtColorDialog : public dialogs::ColorDialog {
  public:
    Result<gdi::COLORREF> ShowColor(gdi::COLORREF current) override;

    // Dialogs are modal to this window from now on.
    void SetOwner(QWidget* owner) { owner_ = owner; }

  private:
    QWidget* owner_ = nullptr;
};

}  // namespace kestrel::qt
