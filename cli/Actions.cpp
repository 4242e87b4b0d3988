#include "cli/Actions.h"

#include <cerrno>
#include <cstdint>
#include <limits>
#include <random>

#include "cli/IconCommands.h"
#include "cli/IconInput.h"
#include "cli/IconOutput.h"
#include "cli/Numbers.h"
#include "formats/PaletteFile.h"
#include "imaging/Shades.h"
#include "platform/gdi/Blit.h"
#include "resources/DefaultPalette.h"

namespace kestrel::cli {

namespace {

// The number that was typed or, without one, another for every run.
Result<std::uint32_t> ReadSeed(const std::optional<std::string>& text) {
    if (!text) return std::random_device()();
    constexpr auto kMost = std::numeric_limits<std::uint32_t>::max();
    const auto seed = NumberIn(*text, 0, kMost);
    if (!seed) return Fail(EINVAL, "--seed wants a number from 0 to " + std::to_string(kMost));
    return static_cast<std::uint32_t>(*seed);
}

}  // namespace

Result<void> Apply(const Arguments& arguments) {
    const IconTarget target{arguments.out, arguments.format};
    if (Result<void> checked = CheckTarget(target); !checked) return checked;
    const auto commands = ReadCommands(arguments.commands);
    if (!commands) return tl::unexpected(commands.error());
    const auto seed = ReadSeed(arguments.seed);
    if (!seed) return tl::unexpected(seed.error());
    auto icon = ReadIcon(arguments.in, arguments.choice, arguments.Fit());
    if (!icon) return tl::unexpected(icon.error());
    RunCommands(*commands, *seed, icon->planes);
    return WriteIcon(target, icon->planes, icon->hotspot);
}

Result<void> Gradient(const Arguments& arguments) {
    const IconTarget target{arguments.out, arguments.format};
    if (Result<void> checked = CheckTarget(target); !checked) return checked;
    const auto from = ColorIn(arguments.from);
    const auto to = ColorIn(arguments.to);
    constexpr int kFullTurn = imaging::kDegreesPerStep * imaging::kDirections;
    const auto angle = NumberIn(arguments.angle, 0, kFullTurn);
    if (!from || !to)
        return Fail(EINVAL,
                    "--from and --to want a colour as R,G,B, each from 0 to 255, or #rrggbb");
    if (!angle || *angle % imaging::kDegreesPerStep != 0)
        return Fail(EINVAL, "--angle wants 0 to 360 in steps of 45");
    gdi::IconPlanes icon;
    gdi::PatBlt(icon.mask, icon.Bounds(), gdi::kBlack);
    icon.image = imaging::DrawShade({*from, *to, static_cast<int>(*angle)});
    return WriteIcon(target, icon);
}

Result<void> Palette(const Arguments& arguments) {
    return WriteText(arguments.out, formats::PaletteText(resources::kDefaultPalette));
}

}  // namespace kestrel::cli
