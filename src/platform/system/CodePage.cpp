#include "platform/system/CodePage.h"

#include <iconv.h>

#include <algorithm>
#include <iterator>
#include <string>

#include "platform/system/Characters.h"

namespace kestrel::system {
namespace {

struct CodePage {
    std::uint32_t lcid;
    const char* name;
};

// The locales whose ANSI code page has characters of two bytes. Numbers: [MS-LCID].
constexpr CodePage kDoubleByteCodePages[] = {
    {1028, "CP950"}, {1041, "CP932"}, {1042, "CP949"}, {2052, "CP936"},
    {3076, "CP950"}, {4100, "CP936"}, {5124, "CP950"},
};

// The bytes that one character takes; 1 for what cannot be converted.
std::size_t EncodedSize(iconv_t converter, std::string character) {
    char encoded[8];
    char* from = character.data();
    char* to = encoded;
    std::size_t fromLeft = character.size();
    std::size_t toLeft = sizeof encoded;
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    if (iconv(converter, &from, &fromLeft, &to, &toLeft) != 0) return 1;
    return sizeof encoded - toLeft;
}

int CountDoubleByte(std::string_view text, iconv_t converter) {
    int count = 0;
    while (!text.empty()) {
        const std::string character(FirstCharacters(text, 1));
        if (EncodedSize(converter, character) == 2) ++count;
        text.remove_prefix(character.size());
    }
    return count;
}

}  // namespace

int DoubleByteCharacters(std::string_view text, std::uint32_t lcid) {
    const auto* const page =
        std::find_if(std::begin(kDoubleByteCodePages), std::end(kDoubleByteCodePages),
                     [lcid](const CodePage& row) { return row.lcid == lcid; });
    if (page == std::end(kDoubleByteCodePages)) return 0;
    iconv_t converter = iconv_open(page->name, "UTF-8");
    // NOLINTNEXTLINE(performance-no-int-to-ptr): how POSIX spells this failure.
    if (converter == reinterpret_cast<iconv_t>(-1)) return 0;
    const int count = CountDoubleByte(text, converter);
    iconv_close(converter);
    return count;
}

}  // namespace kestrel::system
