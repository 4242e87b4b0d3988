#include <algorithm>
#include <cerrno>
#include <span>

#include "cli/Actions.h"
#include "cli/IconOutput.h"
#include "cli/Numbers.h"
#include "formats/BestImage.h"
#include "formats/IconPixels.h"
#include "formats/PngWriter.h"
#include "imaging/AreaAverage.h"
#include "platform/gdi/Samples.h"

namespace kestrel::cli {

namespace {

using formats::ImageEntry;

// Damaged images cost as much time as good ones; no icon has more of them before a good one.
constexpr std::size_t kMostTries = 8;

Result<gdi::Surface> ReadFirst(const SourceFile& file, const std::vector<ImageEntry>& images) {
    Result<gdi::Surface> pixels = Fail(EINVAL, "");
    for (const ImageEntry& image : std::span(images).first(std::min(images.size(), kMostTries))) {
        pixels = file.Named(file.Source().Pixels(image));
        if (pixels) break;
    }
    return pixels;
}

}  // namespace

Result<void> Thumbnail(const Arguments& arguments) {
    const auto side = NumberIn(arguments.size, 1, formats::kMaxImageSide);
    if (!side) {
        return Fail(EINVAL,
                    "--size wants a number from 1 to " + std::to_string(formats::kMaxImageSide));
    }
    const auto file = SourceFile::Open(arguments.in);
    if (!file) return tl::unexpected(file.error());
    auto images = ChosenImages(*file, arguments.choice);
    if (!images) return tl::unexpected(images.error());
    std::ranges::stable_sort(*images, {}, [side](const ImageEntry& image) {
        return formats::RankForSide(image.info, static_cast<int>(*side));
    });
    auto pixels = ReadFirst(*file, *images);
    if (!pixels) return tl::unexpected(pixels.error());
    const gdi::Size size{pixels->Width(), pixels->Height()};
    const gdi::Size wanted = gdi::SizeWithin(size, static_cast<int>(*side));
    if (wanted != size) *pixels = imaging::AreaAverage(*pixels, wanted);
    return WriteOutput(arguments.out, formats::PngBytes(*pixels));
}

}  // namespace kestrel::cli
