#include "cli/IconInput.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <span>
#include <utility>

#include "cli/ExitCodes.h"
#include "cli/Numbers.h"
#include "cli/Streams.h"
#include "formats/BestImage.h"
#include "formats/PngWriter.h"
#include "formats/UnreadableFile.h"
#include "platform/gdi/Blit.h"
#include "platform/system/SystemError.h"

namespace kestrel::cli {

namespace {

using formats::ImageEntry;
using system::SystemFailure;
using Source = Result<std::unique_ptr<system::ByteSource>>;

Source ReadWhole(int file) {
    auto bytes = ReadStream(file, formats::kMaxIconFileBytes);
    if (!bytes) return tl::unexpected(bytes.error());
    return std::make_unique<system::MemoryBytes>(*std::move(bytes));
}

// Pipes and devices have no size and are read as they come.
Source OpenStream(const InputFile& input) {
    struct stat status {};
    if (stat(input.name.c_str(), &status) < 0) return SystemFailure(errno);
    const bool isDevice = S_ISCHR(status.st_mode) || S_ISBLK(status.st_mode);
    if (input.isAmongOthers && isDevice) return Fail(EINVAL, "It is a device");
    const int flags = O_RDONLY | O_CLOEXEC | O_NOCTTY | (input.isAmongOthers ? O_NONBLOCK : 0);
    const int file = system::Retry([&] { return open(input.name.c_str(), flags); });
    if (file < 0) return SystemFailure(errno);
    Source bytes = ReadWhole(file);
    close(file);
    return bytes;
}

Source OpenAnything(const InputFile& input) {
    if (input.name == kStandardStream) return ReadWhole(STDIN_FILENO);
    Source file = system::OpenByteSource(input.name);
    return file || file.error().number != EINVAL ? std::move(file) : OpenStream(input);
}

// As much of a file as tells what is wrong with it.
Result<std::vector<std::uint8_t>> HeadOf(system::ByteSource& bytes) {
    constexpr std::uint64_t kEnough = 4096;
    std::vector<std::uint8_t> head(static_cast<std::size_t>(std::min(bytes.Size(), kEnough)));
    if (auto read = bytes.Read(0, head); !read) return tl::unexpected(read.error());
    return head;
}

// Programs and files of other kinds have their own reasons; an animation has none but that it holds
// nothing.
Error WhyNoIcons(std::span<const std::uint8_t> head, const Error& found) {
    if (found.number != kNoIcons) return found;
    system::MemoryBytes bytes(head);
    formats::SourceReader reader(bytes);
    const formats::Format* format = formats::FormatOf(reader);
    if (format != nullptr && format->kind == formats::SourceKind::Ani) return found;
    return formats::WhyUnreadable(head);
}

Result<formats::IconSource> OpenSource(const InputFile& input) {
    auto bytes = OpenAnything(input);
    if (!bytes) return tl::unexpected(bytes.error());
    const auto head = HeadOf(**bytes);
    if (!head) return tl::unexpected(head.error());
    const std::uint64_t size = (*bytes)->Size();
    auto source = formats::IconSource::Open(*std::move(bytes), input.name,
                                            formats::IconSource::Lists::Stored);
    if (!source) return tl::unexpected(WhyNoIcons(*head, source.error()));
    if (formats::IsOneIcon(source->kind) && size > formats::kMaxIconFileBytes)
        return SystemFailure(EFBIG);
    return source;
}

tl::unexpected<Error> FileFailure(const std::string& name, const Error& error) {
    return FailureOf(name == kStandardStream ? "standard input" : name, error);
}

// The size in which an image is read: that of an icon, or what Paste makes of a PNG.
gdi::Size WantedSize(const SourceFile& file, const std::vector<ImageEntry>& images,
                     imaging::PasteFit fit) {
    if (file.Source().kind != formats::SourceKind::Png) return {gdi::kIconSize, gdi::kIconSize};
    const gdi::Size size{images[0].info.width, images[0].info.height};
    return imaging::FitsIcon(size) ? size : imaging::FittedSize(size, fit);
}

// The first icon of which an image can be read, or else the first.
Result<std::size_t> FirstReadable(const SourceFile& file) {
    for (std::size_t icon = 0; icon < file.Count(); ++icon) {
        const auto images = file.Images(icon);
        if (images) return icon;
        if (images.error().number != formats::kDamagedPicture)
            return tl::unexpected(images.error());
    }
    return 0;
}

constexpr std::int64_t kMostNumber = 65536;

Result<std::size_t> NumberFor(std::string_view option, const std::string& text) {
    const auto number = NumberIn(text, 1, kMostNumber);
    if (number) return static_cast<std::size_t>(*number);
    return WrongUsage(std::string(option) + " wants a number from 1 to " +
                      std::to_string(kMostNumber));
}

}  // namespace

Result<SourceFile> SourceFile::Open(const InputFile& input) {
    auto source = OpenSource(input);
    if (!source) return FileFailure(input.name, source.error());
    return SourceFile(input.name, *std::move(source));
}

tl::unexpected<Error> SourceFile::Failure(const Error& error) const {
    return FileFailure(name_, error);
}

Result<std::string> SourceFile::NameOf(std::size_t icon) const {
    return Named(source_.NameOf(icon));
}

Result<std::vector<ImageEntry>> SourceFile::Images(std::size_t icon) const {
    if (!IsOneIcon()) {
        auto images = Named(source_.Images(icon));
        if (!images || !images->empty()) return images;
        return Failure({formats::kDamagedPicture,
                        "no image of icon " + std::to_string(icon + 1) + " can be read"});
    }
    std::vector<ImageEntry> images;
    for (std::size_t i = 0; i < source_.count; ++i) {
        auto image = source_.Images(i);
        if (!image) return Failure(image.error());
        std::ranges::move(*image, std::back_inserter(images));
    }
    return images;
}

Result<std::vector<std::uint8_t>> SourceFile::Png(const ImageEntry& image) const {
    if (image.info.png) return Named(source_.Stored(image));
    const auto pixels = source_.Pixels(image);
    if (!pixels) return Failure(pixels.error());
    return formats::PngBytes(*pixels);
}

gdi::Point SourceFile::HotspotIn(const ImageEntry& image, gdi::Rect place) const {
    if (source_.kind != formats::SourceKind::Cur) return {};
    const auto scaled = [](int at, int from, int to) { return std::min(at, from - 1) * to / from; };
    return {place.left + scaled(image.hotspot.x, image.info.width, place.width),
            place.top + scaled(image.hotspot.y, image.info.height, place.height)};
}

Result<std::size_t> SourceFile::Numbered(const std::string& number) const {
    const auto icon = NumberFor("--icon", number);
    if (!icon) return icon;
    if (*icon <= Count()) return *icon - 1;
    return Failure(
        {EINVAL, "there is no icon " + number + "; the last is " + std::to_string(Count())});
}

Result<void> CheckChoice(const IconChoice& choice) {
    for (const auto& [option, text] :
         {std::pair{"--icon", &choice.icon}, {"--image", &choice.image}}) {
        if (!*text) continue;
        if (auto number = NumberFor(option, **text); !number) return tl::unexpected(number.error());
    }
    return {};
}

Result<std::vector<ImageEntry>> ChosenImages(const SourceFile& file, const IconChoice& choice) {
    const auto icon = choice.icon ? file.Numbered(*choice.icon) : FirstReadable(file);
    if (!icon) return tl::unexpected(icon.error());
    auto images = file.Images(*icon);
    if (!images || !choice.image) return images;
    const auto number = NumberFor("--image", *choice.image);
    if (!number) return tl::unexpected(number.error());
    const auto image = std::ranges::find(*images, *number - 1, &ImageEntry::index);
    if (image != images->end()) return std::vector{*image};
    return file.Failure(
        {EINVAL, "there is no image " + *choice.image + " in icon " + std::to_string(*icon + 1)});
}

Result<OpenedIcon> ReadIcon(const SourceFile& file, const IconChoice& choice,
                            imaging::PasteFit fit) {
    const auto images = ChosenImages(file, choice);
    if (!images) return tl::unexpected(images.error());
    const gdi::Size size = WantedSize(file, *images, fit);
    const auto image = file.Named(file.Source().Best(*images, size));
    if (!image) return tl::unexpected(image.error());
    OpenedIcon icon;
    icon.hotspot = file.HotspotIn(formats::BestFirst(*images).front(), icon.planes.Bounds());
    for (const auto& [to, from] : {std::pair{&icon.planes.image, &image->planes.image},
                                   {&icon.planes.mask, &image->planes.mask}}) {
        gdi::BitBlt(*to, 0, 0, size.width, size.height, *from, 0, 0, gdi::RasterOp::Copy);
    }
    return icon;
}

}  // namespace kestrel::cli
