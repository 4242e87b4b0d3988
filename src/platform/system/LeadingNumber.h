#pragma once

#include <charconv>
#include <limits>
#include <optional>
#include <string_view>

namespace kestrel::system {

// The whole number that a text begins with, the nearest one where it fits no int; none where it
// begins with anything else.
inline std::optional<int> LeadingNumber(std::string_view text) {
    using Limits = std::numeric_limits<int>;
    int number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec == std::errc::invalid_argument) return std::nullopt;
    if (read.ec != std::errc::result_out_of_range) return number;
    return text.starts_with('-') ? Limits::min() : Limits::max();
}

}  // namespace kestrel::system
