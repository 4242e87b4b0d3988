#include "platform/system/Characters.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cwchar>
#include <locale>
#include <string>
#include <utility>

namespace kestrel::system {

char32_t TakeCharacter(std::string_view& text) {
    if (static_cast<unsigned char>(text[0]) < 0x80) {
        const char32_t ascii = static_cast<unsigned char>(text[0]);
        text.remove_prefix(1);
        return ascii;
    }
    using Utf8 = std::codecvt<char32_t, char8_t, std::mbstate_t>;
    static const Utf8& utf8 = std::use_facet<Utf8>(std::locale::classic());
    const std::string_view longest = text.substr(0, 4);
    const std::u8string bytes(longest.begin(), longest.end());
    const char8_t* next = bytes.data();
    char32_t character = 0;
    char32_t* past = &character;
    std::mbstate_t state{};
    utf8.in(state, next, next + bytes.size(), next, &character, &character + 1, past);
    if (past == &character) {
        character = kPastLastCharacter + bytes[0];
        next = bytes.data() + 1;
    }
    text.remove_prefix(static_cast<std::size_t>(next - bytes.data()));
    return character;
}

std::size_t CountCharacters(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count) {
        TakeCharacter(text);
    }
    return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    std::string_view rest = text;
    for (; count > 0 && !rest.empty(); --count) {
        TakeCharacter(rest);
    }
    return text.substr(0, text.size() - rest.size());
}

namespace {

// Control characters, and those that part lines or turn the direction of the text.
bool IsShown(char32_t character) {
    constexpr std::pair<char32_t, char32_t> kUnseen[] = {
        {0, 0x1F},        {0x7F, 0x9F},     {0x61C, 0x61C},   {0x200E, 0x200F},
        {0x2028, 0x202E}, {0x2066, 0x2069}, {0xFEFF, 0xFEFF}, {kPastLastCharacter, 0xFFFFFFFF}};
    return std::ranges::none_of(kUnseen, [character](const auto& range) {
        return character >= range.first && character <= range.second;
    });
}

std::string Escaped(char32_t character) {
    constexpr std::pair<char32_t, const char*> kShort[] = {
        {'\t', "\\t"}, {'\n', "\\n"}, {'\r', "\\r"}, {'\\', "\\\\"}};
    for (const auto& [each, sign] : kShort)
        if (character == each) return sign;
    const bool isByte = character < 0x80 || character >= kPastLastCharacter;
    std::array<char, sizeof "\\uffff"> sign{};
    std::snprintf(sign.data(), sign.size(), isByte ? "\\x%02x" : "\\u%04x",
                  static_cast<unsigned>(isByte ? character & 0xFF : character));
    return sign.data();
}

}  // namespace

std::string Printable(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        std::string_view rest = text;
        const char32_t character = TakeCharacter(rest);
        if (character != '\\' && IsShown(character)) {
            shown += text.substr(0, text.size() - rest.size());
        } else {
            shown += Escaped(character);
        }
        text = rest;
    }
    return shown;
}

}  // namespace kestrel::system
