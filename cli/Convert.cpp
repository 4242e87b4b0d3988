#include <cerrno>
#include <utility>

#include "cli/Actions.h"
#include "cli/IconInput.h"
#include "cli/IconOutput.h"
#include "cli/Numbers.h"
#include "cli/SizedIcon.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::cli {

namespace {

// X,Y inside an image of this side.
Result<gdi::Point> ReadHotspot(const std::string& text, int side) {
    const auto parts = Split(text);
    const auto x = NumberIn(parts.front(), 0, side - 1);
    const auto y = NumberIn(parts.back(), 0, side - 1);
    if (parts.size() == 2 && x && y) return gdi::Point{static_cast<int>(*x), static_cast<int>(*y)};
    return Fail(EINVAL, "--hotspot wants X,Y, each from 0 to " + std::to_string(side - 1));
}

// Nothing where none is asked for.
Result<std::optional<gdi::Point>> WantedHotspot(const Arguments& arguments, std::string_view format,
                                                int side) {
    if (!arguments.hotspot) return std::nullopt;
    if (format != "cur") return Fail(EINVAL, "--hotspot is for .cur");
    const auto hotspot = ReadHotspot(*arguments.hotspot, side);
    if (!hotspot) return tl::unexpected(hotspot.error());
    return *hotspot;
}

// An icon or cursor of several images.
Result<void> ConvertToSizes(const Arguments& arguments, const IconTarget& target) {
    const std::string_view format = FormatOf(target);
    if (format == "png") return Fail(EINVAL, "--sizes is for .ico and .cur");
    auto sizes = ReadSizes(arguments.sizes);
    if (!sizes) return tl::unexpected(sizes.error());
    const auto hotspot = WantedHotspot(arguments, format, sizes->front());
    if (!hotspot) return tl::unexpected(hotspot.error());
    const auto bytes = SizedIconBytes(
        {*std::move(sizes), {arguments.in}, arguments.choice, format == "cur", *hotspot});
    if (!bytes) return tl::unexpected(bytes.error());
    return WriteOutput(target.name, *bytes);
}

// An image that is asked for, in its own size.
Result<void> ConvertImage(const Arguments& arguments) {
    const auto file = SourceFile::Open(arguments.in);
    if (!file) return tl::unexpected(file.error());
    const auto images = ChosenImages(*file, arguments.choice);
    if (!images) return tl::unexpected(images.error());
    const auto bytes = file->Png(images->front());
    if (!bytes) return tl::unexpected(bytes.error());
    return WriteOutput(arguments.out, *bytes);
}

}  // namespace

Result<void> Convert(const Arguments& arguments) {
    const IconTarget target{arguments.out, arguments.format};
    if (Result<void> checked = CheckTarget(target); !checked) return checked;
    if (!arguments.sizes.empty()) return ConvertToSizes(arguments, target);
    const auto hotspot = WantedHotspot(arguments, FormatOf(target), gdi::kIconSize);
    if (!hotspot) return tl::unexpected(hotspot.error());
    if (arguments.choice.image && FormatOf(target) == "png") return ConvertImage(arguments);
    const auto icon = ReadIcon(arguments.in, arguments.choice, arguments.Fit());
    if (!icon) return tl::unexpected(icon.error());
    return WriteIcon(target, icon->planes, hotspot->value_or(icon->hotspot));
}

}  // namespace kestrel::cli
