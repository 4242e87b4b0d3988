#include "platform/gdi/PixelArt.h"

#include <algorithm>
#include <string>
#include <vector>

namespace kestrel::gdi {
namespace {

std::vector<std::string> Lines(std::string_view text) {
    std::vector<std::string> lines(1);
    for (const char letter : text) {
        if (letter == '\n') {
            if (!lines.back().empty()) lines.emplace_back();
        } else if (letter != ' ' && letter != '\t' && letter != '\r') {
            lines.back() += letter;
        }
    }
    if (lines.back().empty()) lines.pop_back();
    return lines;
}

COLORREF ColorOf(char letter, std::span<const ArtInk> inks, COLORREF otherwise) {
    const auto found = std::find_if(inks.begin(), inks.end(),
                                    [letter](const ArtInk& ink) { return ink.letter == letter; });
    return found == inks.end() ? otherwise : found->color;
}

}  // namespace

Surface ReadPixelArt(std::string_view rows, std::span<const ArtInk> inks, COLORREF otherwise) {
    const std::vector<std::string> lines = Lines(rows);
    std::size_t width = 0;
    for (const std::string& line : lines)
        width = std::max(width, line.size());
    Surface picture(static_cast<int>(width), static_cast<int>(lines.size()), otherwise);
    for (int y = 0; y < picture.Height(); ++y) {
        const std::string& line = lines[static_cast<std::size_t>(y)];
        std::transform(line.begin(), line.end(), picture.Row(y).begin(),
                       [&](char letter) { return ColorOf(letter, inks, otherwise) & kWhite; });
    }
    return picture;
}

IconPlanes ReadIconArt(std::string_view rows, std::span<const ArtInk> inks) {
    IconPlanes icon(0, 0);
    icon.image = ReadPixelArt(rows, inks, kBlack);
    icon.mask = ReadPixelArt(rows, {{'.', kWhite}}, kBlack);
    return icon;
}

}  // namespace kestrel::gdi
