#include "imaging/filters/FilterTable.h"

#include <algorithm>

#include "imaging/filters/Routines.h"

namespace kestrel::filters {

namespace {

constexpr int kTeal = static_cast<int>(gdi::Rgb(0, 120, 120));
constexpr int kWhite = static_cast<int>(gdi::kWhite);
constexpr int kLightGrey = static_cast<int>(gdi::Rgb(180, 180, 180));

constexpr FilterRow kFilters[] = {
    {"mnuSharpen", "sharpen", "makes edges clearer", 1, 2, Sharpen},
    {"mnuSharpenMore", "sharpen-more", "the same, stronger", 1, 0, Sharpen},
    {"mnuNegative", "negative", "inverts each colour", 2, 0, Negative},
    {"mnuBlurMore", "gauss-blur", "makes pixels the average of their eight neighbours", 3, 0,
     BlurMore},
    {"mnuDiffuse", "diffuse", "scatters pixels by up to 3", 4, 6, Diffuse},
    {"mnuDiffuseMore", "diffuse-more", "scatters pixels by up to 6", 4, 12, Diffuse},
    {"mnuBlur", "blur", "averages pixels with their four nearest", 5, 0, Blur},
    {"mnuEdge", "edge-enhance", "sharpens most", 6, 1, EdgeEnhance},
    {"mnuContour", "contour", "dark outlines on white", 7, kWhite, Contour},
    {"mnuEmboss", "emboss", "raised shapes on teal", 8, kTeal, Emboss},
    {"mnuEmbossMore", "emboss-more", "the same, higher", 9, kTeal, EmbossMore},
    {"mnuEngrave", "engrave", "sunken shapes on teal", 10, kTeal, Engrave},
    {"mnuEngraveMore", "engrave-more", "the same, deeper", 11, kTeal, EngraveMore},
    {"mnuGreyScale", "average-gray", "grey as the plain average of red, green and blue", 12, 0,
     GreyScale},
    {"mnuRelief", "relief", "light from the top left over the colours", 13, 0, Relief},
    {"mnuBrighter", "brighter", "brightness up by a tenth", 14, 10, Brightness},
    {"mnuDarker", "darker", "brightness down by a tenth", 14, -10, Brightness},
    {"mnuPixelize", "pixelize", "blocks of 3 x 3 pixels in their average colour", 15, 3, Pixelize},
    {"mnuSwapBank1", "rgb-to-brg", "red from blue, green from red, blue from green", 16, 1,
     SwapColors},
    {"mnuSwapBank2", "rgb-to-gbr", "red from green, green from blue, blue from red", 16, 2,
     SwapColors},
    {"mnuSwapBank3", "rgb-to-rbg", "green and blue trade places", 16, 3, SwapColors},
    {"mnuSwapBank4", "rgb-to-bgr", "red and blue trade places", 16, 4, SwapColors},
    {"mnuSwapBank5", "rgb-to-grb", "red and green trade places", 16, 5, SwapColors},
    {"mnuContrast1", "increase-contrast", "contrast up by a tenth", 17, 10, Contrast},
    {"mnuContrast2", "decrease-contrast", "contrast down by a tenth", 17, -10, Contrast},
    {"mnuBW1", "nearest-color", "black or white, by a threshold", 18, kLightGrey, NearestColor},
    {"mnuBW2", "enhanced-diffusion", "black and white, sharpened, errors carried on", 19, 0,
     EnhancedDiffusion},
    {"mnuBW3", "ordered-dither", "black and white in a regular pattern", 20, 0, OrderedDither},
    {"mnuBW4", "floyd-steinberg", "black and white, errors spread by Floyd and Steinberg", 21, 15,
     FloydSteinberg},
    {"mnuBW5", "burke", "the same by Burke", 22, 15, Burke},
    {"mnuBW6", "stucki", "the same by Stucki", 23, 15, Stucki},
    {"mnuAqua", "aqua", "smooth areas as in a watercolour", 24, 0, Aqua},
    {"mnuDilate", "dilate", "light areas grow", 25, 0, Dilate},
    {"mnuErode", "erode", "dark areas grow", 26, 0, Erode},
    {"mnuConnection", "connected-contour", "light outlines on black", 27, 0, ConnectedContour},
    {"mnuStretch", "contrast-stretch", "spreads each channel over all its levels", 28, 0,
     ContrastStretch},
    {"mnuAddNoise", "add-noise", "changes channels at random by up to 50", 29, 50, AddNoise},
    {"mnuSaturationI", "increase-saturation", "colours stronger", 30, 15, Saturation},
    {"mnuSaturationD", "decrease-saturation", "colours paler", 30, -20, Saturation},
    {"mnuGamma", "gamma", "lightens above 100, darkens below; 1 to 9999", kGammaFilter, 100, Gamma},
};

}  // namespace

std::span<const FilterRow> Filters() {
    return kFilters;
}

const FilterRow* FindFilter(std::string_view key) {
    const auto* row = std::find_if(std::begin(kFilters), std::end(kFilters),
                                   [key](const FilterRow& filter) { return filter.key == key; });
    return row == std::end(kFilters) ? nullptr : row;
}

}  // namespace kestrel::filters
