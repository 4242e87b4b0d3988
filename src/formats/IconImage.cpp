#include "formats/IconImage.h"

#include "formats/IconPixels.h"

namespace kestrel::formats {

IconImage EmptyImage(const ImageInfo& info) {
    return {info, gdi::IconPlanes(info.width, info.height)};
}

void SplitAlpha(IconImage& image) {
    for (int y = 0; y < image.planes.image.Height(); ++y) {
        const auto color = image.planes.image.Row(y);
        const auto mask = image.planes.mask.Row(y);
        for (std::size_t x = 0; x < color.size(); ++x) {
            const bool opaque = color[x] >> 24 >= kOpaqueAlpha;
            mask[x] = opaque ? gdi::kBlack : gdi::kWhite;
            color[x] = opaque ? color[x] & gdi::kWhite : gdi::kBlack;
        }
    }
}

void JoinAlpha(gdi::IconPlanes& planes) {
    for (int y = 0; y < planes.Height(); ++y) {
        const auto color = planes.image.Row(y);
        const auto mask = planes.mask.Row(y);
        for (std::size_t x = 0; x < color.size(); ++x)
            color[x] = mask[x] == gdi::kWhite ? gdi::kBlack : color[x] | kAlphaBits;
    }
}

}  // namespace kestrel::formats
