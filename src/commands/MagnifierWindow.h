#pragma once

namespace kestrel::commands {

// The magnifier, a window beside the editor's that stays until the user closes it.
class MagnifierWindow {
  public:
    virtual ~MagnifierWindow() = default;
    // Opens it, or brings the one that is open to the front.
    virtual void ShowMagnifier() = 0;
    // While it rests it does not look at the screen and claims no place above other windows.
    virtual void Rest(bool resting) = 0;
};

}  // namespace kestrel::commands
