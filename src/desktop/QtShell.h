#pragma once

#include "services/Shell.h"

namespace kestrel::desktop {

// The shell of a freedesktop.org desktop. Programs that it starts outlive this process.
class QtShell : public services::Shell {
  public:
    Result<void> RunProgram(const std::string& program,
                            const std::vector<std::string>& arguments) override;
    // Through xdg-open or, where that is missing, a browser that the desktop library finds.
    Result<void> Open(const std::string& address) override;
};

}  // namespace kestrel::desktop
