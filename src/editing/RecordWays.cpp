#include "editing/RecordWays.h"

#include <algorithm>
#include <utility>

#include "document/GridCoordinates.h"

namespace kestrel::editing {

namespace {

// A longer path cannot be opened.
constexpr std::size_t kLongestText = 4096;

}  // namespace

void RecordPutter::Text(const std::string& text) {
    const std::size_t length = std::min(text.size(), kLongestText);
    out_.U16(length);
    for (std::size_t i = 0; i < length; ++i)
        out_.U8(static_cast<unsigned char>(text[i]));
}

void RecordPutter::Difference(const PictureDifference& difference) {
    out_.U16(difference.Bytes().size());
    out_.Append(difference.Bytes());
}

void RecordPutter::Planes(const gdi::IconPlanes& planes) {
    Number(planes.Width(), 1);
    Number(planes.Height(), 1);
    for (int y = 0; y < planes.Height(); ++y) {
        for (int x = 0; x < planes.Width(); ++x)
            out_.U32(planes.image.GetPixel(x, y) | (planes.IsTransparent(x, y) ? kMaskBit : 0));
    }
}

void RecordTaker::Coordinate(int& v) {
    std::int16_t coordinate = 0;
    Number(coordinate, 2);
    v = coordinate;
    Require(v % document::kCellSize == 0);
}

void RecordTaker::Text(std::string& text) {
    std::size_t length = 0;
    Number(length, 2);
    Require(length <= kLongestText);
    const formats::Bytes letters = Part(length);
    text.assign(letters.begin(), letters.end());
}

void RecordTaker::Difference(PictureDifference& difference) {
    std::size_t length = 0;
    Number(length, 2);
    auto taken = PictureDifference::Read(Part(length));
    Require(taken.has_value());
    if (taken) difference = *std::move(taken);
}

void RecordTaker::Planes(gdi::IconPlanes& planes) {
    gdi::Size size;
    Number(size.width, 1);
    Number(size.height, 1);
    const auto fits = [](int side) { return side >= 1 && side <= gdi::kIconSize; };
    Require(fits(size.width) && fits(size.height));
    if (!sound_) return;
    planes = gdi::IconPlanes(size.width, size.height);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            std::uint32_t pixel = 0;
            Number(pixel, 4);
            planes.image.SetPixel(x, y, pixel);
            planes.mask.SetPixel(x, y, (pixel & kMaskBit) != 0 ? gdi::kWhite : gdi::kBlack);
        }
    }
}

formats::Bytes RecordTaker::Part(std::uint64_t count) {
    Require(bytes_.Has(at_, count));
    if (!sound_) return {};
    return bytes_.Part(std::exchange(at_, at_ + count), count);
}

}  // namespace kestrel::editing
