#pragma once

#include <string>
#include <vector>

#include "platform/Result.h"

namespace kestrel::services {

// Starts other programs, which go on by themselves.
class Shell {
  public:
    virtual ~Shell() = default;

    // Starts a program, found on PATH when its name has no separator. Fails with the system's
    // reason when it cannot be started.
    virtual Result<void> RunProgram(const std::string& program,
                                    const std::vector<std::string>& arguments) = 0;
    // Opens an address of the web with the desktop's opener. Waits up to 0.7 s to learn that the
    // opener gave up, as it does where no program is there for the address.
    virtual Result<void> Open(const std::string& address) = 0;
};

}  // namespace kestrel::services
