#pragma once

#include "services/MessageLoop.h"

namespace kestrel::commands {

// A window that shows that a command takes its time.
class BusyWindow : public services::MessageLoop {
  public:
    // The hourglass pointer, and back to the one before.
    virtual void ShowHourglass(bool shown) = 0;
};

}  // namespace kestrel::commands
