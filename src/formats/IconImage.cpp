#include "formats/IconImage.h"

#include "formats/IconPixels.h"
#include "platform/gdi/Blit.h"

namespace kestrel::formats {

IconImage EmptyImage(const ImageInfo& info) {
    return {info, gdi::Surface(info.width, info.height, gdi::kWhite),
            gdi::Surface(info.width, info.height, gdi::kBlack)};
}

void SplitAlpha(IconImage& image) {
    for (int y = 0; y < image.color.Height(); ++y) {
        const auto color = image.color.Row(y);
        const auto mask = image.mask.Row(y);
        for (std::size_t x = 0; x < color.size(); ++x) {
            const bool opaque = color[x] >> 24 >= kOpaqueAlpha;
            mask[x] = opaque ? gdi::kBlack : gdi::kWhite;
            color[x] = opaque ? color[x] & gdi::kWhite : gdi::kBlack;
        }
    }
}

void DrawIcon(gdi::Surface& target, const IconImage& icon, int width, int height, DrawPart part) {
    const gdi::Rect to{0, 0, width, height};
    const bool compose = part == DrawPart::Normal;
    if (part != DrawPart::Image) {
        gdi::StretchBlt(target, to, icon.mask, icon.mask.Bounds(),
                        compose ? gdi::RasterOp::And : gdi::RasterOp::Copy);
    }
    if (part != DrawPart::Mask) {
        gdi::StretchBlt(target, to, icon.color, icon.color.Bounds(),
                        compose ? gdi::RasterOp::Xor : gdi::RasterOp::Copy);
    }
}

}  // namespace kestrel::formats
