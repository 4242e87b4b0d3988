#pragma once

#include "services/Application.h"

namespace kestrel::desktop {

// The application object of the desktop library.
class QtApplication : public services::Application {
  public:
    void DoEvents() override;
    void ShowHourglass(bool shown) override;
    void Beep() override;
    void Quit() override;
};

}  // namespace kestrel::desktop
