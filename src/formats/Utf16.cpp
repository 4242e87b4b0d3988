#include "formats/Utf16.h"

namespace kestrel::formats {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsHalf(char32_t unit, char32_t first) {
    return unit >= first && unit < first + 0x400;
}

}  // namespace

void AppendUtf8(std::string& text, char32_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
        return;
    }
    const int following = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    constexpr char32_t kLeads[] = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(kLeads[following] | character >> (6 * following));
    for (int left = following - 1; left >= 0; --left)
        text += static_cast<char>(0x80 | (character >> (6 * left) & 0x3F));
}

std::string Utf8OfUtf16(Bytes text) {
    constexpr char32_t kHighHalf = 0xD800;
    constexpr char32_t kLowHalf = 0xDC00;
    const ByteReader reader(text);
    std::string result;
    for (std::size_t at = 0; at + 2 <= text.size(); at += 2) {
        char32_t character = reader.U16(at);
        const char32_t next = reader.U16(at + 2);
        if (IsHalf(character, kHighHalf) && IsHalf(next, kLowHalf)) {
            character = 0x10000 + ((character - kHighHalf) << 10) + (next - kLowHalf);
            at += 2;
        } else if (IsHalf(character, kHighHalf) || IsHalf(character, kLowHalf)) {
            character = kReplacement;
        }
        AppendUtf8(result, character);
    }
    return result;
}

}  // namespace kestrel::formats
