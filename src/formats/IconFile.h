#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "formats/IconImage.h"
#include "platform/Result.h"

namespace kestrel::formats {

// Where one image of an icon file lies, in bytes from the file's start, what its header says, and
// which entry of the directory, counted from 0, leads to it.
struct ImageEntry {
    std::size_t offset = 0;
    std::size_t size = 0;
    ImageInfo info;
    std::size_t index = 0;
    // Of a cursor file, in pixels; the words mean something else in other files.
    gdi::Point hotspot{};
};

// No icon file that this program reads is larger; callers cap what they load by it.
inline constexpr std::size_t kMaxIconFileBytes = std::size_t{32} << 20;

// Lists the images of an icon or cursor file, or of a PNG that bears an icon's name, in the order
// of the directory. Entries whose image cannot be read are left out, of PNG images as far as their
// header tells. When nothing is left it fails with the reason (see UnreadableFile.h).
// Formats: the ICO/CUR directory with BITMAPINFOHEADER images (sizes 40..124), and PNG images. A
// side is at most 1024 pixels, that of a PNG alone 8192.
Result<std::vector<ImageEntry>> ListImages(std::span<const std::uint8_t> file);

// Decodes one listed image, or fails with kDamagedPicture. Its planes have the size that is asked
// for, by repeating or dropping pixels, or else its own; neither may have a side above 1024.
Result<IconImage> DecodeImage(std::span<const std::uint8_t> file, const ImageEntry& entry,
                              std::optional<gdi::Size> size = std::nullopt);

// Decodes the image that suits a 32 x 32 icon best: 32 x 32 with the most bits per pixel, else the
// smallest max(|w - 32|, |h - 32|), ties to the larger, the deeper, the first. A damaged image is
// skipped and the next best taken; fails with the reason when none can be read.
Result<IconImage> ReadBestImage(std::span<const std::uint8_t> file,
                                std::optional<gdi::Size> size = std::nullopt);

}  // namespace kestrel::formats
