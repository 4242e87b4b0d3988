#pragma once

#include <QWidget>

#include "services/MessageBoxes.h"

namespace kestrel::qt {

// Message boxes of the desktop.
class QtMessageBoxes : public dialogs::MessageBoxes {
  public:
    dialogs::Answer Show(dialogs::BoxIcon icon, dialogs::BoxButtons buttons,
                         const std::string& text, const std::string& title) override;

    // Boxes are modal to this window from now on.
    void SetOwner(QWidget* owner) { owner_ = owner; }

  private:
    QWidget* owner_ = nullptr;
};

}  // namespace kestrel::qt
