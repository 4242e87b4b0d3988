#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace kestrel::system {

inline constexpr char32_t kPastLastCharacter = 0x110000;

// Takes the first character off a UTF-8 text that is not empty. A byte that is no UTF-8 counts as a
// character of its own: its value past the last character.
char32_t TakeCharacter(std::string_view& text);

std::size_t CountCharacters(std::string_view text);

// The first `count` characters of a text, or all that it has.
std::string_view FirstCharacters(std::string_view text, std::size_t count);

// The text as signs that a terminal only shows. A backslash is doubled, a character that controls
// or that turns the direction of the text is written "\n", "\x1b" or "\u202e", a byte that is no
// UTF-8 "\xff".
std::string Printable(std::string_view text);

// A letter in lower or upper case whatever the locale; what is no ASCII letter stays.
template <class Letter>
constexpr Letter LowerAscii(Letter letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<Letter>(letter + ('a' - 'A')) : letter;
}
template <class Letter>
constexpr Letter UpperAscii(Letter letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<Letter>(letter - ('a' - 'A')) : letter;
}

// The text without the blanks at both ends.
constexpr std::string_view Trimmed(std::string_view text, std::string_view blanks = " ") {
    const std::size_t first = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

}  // namespace kestrel::system
