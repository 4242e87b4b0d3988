#include "imaging/filters/Levels.h"

namespace kestrel::filters {

int AverageGrey(const PixelArray& picture) {
    const auto blues = picture.Plane(kBlue);
    const auto greens = picture.Plane(kGreen);
    const auto reds = picture.Plane(kRed);
    if (blues.empty()) return 0;
    unsigned sum = 0;
    for (std::size_t i = 0; i < blues.size(); ++i)
        sum += static_cast<unsigned>(GreyLevel(blues[i], greens[i], reds[i]));
    return static_cast<int>(sum / blues.size());
}

}  // namespace kestrel::filters
