#include "formats/IcoFile.h"

#include <algorithm>

namespace kestrel::formats {

namespace {

constexpr std::size_t kTypeOffset = 2;
constexpr std::size_t kHotspotOffset = 10;
constexpr std::size_t kColorOffset = 62;
constexpr std::size_t kMaskOffset = 3134;
constexpr std::size_t kBitsPerByte = 8;

struct HeaderField {
    std::size_t offset;
    std::size_t size;
    std::uint32_t value;
};

// The icon directory, its one entry and the bitmap info header; all integers little-endian. The
// height counts colour image and mask together.
constexpr HeaderField kHeaderFields[] = {
    {0, 2, 0},      // directory: reserved
    {2, 2, 1},      //   type: icon
    {4, 2, 1},      //   image count
    {6, 1, 32},     // entry: width
    {7, 1, 32},     //   height
    {8, 1, 0},      //   colour count: more than 256
    {9, 1, 0},      //   reserved
    {10, 2, 1},     //   planes
    {12, 2, 24},    //   bits per pixel
    {14, 4, 3240},  //   bytes of the image
    {18, 4, 22},    //   offset of the image
    {22, 4, 40},    // bitmap: header size
    {26, 4, 32},    //   width
    {30, 4, 64},    //   height
    {34, 2, 1},     //   planes
    {36, 2, 24},    //   bits per pixel
    {38, 4, 0},     //   compression: none
    {42, 4, 3200},  //   image size
    {46, 4, 0},     //   horizontal resolution
    {50, 4, 0},     //   vertical resolution
    {54, 4, 0},     //   colours used
    {58, 4, 0},     //   important colours
};

constexpr std::array<std::uint8_t, kColorOffset> MakeHeader() {
    std::array<std::uint8_t, kColorOffset> header{};
    for (const HeaderField& field : kHeaderFields) {
        for (std::size_t i = 0; i < field.size; ++i) {
            header[field.offset + i] = static_cast<std::uint8_t>(field.value >> (8 * i));
        }
    }
    return header;
}

constexpr std::array<std::uint8_t, kColorOffset> kHeader = MakeHeader();

}  // namespace

std::uint8_t BitsToByte(std::string_view bits) {
    unsigned value = 0;
    for (std::size_t k = 0; k < kBitsPerByte; ++k) {
        value = value * 2 + (k < bits.size() && bits[k] == '1' ? 1U : 0U);
    }
    return static_cast<std::uint8_t>(value);
}

IcoBytes EncodeIco(const gdi::IconPlanes& icon) {
    IcoBytes file{};
    auto* colorAt = std::copy(kHeader.begin(), kHeader.end(), file.begin());
    auto* maskAt = file.begin() + kMaskOffset;
    std::array<char, kBitsPerByte> bits{};
    std::size_t bitCount = 0;
    for (int y = gdi::kIconSize - 1; y >= 0; --y) {
        const auto colors = icon.image.Row(y);
        const auto masks = icon.mask.Row(y);
        for (std::size_t x = 0; x < colors.size(); ++x) {
            const bool transparent = masks[x] == gdi::kWhite;
            const gdi::COLORREF color = transparent ? gdi::kBlack : colors[x];
            *colorAt++ = gdi::Blue(color);
            *colorAt++ = gdi::Green(color);
            *colorAt++ = gdi::Red(color);
            bits[bitCount++] = transparent ? '1' : '0';
            if (bitCount == bits.size()) {
                *maskAt++ = BitsToByte({bits.data(), bits.size()});
                bitCount = 0;
            }
        }
    }
    return file;
}

IcoBytes EncodeCur(const gdi::IconPlanes& icon, gdi::Point hotspot) {
    IcoBytes file = EncodeIco(icon);
    file[kTypeOffset] = 2;
    // The hotspot stands where an icon has planes and bits.
    file[kHotspotOffset] = static_cast<std::uint8_t>(hotspot.x);
    file[kHotspotOffset + 1] = 0;
    file[kHotspotOffset + 2] = static_cast<std::uint8_t>(hotspot.y);
    file[kHotspotOffset + 3] = 0;
    return file;
}

Result<system::FileIdentity> WriteIcoCopy(system::FileSystem& files, const gdi::IconPlanes& icon,
                                          const std::string& path) {
    return files.ReplaceFile(path, EncodeIco(icon));
}

bool DetectMultipleIcons(std::span<const std::uint8_t> file) {
    constexpr std::size_t kDirectoryBytes = 6;
    if (file.size() < kDirectoryBytes) return false;
    const auto word = [&](std::size_t at) { return file[at] + 256U * file[at + 1]; };
    // A PNG under an icon's name has no directory.
    const bool isDirectory = word(0) == 0 && (word(2) == 1 || word(2) == 2);
    return isDirectory && word(4) > 1;
}

}  // namespace kestrel::formats
