#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "cli/Actions.h"
#include "cli/Conversion.h"
#include "cli/ExitCodes.h"
#include "cli/IconInput.h"
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

Result<std::vector<std::uint8_t>> ThumbnailOf(const InputFile& input, const IconChoice& choice,
                                              int side) {
    const auto file = SourceFile::Open(input);
    if (!file) return tl::unexpected(file.error());
    auto images = ChosenImages(*file, choice);
    if (!images) return tl::unexpected(images.error());
    std::ranges::stable_sort(*images, {}, [side](const ImageEntry& image) {
        return formats::RankForSide(image.info, side);
    });
    auto pixels = ReadFirst(*file, *images);
    if (!pixels) return tl::unexpected(pixels.error());
    const gdi::Size size{pixels->Width(), pixels->Height()};
    const gdi::Size wanted = gdi::SizeWithin(size, side);
    if (wanted != size) *pixels = imaging::AreaAverage(*pixels, wanted);
    return formats::PngBytes(*pixels);
}

}  // namespace

Result<void> Thumbnail(const Arguments& arguments) {
    const auto side = NumberIn(arguments.size, 1, formats::kMaxImageSide);
    if (!side) {
        return WrongUsage("--size wants a number from 1 to " +
                          std::to_string(formats::kMaxImageSide));
    }
    if (auto checked = CheckChoice(arguments.choice); !checked) return checked;
    return MakeResults(arguments, "png", [&](const InputFile& in, const IconTarget&) {
        return ThumbnailOf(in, arguments.choice, static_cast<int>(*side));
    });
}

}  // namespace kestrel::cli
