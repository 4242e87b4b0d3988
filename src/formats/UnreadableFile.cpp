#include "formats/UnreadableFile.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "formats/IconPixels.h"
#include "formats/PngImage.h"
#include "i18n/Messages.h"

namespace kestrel::formats {
namespace {

bool IsEmpty(Bytes file) {
    return file.empty();
}

bool StartsWith(Bytes file, std::string_view signature) {
    return file.size() >= signature.size() &&
           std::equal(signature.begin(), signature.end(), file.begin());
}

// A PNG whose header is in order and which is refused for what that says.
bool IsLargePng(Bytes file) {
    return ReadPngHeader(file) && !ReadPngInfo(file, kMaxPngSide);
}

bool IsIconOrPng(Bytes file) {
    return IsPng(file) || StartsWith(file, {"\0\0\1\0", 4}) || StartsWith(file, {"\0\0\2\0", 4});
}

// Icons and pointers alone, or the first of a bitmap array behind its header of 14 bytes.
// Format: Presentation Manager Programming Reference, "Bitmap File Format".
bool IsOs2Icon(Bytes file) {
    constexpr std::size_t kHeader = 14;
    if (StartsWith(file, "BA")) file = ByteReader(file).Part(kHeader);
    constexpr std::array<std::string_view, 4> kSignatures{"IC", "CI", "PT", "CP"};
    // The size of the bitmap's own header, from 12 to 64 bytes, follows that of the file.
    const std::uint32_t size = ByteReader(file).U32(kHeader);
    return size >= 12 && size <= 64 &&
           std::ranges::any_of(kSignatures,
                               [file](std::string_view each) { return StartsWith(file, each); });
}

// One black and white picture: a word for icon or cursor and for what it is drawn for, the hot
// spot, and the size in pixels and in bytes a row. Format: "Windows 1.0 Icon" of the File Formats
// Wiki, fileformats.archiveteam.org.
bool IsWindows1Icon(Bytes file) {
    const ByteReader reader(file);
    const std::uint16_t kind = reader.U16(0);
    const unsigned width = reader.U16(6);
    const unsigned rowBytes = reader.U16(10);
    return ((kind & 0xFF) == 1 || (kind & 0xFF) == 3) && kind >> 8 <= 2 && width > 0 &&
           reader.U16(8) > 0 && rowBytes >= (width + 7) / 8 && rowBytes <= (width + 7) / 8 + 3;
}

bool IsProgram(Bytes file) {
    return StartsWith(file, "MZ") || StartsWith(file,
                                                "\x7F"
                                                "ELF");
}

bool IsAnything(Bytes) {
    return true;
}

struct Reason {
    int number;
    bool (*applies)(Bytes file);
    const i18n::Text& text;
};
constexpr Reason kReasons[] = {
    {kEmptyFile, IsEmpty, i18n::kEmptyFile},
    {kPictureTooLarge, IsLargePng, i18n::kPictureTooLarge},
    {kDamagedPicture, IsIconOrPng, i18n::kDamagedPicture},
    {kOs2Icon, IsOs2Icon, i18n::kOs2Icon},
    {kWindows1Icon, IsWindows1Icon, i18n::kWindows1Icon},
    {kProgramWithoutIcons, IsProgram, i18n::kProgramWithoutIcons},
    {kInvalidPicture, IsAnything, i18n::kNoPicture},
};

}  // namespace

Error WhyUnreadable(Bytes file) {
    const Reason* reason =
        std::ranges::find_if(kReasons, [file](const Reason& each) { return each.applies(file); });
    return {reason->number, std::string(reason->text.Now())};
}

}  // namespace kestrel::formats
