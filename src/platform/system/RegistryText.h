#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace kestrel::system {

struct RegistryValue {
    std::string name;
    std::string text;
};

struct RegistryKey {
    std::string path;  // begins with the name of its root
    std::map<std::u32string, RegistryValue> values;
};

// The keys of a registry, and in each its values, by their names in folded letter case.
using RegistryKeys = std::map<std::u32string, RegistryKey>;

inline constexpr std::size_t kMaxRegistryText = 1U << 20U;

// Reads what FormatRegistry() writes:
//
//     KestrelIconEditor registry 1
//     [CurrentUser\\Software\\Vendor]
//     "name"="value"
//
// In keys, names and values a backslash stands before itself, a quote and a closing bracket, and in
// \n, \r and \0 for a line feed, a carriage return and a zero byte. Nothing for a text with even
// one line that this does not explain, since writing the keys back would lose that line.
std::optional<RegistryKeys> ParseRegistry(std::string_view text);
std::string FormatRegistry(const RegistryKeys& keys);

}  // namespace kestrel::system
