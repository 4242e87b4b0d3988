#pragma once

namespace kestrel::services {

// The loop that hands events to the windows of the program.
class MessageLoop {
  public:
    virtual ~MessageLoop() = default;
    // Lets pending paint and window events run, but no input.
    virtual void DoEvents() = 0;
};

}  // namespace kestrel::services
