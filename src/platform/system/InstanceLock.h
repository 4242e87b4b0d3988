#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/system/LockFile.h"

namespace kestrel::system {

// Held while the program runs: at most one per user and display. The lock goes with the process,
// however that ends.
class InstanceLock {
  public:
    // Nothing when another process holds the lock. When no lock can be made at all (no folder to
    // keep it in), the lock counts as taken, so that the program still starts.
    static std::optional<InstanceLock> Take(const std::string& folder, std::string_view program,
                                            std::string_view display);

  private:
    explicit InstanceLock(FileHandle file) : file_(std::move(file)) {}
    FileHandle file_;
};

// The name that tells this session's display from others: the X or Wayland display, without its
// screen number; empty when there is none.
std::string CurrentDisplay();

}  // namespace kestrel::system
