#pragma once

#include "services/MessageLoop.h"

namespace kestrel::services {

// The running program on its desktop: its events, its pointer and its bell.
class Application : public MessageLoop {
  public:
    // The hourglass pointer, and back to the one before.
    virtual void ShowHourglass(bool shown) = 0;
    virtual void Beep() = 0;
    // Ends it, whatever windows are still open, once what runs has returned.
    virtual void Quit() = 0;
};

}  // namespace kestrel::services
