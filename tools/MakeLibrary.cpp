// Writes an icon library from pictures: make_library <library> <picture.xpm>...
// Each "NAME.xpm" of 32 x 32 is an icon, in the order of the arguments; "NAME-16.xpm" of 16 x 16 is
// its small image.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "formats/DibWriter.h"
#include "formats/LibraryWriter.h"
#include "formats/XpmPicture.h"
#include "platform/system/DiskFiles.h"

namespace {

using namespace kestrel;

constexpr std::size_t kLargestPicture = 1U << 20;
constexpr std::string_view kSmall = "-16";

std::string StemOf(const std::string& path) {
    return std::filesystem::path(path).stem().string();
}

Result<formats::ImageBytes> ReadPicture(system::FileSystem& files, const std::string& path,
                                        int side) {
    const auto bytes = files.ReadFile(path, kLargestPicture);
    if (!bytes) return Fail(bytes.error().number, path + ": " + bytes.error().description);
    const auto picture = formats::ReadXpm(std::string(bytes->begin(), bytes->end()));
    if (!picture) return Fail(picture.error().number, path + ": " + picture.error().description);
    if (picture->Width() != side || picture->Height() != side)
        return Fail(kInvalidPicture, path + ": not " + std::to_string(side) + " pixels a side");
    return formats::EncodeDib(*picture);
}

// The small pictures among the paths are left when all icons have taken theirs.
Result<std::vector<formats::LibraryIcon>> ReadIcons(system::FileSystem& files,
                                                    std::vector<std::string> paths) {
    const auto firstSmall = std::stable_partition(
        paths.begin(), paths.end(),
        [](const std::string& path) { return !StemOf(path).ends_with(kSmall); });
    std::vector<std::string> small(firstSmall, paths.end());
    std::vector<formats::LibraryIcon> icons;
    for (const std::string& path : std::span(paths.begin(), firstSmall)) {
        auto image = ReadPicture(files, path, gdi::kIconSize);
        if (!image) return tl::unexpected(image.error());
        formats::LibraryIcon& icon = icons.emplace_back();
        icon.images.push_back(*std::move(image));
        const auto own = std::ranges::find(small, StemOf(path) + std::string(kSmall), StemOf);
        if (own == small.end()) continue;
        image = ReadPicture(files, *own, gdi::kIconSize / 2);
        if (!image) return tl::unexpected(image.error());
        icon.images.push_back(*std::move(image));
        small.erase(own);
    }
    if (!small.empty()) return Fail(kInvalidPicture, small[0] + ": no picture of 32 pixels for it");
    return icons;
}

Result<void> WriteLibrary(const std::string& library, std::vector<std::string> paths) {
    system::DiskFiles files(system::PathNames::AsWritten);
    const auto icons = ReadIcons(files, std::move(paths));
    if (!icons) return tl::unexpected(icons.error());
    const auto bytes = formats::LibraryBytes(*icons);
    if (!bytes) return tl::unexpected(bytes.error());
    if (const auto written = files.ReplaceFile(library, *bytes); !written)
        return Fail(written.error().number, library + ": " + written.error().description);
    return {};
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc < 3) {
        std::fputs("Usage: make_library <library> <picture.xpm>...\n", stderr);
        return 2;
    }
    const auto written = WriteLibrary(argv[1], {argv + 2, argv + argc});
    if (!written) std::fprintf(stderr, "%s\n", written.error().description.c_str());
    return written ? 0 : 1;
}
