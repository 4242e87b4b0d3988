#pragma once

#include <algorithm>
#include <string_view>

namespace kestrel::system {

// Whether a byte of a UTF-8 text begins a character.
constexpr bool StartsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

constexpr std::size_t CountCharacters(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), StartsCharacter));
}

// The text without the blanks at both ends.
constexpr std::string_view Trimmed(std::string_view text, std::string_view blanks = " ") {
    const std::size_t first = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

}  // namespace kestrel::system
