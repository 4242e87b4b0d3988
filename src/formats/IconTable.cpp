#include "formats/IconTable.h"

#include <algorithm>
#include <array>

#include "formats/AniFrames.h"
#include "formats/IconDirectory.h"
#include "formats/NeIcons.h"
#include "formats/PeIcons.h"
#include "formats/PngImage.h"
#include "formats/ResourceIcons.h"
#include "formats/StoredImage.h"

namespace kestrel::formats {
namespace {

bool SniffPng(SourceReader& file) {
    return IsPng(file.Record<8>(0).bytes);
}

IconTable ListPng(SourceReader& file) {
    IconTable table;
    const IconPlace whole{0, static_cast<std::uint32_t>(file.Size()), 1, false};
    if (const auto image = ReadImageHead(file, whole.Where(), {}, kMaxPngSide))
        table.icons.push_back({whole, *image});
    return table;
}

std::vector<ImageEntry> OneImage(SourceReader& /*file*/, const IconTable& /*table*/,
                                 const ListedIcon& icon) {
    return {icon.first};
}

constexpr std::array kFormats{
    Format{SourceKind::Ico, "ICO", IsIconFile, ListDirectory, OneImage, nullptr},
    Format{SourceKind::Cur, "CUR", IsCursorFile, ListDirectory, OneImage, nullptr},
    Format{SourceKind::Png, "PNG", SniffPng, ListPng, OneImage, nullptr},
    Format{SourceKind::Pe, "PE", IsPe, ListPe, ResourceImages, PeText},
    Format{SourceKind::Ne, "NE", IsNe, ListNe, ResourceImages, NeText},
    Format{SourceKind::Ani, "ANI", IsAni, ListAni, StepImages, nullptr},
};

}  // namespace

std::span<const Format> Formats() {
    return kFormats;
}

const Format* FormatOf(SourceReader& file) {
    const auto* const found =
        std::ranges::find_if(kFormats, [&](const Format& format) { return format.sniff(file); });
    return found != kFormats.end() ? found : nullptr;
}

std::string_view KindName(SourceKind kind) {
    return std::ranges::find(kFormats, kind, &Format::kind)->name;
}

}  // namespace kestrel::formats
