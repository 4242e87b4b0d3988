#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "formats/IconFile.h"
#include "formats/IconPixels.h"
#include "formats/SourceReader.h"
#include "platform/gdi/PixelRun.h"
#include "platform/gdi/Samples.h"

namespace kestrel::formats {

// A size that a directory tells of an image; 0 x 0 = none is told.
struct DirectorySize {
    int width = 0;
    int height = 0;
};

// A side in a directory is one byte, in which 0 means 256.
inline int DirectorySide(std::uint8_t stored) {
    return stored == 0 ? 256 : stored;
}

// What the header at the start of a stored bitmap or PNG says, and how long the bitmap is; a PNG
// may be shorter than its entry. Nothing when the header cannot be used or the pixels lie outside.
std::optional<ImageEntry> ReadImageHead(SourceReader& file, Extent place, DirectorySize told,
                                        int longestPngSide = kMaxImageSide);

// The bytes of an image as they are stored, a PNG trimmed after its last chunk; nothing when it is
// larger than any icon file.
std::optional<std::vector<std::uint8_t>> ReadStoredImage(SourceReader& file,
                                                         const ImageEntry& entry);

// How much is read and unpacked to find images that are whole, in bytes; about half a second's
// worth. Real files stay far below it.
inline constexpr std::size_t kMostWork = std::size_t{128} << 20;

inline gdi::Size SizeOf(const ImageInfo& info) {
    return {info.width, info.height};
}

// Decodes a bitmap or a PNG as it is stored, in this size; nothing when it is not what its header
// said or the size has a side above 1024. Adds to `work` what was read and unpacked, in bytes.
std::optional<IconImage> DecodeStored(Bytes image, const ImageInfo& info, gdi::Size size,
                                      std::size_t& work);

// The same out of a file of any kind.
std::optional<IconImage> ReadAndDecode(SourceReader& file, const ImageEntry& image, gdi::Size size,
                                       std::size_t& work);

// The image's pixels as 0xAABBGGRR, with the alpha that is stored or else that of the mask. A PNG
// with a side above 1024 comes in proportion smaller, by dropping pixels.
std::optional<gdi::Surface> StoredPixels(Bytes image, const ImageInfo& info);

// The same pixels, all of them also of a large PNG, without ever holding such a one. False where it
// turns out to be damaged, which may be after some.
bool StoredRuns(Bytes image, const ImageInfo& info, const gdi::TakePixels& take);

// Tells icons that can be drawn from those whose images are all damaged PNGs. Bitmaps need no
// trial. After about 30 ms of trials the heads of images are believed.
class DrawableIcons {
  public:
    explicit DrawableIcons(SourceReader& file) : file_(file) {}

    // `images` are those of the icon, asked for where the first is not enough.
    bool CanDraw(const ImageEntry& first, const std::function<std::vector<ImageEntry>()>& images);

  private:
    SourceReader& file_;
    std::size_t work_ = 0;
};

// Decodes one image in the size that is asked for, or else its own.
using ImageDecoder = std::function<std::optional<IconImage>(const ImageEntry&, std::size_t& work)>;

// Decodes the image that suits 32 x 32 best of those that can be decoded with the work allowed.
std::optional<IconImage> DecodeBest(std::vector<ImageEntry> entries, const ImageDecoder& decode);

// Leaves out the PNG images that turn out to be damaged, which takes as long as to read all of
// them. After the work allowed those that were not looked at are left out too.
void KeepWhole(std::vector<ImageEntry>& entries, const ImageDecoder& decode);

}  // namespace kestrel::formats
