#pragma once

#include "services/MessageLoop.h"

namespace kestrel::app {

// A window that shows that a command takes its time.
class BusyWindow : public desktop::MessageLoop {
  public:
    // The hourglass pointer, and back to the one before.
    virtual void ShowHourglass(bool shown) = 0;
};

}  // namespace kestrel::app
