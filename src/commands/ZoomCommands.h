#pragma once

#include "commands/MagnifierWindow.h"
#include "services/MessageBoxes.h"
#include "services/Screen.h"

namespace kestrel::commands {

// The command that enlarges the screen.
class ZoomCommands {
  public:
    ZoomCommands(services::Screen& screen, services::MessageBoxes& boxes,
                 MagnifierWindow& magnifier)
        : screen_(screen), boxes_(boxes), magnifier_(magnifier) {}

    // Where programs may not see the screen, a message says so.
    void ShowMagnifier();

  private:
    services::Screen& screen_;
    services::MessageBoxes& boxes_;
    MagnifierWindow& magnifier_;
};

}  // namespace kestrel::commands
