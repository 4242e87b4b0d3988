#include "platform/system/LetterCase.h"

#include <clocale>
#include <cstddef>
#include <cwctype>

namespace kestrel::system {
namespace {

constexpr char32_t kPastLastCharacter = 0x110000;

struct Decoded {
    char32_t character;
    std::size_t length;
};

// Length of the sequence that a first byte opens, 0 for a byte that opens none.
std::size_t SequenceLength(unsigned char first) {
    if (first < 0x80) return 1;
    if (first >= 0xC2 && first <= 0xDF) return 2;
    if (first >= 0xE0 && first <= 0xEF) return 3;
    if (first >= 0xF0 && first <= 0xF4) return 4;
    return 0;
}

bool IsScalarOfLength(char32_t character, std::size_t length) {
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    return character >= kSmallest[length] && character < kPastLastCharacter && !surrogate;
}

// Decodes the first character of a text that is not empty.
Decoded DecodeFirst(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    const std::size_t length = SequenceLength(first);
    if (length == 1) return {first, 1};
    const Decoded raw{kPastLastCharacter + first, 1};
    if (length == 0 || length > text.size()) return raw;
    char32_t character = first & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80) return raw;
        character = (character << 6) | (byte & 0x3FU);
    }
    return IsScalarOfLength(character, length) ? Decoded{character, length} : raw;
}

char32_t LowerCase(char32_t character) {
    // Names fold alike whatever locale the user has chosen.
    static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (character >= 'A' && character <= 'Z') return character + ('a' - 'A');
    if (character < 0x80 || character >= kPastLastCharacter || unicode == nullptr) return character;
    return static_cast<char32_t>(towlower_l(static_cast<wint_t>(character), unicode));
}

}  // namespace

std::u32string FoldCase(std::string_view text) {
    std::u32string folded;
    folded.reserve(text.size());
    while (!text.empty()) {
        const Decoded first = DecodeFirst(text);
        folded += LowerCase(first.character);
        text.remove_prefix(first.length);
    }
    return folded;
}

}  // namespace kestrel::system
