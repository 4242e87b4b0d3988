#include "formats/IconFile.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "formats/IconTable.h"
#include "formats/StoredImage.h"
#include "formats/UnreadableFile.h"
#include "i18n/Messages.h"

namespace kestrel::formats {
namespace {

tl::unexpected<Error> Refuse(Bytes file) {
    system::MemoryBytes bytes(file);
    SourceReader reader(bytes);
    const Format* format = FormatOf(reader);
    if (format != nullptr && !IsOneIcon(format->kind) &&
        !ListReadable(*format, reader).icons.empty())
        return Fail(kSeveralIcons, std::string(i18n::kSeveralIconsInside.Now()));
    return tl::unexpected<Error>(WhyUnreadable(file));
}

std::optional<IconImage> Decode(Bytes file, const ImageEntry& entry, std::optional<gdi::Size> size,
                                std::size_t& work) {
    const Bytes image = ByteReader(file).Part(entry.offset, entry.size);
    return DecodeStored(image, entry.info, size.value_or(SizeOf(entry.info)), work);
}

}  // namespace

Result<std::vector<ImageEntry>> ListImages(std::span<const std::uint8_t> file) {
    system::MemoryBytes bytes(file);
    SourceReader reader(bytes);
    std::vector<ImageEntry> entries;
    const Format* format = FormatOf(reader);
    if (format != nullptr && IsOneIcon(format->kind)) {
        const IconTable table = format->list(reader);
        for (const IconPlace& icon : table.icons)
            std::ranges::move(format->images(reader, table, icon), std::back_inserter(entries));
    }
    if (entries.empty()) return Refuse(file);
    return entries;
}

Result<IconImage> DecodeImage(std::span<const std::uint8_t> file, const ImageEntry& entry,
                              std::optional<gdi::Size> size) {
    std::size_t work = 0;
    auto icon = Decode(file, entry, size, work);
    if (!icon) return Refuse(file);
    return *std::move(icon);
}

Result<IconImage> ReadBestImage(std::span<const std::uint8_t> file, std::optional<gdi::Size> size) {
    const auto entries = ListImages(file);
    if (!entries) return tl::unexpected<Error>(entries.error());
    auto icon = DecodeBest(*entries, [&](const ImageEntry& entry, std::size_t& work) {
        return Decode(file, entry, size, work);
    });
    if (!icon) return Refuse(file);
    return *std::move(icon);
}

}  // namespace kestrel::formats
