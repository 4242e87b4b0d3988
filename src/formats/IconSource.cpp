#include "formats/IconSource.h"

#include <cerrno>
#include <utility>

#include "formats/BestImage.h"
#include "formats/StoredImage.h"
#include "formats/UnreadableFile.h"
#include "i18n/Messages.h"

namespace kestrel::formats {
namespace {

tl::unexpected<Error> Damaged() {
    return Fail(kDamagedPicture, std::string(i18n::kDamagedPicture.Now()));
}

tl::unexpected<Error> WithoutIcons(const IconTable& table) {
    if (!table.elsewhere) return Fail(kNoIcons, "The file contains no icons");
    return Fail(kIconsElsewhere,
                "The file contains no icons; the system keeps them in a .mun file");
}

}  // namespace

IconSource::IconSource(std::unique_ptr<system::ByteSource> bytes) : bytes_(std::move(bytes)) {}

Result<IconSource> IconSource::Open(std::unique_ptr<system::ByteSource> bytes, std::string name,
                                    Lists lists) {
    if (bytes->Size() > system::kLargestSource) return Fail(EFBIG, "The file is larger than 4 GB");
    SourceReader file(*bytes);
    IconSource source(std::move(bytes));
    const Format* format = FormatOf(file);
    if (format != nullptr) {
        source.table_ = lists == Lists::Stored ? format->list(file) : ListReadable(*format, file);
    }
    if (auto sound = file.CheckUnchanged(); !sound) return tl::unexpected(sound.error());
    if (source.table_.icons.empty()) return WithoutIcons(source.table_);
    source.format_ = format;
    source.kind = format->kind;
    source.name = std::move(name);
    source.count = source.table_.icons.size();
    return source;
}

Result<std::string> IconSource::NameOf(std::size_t icon) const {
    const IconPlace& place = table_.icons.at(icon);
    if (!place.named) return std::to_string(place.name);
    SourceReader file(*bytes_);
    std::string text = format_->text(file, place.name);
    if (auto sound = file.Check(); !sound) return tl::unexpected(sound.error());
    return text;
}

Result<std::vector<ImageEntry>> IconSource::Images(std::size_t icon) const {
    SourceReader file(*bytes_);
    auto images = format_->images(file, table_, table_.icons.at(icon));
    if (auto sound = file.Check(); !sound) return tl::unexpected(sound.error());
    return WithoutRepeats(std::move(images));
}

Result<IconImage> IconSource::Icon(std::size_t icon, std::optional<gdi::Size> size) const {
    auto images = Images(icon);
    if (!images) return tl::unexpected(images.error());
    return Best(*std::move(images), size);
}

Result<IconImage> IconSource::Best(std::vector<ImageEntry> images,
                                   std::optional<gdi::Size> size) const {
    SourceReader file(*bytes_);
    auto best = DecodeBest(std::move(images), [&](const ImageEntry& image, std::size_t& work) {
        return ReadAndDecode(file, image, size.value_or(SizeOf(image.info)), work);
    });
    if (auto sound = file.CheckUnchanged(); !sound) return tl::unexpected(sound.error());
    if (!best) return Damaged();
    return *std::move(best);
}

Result<std::vector<ImageEntry>> IconSource::Whole(std::vector<ImageEntry> images) const {
    SourceReader file(*bytes_);
    KeepWhole(images, [&](const ImageEntry& image, std::size_t& work) {
        return ReadAndDecode(file, image, {1, 1}, work);
    });
    if (auto sound = file.Check(); !sound) return tl::unexpected(sound.error());
    if (images.empty()) return Damaged();
    return images;
}

Result<IconImage> IconSource::Decode(const ImageEntry& image, std::optional<gdi::Size> size) const {
    const auto bytes = Stored(image);
    if (!bytes) return tl::unexpected(bytes.error());
    std::size_t work = 0;
    auto icon = DecodeStored(*bytes, image.info, size.value_or(SizeOf(image.info)), work);
    if (!icon) return Damaged();
    return *std::move(icon);
}

Result<std::vector<std::uint8_t>> IconSource::Stored(const ImageEntry& image) const {
    SourceReader file(*bytes_);
    auto bytes = ReadStoredImage(file, image);
    if (auto sound = file.CheckUnchanged(); !sound) return tl::unexpected(sound.error());
    if (!bytes) return Fail(EFBIG, "The image is larger than 32 MB");
    return *std::move(bytes);
}

Result<gdi::Surface> IconSource::Pixels(const ImageEntry& image) const {
    const auto bytes = Stored(image);
    if (!bytes) return tl::unexpected(bytes.error());
    auto pixels = StoredPixels(*bytes, image.info);
    if (!pixels) return Damaged();
    return *std::move(pixels);
}

Result<void> IconSource::GivePixels(const ImageEntry& image, const gdi::TakePixels& take) const {
    const auto bytes = Stored(image);
    if (!bytes) return tl::unexpected(bytes.error());
    if (!StoredRuns(*bytes, image.info, take)) return Damaged();
    return {};
}

}  // namespace kestrel::formats
