#include "i18n/Speech.h"

#include <algorithm>
#include <array>

#include "i18n/Captions.h"

namespace kestrel::i18n {

namespace {

struct NamedColor {
    gdi::COLORREF color{};
    Text name;
};

// The first and the last colours of the default palette.
constexpr auto kNamedColors = std::to_array<NamedColor>({
    {0x000000, {"black", "黑色"}},
    {0x000080, {"dark red", "深红色"}},
    {0x008000, {"dark green", "深绿色"}},
    {0x008080, {"olive", "橄榄色"}},
    {0x800000, {"dark blue", "深蓝色"}},
    {0x800080, {"purple", "紫色"}},
    {0x808000, {"teal", "青绿色"}},
    {0xC0C0C0, {"light gray", "浅灰色"}},
    {0x808080, {"gray", "灰色"}},
    {0x0000FF, {"red", "红色"}},
    {0x00FF00, {"green", "绿色"}},
    {0x00FFFF, {"yellow", "黄色"}},
    {0xFF0000, {"blue", "蓝色"}},
    {0xFF00FF, {"magenta", "品红色"}},
    {0xFFFF00, {"cyan", "青色"}},
    {0xFFFFFF, {"white", "白色"}},
});

constexpr Text kRedPart{"red ", "红 "};
constexpr Text kGreenPart{", green ", ", 绿 "};
constexpr Text kBluePart{", blue ", ", 蓝 "};
constexpr std::string_view kColon = ": ";

}  // namespace

std::string ColorName(gdi::COLORREF color) {
    const auto* const named = std::ranges::find(kNamedColors, color, &NamedColor::color);
    if (named != kNamedColors.end()) return std::string(named->name.Now());
    std::string parts(kRedPart.Now());
    parts.append(std::to_string(gdi::Red(color))).append(kGreenPart.Now());
    parts.append(std::to_string(gdi::Green(color))).append(kBluePart.Now());
    return parts.append(std::to_string(gdi::Blue(color)));
}

std::string ColorName(gdi::COLORREF color, bool transparent) {
    return transparent ? std::string(kTransparent.Now()) : ColorName(color);
}

std::string Named(std::string_view control, std::string_view color) {
    return std::string(control).append(kColon).append(color);
}

std::string PixelName(int column, int row, std::string_view color) {
    return std::to_string(column) + ", " + std::to_string(row).append(kColon).append(color);
}

}  // namespace kestrel::i18n
