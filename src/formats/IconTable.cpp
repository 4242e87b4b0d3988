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

std::vector<ImageEntry> PngImages(SourceReader& file, const IconTable& /*table*/,
                                  const IconPlace& whole) {
    const auto image = ReadImageHead(file, whole.Where(), {}, kMaxPngSide);
    return image ? std::vector{*image} : std::vector<ImageEntry>{};
}

IconTable ListPng(SourceReader& file) {
    IconTable table;
    const IconPlace whole{0, static_cast<std::uint32_t>(file.Size()), 1, false};
    if (!PngImages(file, table, whole).empty()) table.icons.push_back(whole);
    return table;
}

constexpr std::array kFormats{
    Format{SourceKind::Ico, "ICO", IsIconFile, ListDirectory, nullptr, EntryImages, nullptr},
    Format{SourceKind::Cur, "CUR", IsCursorFile, ListDirectory, nullptr, EntryImages, nullptr},
    Format{SourceKind::Png, "PNG", SniffPng, ListPng, nullptr, PngImages, nullptr},
    Format{SourceKind::Pe, "PE", IsPe, ListPe, KeepReadable, ResourceImages, PeText},
    Format{SourceKind::Ne, "NE", IsNe, ListNe, KeepReadable, ResourceImages, NeText},
    Format{SourceKind::Ani, "ANI", IsAni, ListAni, nullptr, StepImages, nullptr},
};

}  // namespace

std::span<const Format> Formats() {
    return kFormats;
}

IconTable ListReadable(const Format& format, SourceReader& file) {
    IconTable table = format.list(file);
    if (format.keepReadable != nullptr) format.keepReadable(file, table);
    return table;
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
