#include "imaging/filters/FilterTable.h"

#include <algorithm>

#include "imaging/filters/Routines.h"

namespace kestrel::filters {

namespace {

constexpr int kTeal = static_cast<int>(gdi::Rgb(0, 120, 120));
constexpr int kWhite = static_cast<int>(gdi::kWhite);
constexpr int kLightGrey = static_cast<int>(gdi::Rgb(180, 180, 180));

constexpr FilterRow kFilters[] = {
    {"mnuSharpen", 1, 2, Sharpen},
    {"mnuSharpenMore", 1, 0, Sharpen},
    {"mnuNegative", 2, 0, Negative},
    {"mnuBlurMore", 3, 0, BlurMore},
    {"mnuDiffuse", 4, 6, Diffuse},
    {"mnuDiffuseMore", 4, 12, Diffuse},
    {"mnuBlur", 5, 0, Blur},
    {"mnuEdge", 6, 1, EdgeEnhance},
    {"mnuContour", 7, kWhite, Contour},
    {"mnuEmboss", 8, kTeal, Emboss},
    {"mnuEmbossMore", 9, kTeal, EmbossMore},
    {"mnuEngrave", 10, kTeal, Engrave},
    {"mnuEngraveMore", 11, kTeal, EngraveMore},
    {"mnuGreyScale", 12, 0, GreyScale},
    {"mnuRelief", 13, 0, Relief},
    {"mnuBrighter", 14, 10, Brightness},
    {"mnuDarker", 14, -10, Brightness},
    {"mnuPixelize", 15, 3, Pixelize},
    {"mnuSwapBank1", 16, 1, SwapColors},
    {"mnuSwapBank2", 16, 2, SwapColors},
    {"mnuSwapBank3", 16, 3, SwapColors},
    {"mnuSwapBank4", 16, 4, SwapColors},
    {"mnuSwapBank5", 16, 5, SwapColors},
    {"mnuContrast1", 17, 10, Contrast},
    {"mnuContrast2", 17, -10, Contrast},
    {"mnuBW1", 18, kLightGrey, NearestColor},
    {"mnuBW2", 19, 0, EnhancedDiffusion},
    {"mnuBW3", 20, 0, OrderedDither},
    {"mnuBW4", 21, 15, FloydSteinberg},
    {"mnuBW5", 22, 15, Burke},
    {"mnuBW6", 23, 15, Stucki},
    {"mnuAqua", 24, 0, Aqua},
    {"mnuDilate", 25, 0, Dilate},
    {"mnuErode", 26, 0, Erode},
    {"mnuConnection", 27, 0, ConnectedContour},
    {"mnuStretch", 28, 0, ContrastStretch},
    {"mnuAddNoise", 29, 50, AddNoise},
    {"mnuSaturationI", 30, 15, Saturation},
    {"mnuSaturationD", 30, -20, Saturation},
    {"mnuGamma", kGammaFilter, 100, Gamma},
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
