#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/system/FileSystem.h"
#include "platform/system/Registry.h"
#include "services/MessageBoxes.h"
#include "services/Shell.h"

namespace kestrel::tools {

// Starts the program that shows what the computer is made of.
class SystemInformation {
  public:
    SystemInformation(system::Registry& registry, system::FileSystem& files, services::Shell& shell,
                      services::MessageBoxes& boxes)
        : registry_(registry), files_(files), shell_(shell), boxes_(boxes) {}

    // The one that the registry names or else, of those that desktops bring, the first that is
    // installed. Says so where there is none.
    void Start();

  private:
    std::optional<std::string> ReadValue(std::string_view key, std::string_view name);
    bool StartAny();

    system::Registry& registry_;
    system::FileSystem& files_;
    services::Shell& shell_;
    services::MessageBoxes& boxes_;
};

}  // namespace kestrel::tools
