#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/IconFile.h"
#include "formats/IconTable.h"
#include "platform/Result.h"
#include "platform/gdi/PixelRun.h"
#include "platform/system/ByteSource.h"

namespace kestrel::formats {

// A file that icons can be taken from: an icon, cursor or PNG file, a program or library of 16, 32
// or 64 bits, an animated cursor. Which of them it is its content tells, never its name. Opening
// lists the icons; what they look like is read when it is asked for, and nothing of it is kept.
//
// Icons are, of an icon or cursor file, each image in the file's order that can be read; of a
// program each group of images, names before numbers, or each image where there is no group; of an
// animated cursor each step up to the first that cannot be drawn.
//
// Every question may fail with an errno value or kFileChanged; an icon is counted from 0.
class IconSource {
  public:
    // Which icons of a program are listed: all that it stores, so that each has the number that its
    // place gives it and only those are read that are asked for; or those of which an image can be
    // read. Of PNG images one has to be whole; the first 30 ms of trials are spent on that, and
    // beyond them the head counts.
    enum class Lists { Stored, Readable };

    // `name` is the file's name without its folder. Fails also with kNoIcons or kIconsElsewhere for
    // a file that can be read but holds no icons, and with EFBIG beyond 4 GB.
    static Result<IconSource> Open(std::unique_ptr<system::ByteSource> bytes, std::string name,
                                   Lists lists);

    SourceKind kind = SourceKind::Ico;
    std::string name;
    std::size_t count = 0;

    // A program's own name for the icon in UTF-8, or its number in decimal digits. Numbers of
    // images and steps count from 1.
    Result<std::string> NameOf(std::size_t icon) const;
    // The icon's images in the order of its directory, without repeats and those that cannot be
    // used; nothing is left of a stored icon that cannot be read.
    Result<std::vector<ImageEntry>> Images(std::size_t icon) const;
    // The image that suits 32 x 32 best, as ReadBestImage chooses among a file's images; damaged
    // ones give way to the next best. Fails with kDamagedPicture when none can be decoded. Planes
    // have the size that is asked for, by repeating or dropping pixels, or else their own; neither
    // may have a side above 1024, which only that of a PNG file can.
    Result<IconImage> Icon(std::size_t icon, std::optional<gdi::Size> size = std::nullopt) const;

    // The same for images of this file that are given, and those of them that can be decoded; a PNG
    // is decoded to know, for about half a second at most.
    Result<IconImage> Best(std::vector<ImageEntry> images,
                           std::optional<gdi::Size> size = std::nullopt) const;
    Result<std::vector<ImageEntry>> Whole(std::vector<ImageEntry> images) const;

    // One of Images(): decoded (or kDamagedPicture), and its bytes as they are stored, trimmed to
    // the length that its own header tells. Both fail with EFBIG beyond 32 MB.
    Result<IconImage> Decode(const ImageEntry& image,
                             std::optional<gdi::Size> size = std::nullopt) const;
    Result<std::vector<std::uint8_t>> Stored(const ImageEntry& image) const;
    // Its pixels as 0xAABBGGRR, with the alpha that is stored or else that of the mask. A PNG with
    // a side above 1024 comes in proportion smaller.
    Result<gdi::Surface> Pixels(const ImageEntry& image) const;
    // All of them, also of a large PNG, given away piece by piece.
    Result<void> GivePixels(const ImageEntry& image, const gdi::TakePixels& take) const;

  private:
    explicit IconSource(std::unique_ptr<system::ByteSource> bytes);

    std::unique_ptr<system::ByteSource> bytes_;
    const Format* format_ = nullptr;
    IconTable table_;
};

}  // namespace kestrel::formats
