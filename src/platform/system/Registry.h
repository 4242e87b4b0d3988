#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/Result.h"

namespace kestrel::system {

// A value and its text; nothing for a value that is not to be.
struct NamedValue {
    std::string name;
    std::optional<std::string> text;
};

enum class RegistryRoot { ClassesRoot, CurrentUser, LocalMachine };

// The registry: keys ("Software\Vendor\Product", matched without regard to letter case) that hold
// named string values; the empty name is a key's default value.
class Registry {
  public:
    virtual ~Registry() = default;

    // Nothing when key or value is missing or the registry cannot be read.
    virtual std::optional<std::string> ReadValue(RegistryRoot root, std::string_view key,
                                                 std::string_view name) = 0;
    virtual bool KeyExists(RegistryRoot root, std::string_view key) = 0;
    // Creates the key as needed.
    virtual Result<void> WriteValue(RegistryRoot root, std::string_view key, std::string_view name,
                                    std::string_view value) = 0;
    // Writes and deletes values of a key in one change.
    virtual Result<void> ChangeValues(RegistryRoot root, std::string_view key,
                                      std::span<const NamedValue> values) = 0;
};

}  // namespace kestrel::system
