#pragma once

#include <QWidget>

#include "services/MessageBoxes.h"

namespace kestrel::desktop {

// Message boxes of the desktop.
class QtMessageBoxes : public services::MessageBoxes {
  public:
    services::Answer Ask(services::BoxIcon icon, services::BoxButtons buttons,
                         services::Answer preset, const std::string& text,
                         const std::string& title) override;

    // Boxes are modal to this window from now on, or to the dialog in front of it.
    void SetOwner(QWidget* owner) { owner_ = owner; }

  private:
    QWidget* owner_ = nullptr;
};

}  // namespace kestrel::desktop
