#include "platform/system/LetterCase.h"

#include <clocale>
#include <cwctype>

#include "platform/system/Characters.h"

namespace kestrel::system {
namespace {

char32_t LowerCase(char32_t character) {
    constexpr char32_t kPastAscii = 0x80;
    // Before the locale is made, which reads files: most names need none.
    if (character < kPastAscii) return LowerAscii(character);
    // Names fold alike whatever locale the user has chosen.
    static const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    if (unicode == nullptr) return character;
    if (character >= kPastLastCharacter) return character;
    return static_cast<char32_t>(towlower_l(static_cast<wint_t>(character), unicode));
}

}  // namespace

std::u32string FoldCase(std::string_view text) {
    std::u32string folded;
    folded.reserve(text.size());
    while (!text.empty()) {
        folded += LowerCase(TakeCharacter(text));
    }
    return folded;
}

}  // namespace kestrel::system
