#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/Actions.h"
#include "cli/Conversion.h"
#include "cli/ExitCodes.h"
#include "cli/IconInput.h"
#include "cli/IconOutput.h"
#include "cli/Numbers.h"
#include "cli/SizedIcon.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::cli {

namespace {

using Bytes = Result<std::vector<std::uint8_t>>;

struct Wishes {
    std::vector<int> sizes;
    std::optional<gdi::Point> hotspot;
};

// X,Y inside an image of this side.
Result<gdi::Point> ReadHotspot(const std::string& text, int side) {
    const auto parts = Split(text);
    const auto x = NumberIn(parts.front(), 0, side - 1);
    const auto y = NumberIn(parts.back(), 0, side - 1);
    if (parts.size() == 2 && x && y) return gdi::Point{static_cast<int>(*x), static_cast<int>(*y)};
    return WrongUsage("--hotspot wants X,Y, each from 0 to " + std::to_string(side - 1));
}

Result<Wishes> ReadWishes(const Arguments& arguments) {
    Wishes wishes;
    if (!arguments.sizes.empty()) {
        auto sizes = ReadSizes(arguments.sizes);
        if (!sizes) return tl::unexpected(sizes.error());
        wishes.sizes = *std::move(sizes);
    }
    if (arguments.hotspot) {
        const int side = wishes.sizes.empty() ? gdi::kIconSize : wishes.sizes.front();
        const auto hotspot = ReadHotspot(*arguments.hotspot, side);
        if (!hotspot) return tl::unexpected(hotspot.error());
        wishes.hotspot = *hotspot;
    }
    return wishes;
}

// An icon of several sizes is made of all files before OUT, or of each that goes into a folder.
std::vector<InputFile> SourcesOf(const Arguments& arguments, const InputFile& in) {
    if (!arguments.into.empty()) return {in};
    std::vector<InputFile> sources;
    for (const std::string& file : arguments.files)
        sources.push_back({file});
    sources.pop_back();
    return sources;
}

// An image that is asked for, in its own size.
Bytes ImageBytes(const SourceFile& file, const IconChoice& choice) {
    const auto images = ChosenImages(file, choice);
    if (!images) return tl::unexpected(images.error());
    return file.Png(images->front());
}

Bytes ConvertFile(const Arguments& arguments, const Wishes& wishes, const InputFile& in,
                  const IconTarget& target) {
    const std::string_view format = FormatOf(target);
    if (wishes.hotspot && format != "cur") return WrongUsage("--hotspot is for .cur");
    if (!wishes.sizes.empty()) {
        if (format == "png") return WrongUsage("--sizes is for .ico and .cur");
        return SizedIconBytes({wishes.sizes, SourcesOf(arguments, in), arguments.choice,
                               format == "cur", wishes.hotspot});
    }
    const auto file = SourceFile::Open(in);
    if (!file) return tl::unexpected(file.error());
    if (arguments.choice.image && format == "png") return ImageBytes(*file, arguments.choice);
    const auto icon = ReadIcon(*file, arguments.choice, arguments.Fit());
    if (!icon) return tl::unexpected(icon.error());
    return EncodeIcon(target, icon->planes, wishes.hotspot.value_or(icon->hotspot));
}

}  // namespace

Result<void> Convert(const Arguments& arguments) {
    const auto wishes = ReadWishes(arguments);
    if (!wishes) return tl::unexpected(wishes.error());
    if (auto checked = CheckChoice(arguments.choice); !checked) return checked;
    return MakeResults(arguments, arguments.format,
                       [&](const InputFile& in, const IconTarget& target) {
                           return ConvertFile(arguments, *wishes, in, target);
                       });
}

}  // namespace kestrel::cli
