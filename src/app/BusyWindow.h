#pragma once

namespace kestrel::app {

// A window that shows that a command takes its time.
class BusyWindow {
  public:
    virtual ~BusyWindow() = default;
    // The hourglass pointer, and back to the one before.
    virtual void ShowHourglass(bool shown) = 0;
    // Lets pending paint and window events run, but no input.
    virtual void ProcessPendingEvents() = 0;
};

}  // namespace kestrel::app
