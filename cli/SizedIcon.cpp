#include "cli/SizedIcon.h"

#include <algorithm>
#include <utility>

#include "cli/ExitCodes.h"
#include "cli/Numbers.h"
#include "formats/BestImage.h"
#include "formats/DibWriter.h"
#include "formats/IconExport.h"
#include "imaging/SquarePicture.h"

namespace kestrel::cli {

namespace {

using formats::ImageBytes;
using formats::ImageEntry;

constexpr int kMostSide = 256;
// All of one source are made at once, in 2 MB each at most.
constexpr std::size_t kMostSizes = 16;

// An image of one of the sources.
struct Candidate {
    const SourceFile* file = nullptr;
    ImageEntry image;
};

gdi::Size SizeOf(const ImageEntry& image) {
    return {image.info.width, image.info.height};
}

Result<std::vector<SourceFile>> OpenAll(const std::vector<InputFile>& sources) {
    std::vector<SourceFile> files;
    for (const InputFile& source : sources) {
        auto file = SourceFile::Open(source);
        if (!file) return tl::unexpected(file.error());
        files.push_back(*std::move(file));
    }
    return files;
}

// Of several images of a file those that can be read.
Result<std::vector<Candidate>> Candidates(const std::vector<SourceFile>& files,
                                          const IconChoice& choice) {
    std::vector<Candidate> candidates;
    for (const SourceFile& file : files) {
        auto images = ChosenImages(file, choice);
        if (images && images->size() > 1)
            images = file.Named(file.Source().Whole(*std::move(images)));
        if (!images) return tl::unexpected(images.error());
        for (const ImageEntry& image : *images)
            candidates.push_back({&file, image});
    }
    return candidates;
}

// Makes all sizes that come of one image, which is read once.
Result<void> MakeSizes(const Candidate& source, const std::vector<int>& sizes,
                       const std::vector<std::size_t>& places, std::vector<ImageBytes>& images) {
    std::vector<imaging::SquarePicture> pictures;
    pictures.reserve(places.size());
    for (const std::size_t place : places)
        pictures.emplace_back(SizeOf(source.image), sizes[place]);
    auto given = source.file->Named(
        source.file->Source().GivePixels(source.image, [&](const gdi::PixelRun& run) {
            for (imaging::SquarePicture& picture : pictures)
                picture.Add(run);
        }));
    if (!given) return given;
    for (std::size_t i = 0; i < places.size(); ++i)
        images[places[i]] = formats::EncodeImage(pictures[i].Square());
    return {};
}

}  // namespace

Result<std::vector<int>> ReadSizes(std::string_view list) {
    std::vector<int> sizes;
    for (const std::string_view part : Split(list)) {
        const auto size = NumberIn(part, 1, kMostSide);
        const bool isNew = size && std::ranges::find(sizes, *size) == sizes.end();
        if (!isNew || sizes.size() == kMostSizes) {
            return WrongUsage("--sizes wants at most " + std::to_string(kMostSizes) +
                              " numbers from 1 to " + std::to_string(kMostSide) +
                              ", each once, as in 16,32,48");
        }
        sizes.push_back(static_cast<int>(*size));
    }
    return sizes;
}

Result<std::vector<std::uint8_t>> SizedIconBytes(const SizedIcon& icon) {
    const auto files = OpenAll(icon.sources);
    if (!files) return tl::unexpected(files.error());
    const auto candidates = Candidates(*files, icon.choice);
    if (!candidates) return tl::unexpected(candidates.error());
    // By candidate, which of the sizes it serves best.
    std::vector<std::vector<std::size_t>> places(candidates->size());
    const auto bestFor = [&](int side) {
        return std::ranges::min_element(*candidates, {}, [side](const Candidate& each) {
            return formats::RankForSide(each.image.info, side);
        });
    };
    for (std::size_t i = 0; i < icon.sizes.size(); ++i)
        places[static_cast<std::size_t>(bestFor(icon.sizes[i]) - candidates->begin())].push_back(i);
    std::vector<ImageBytes> images(icon.sizes.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i].empty()) continue;
        auto made = MakeSizes((*candidates)[i], icon.sizes, places[i], images);
        if (!made) return tl::unexpected(made.error());
    }
    if (!icon.cursor) return formats::IconFileOf(images);
    const int side = icon.sizes.front();
    const Candidate& first = *bestFor(side);
    const gdi::Point own =
        first.file->HotspotIn(first.image, imaging::PlaceInSquare(SizeOf(first.image), side));
    return formats::CursorFileOf(images, icon.hotspot.value_or(own));
}

}  // namespace kestrel::cli
