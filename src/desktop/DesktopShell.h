#pragma once

#include "services/Shell.h"

namespace kestrel::desktop {

// The shell of a freedesktop.org desktop. Programs it starts belong to nobody here: they outlive
// this process, and none is left behind as a zombie.
class DesktopShell : public services::Shell {
  public:
    Result<void> RunProgram(const std::string& program,
                            const std::vector<std::string>& arguments) override;
    // Through xdg-open, else gio. A file that does not exist fails with ENOENT, an opener
    // that soon gives up with ECHILD; what a slower one makes of its target is not known.
    Result<void> Open(const std::string& target) override;
};

}  // namespace kestrel::desktop
