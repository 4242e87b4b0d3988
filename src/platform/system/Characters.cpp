#include "platform/system/Characters.h"

#include <cwchar>
#include <locale>
#include <string>

namespace kestrel::system {

char32_t TakeCharacter(std::string_view& text) {
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

}  // namespace kestrel::system
