#include "editing/PackedPicture.h"

#include <bit>

namespace kestrel::editing {

namespace {

constexpr int kRowBytes = 1;
constexpr int kBitsBytes = 4;
constexpr int kColorBytes = 3;
constexpr std::uint32_t kRows = gdi::kIconSize;
static_assert(kRows == 32, "four bytes hold one bit for each pixel of a row");
constexpr std::size_t kMostBytes =
    std::size_t{kRows} * (kRowBytes + 2 * kBitsBytes + kRows * kColorBytes);

constexpr std::uint32_t Bit(std::uint32_t position) {
    return 1U << position;
}

class Writer {
  public:
    void Put(std::uint32_t value, int count) {
        for (int i = 0; i < count; ++i)
            bytes_[size_++] = static_cast<std::uint8_t>(value >> 8 * i);
    }
    std::span<const std::uint8_t> Written() const { return std::span(bytes_).first(size_); }

  private:
    std::array<std::uint8_t, kMostBytes> bytes_{};
    std::size_t size_ = 0;
};

class Reader {
  public:
    explicit Reader(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

    bool AtEnd() const { return rest_.empty(); }
    bool Has(std::size_t count) const { return rest_.size() >= count; }
    std::uint32_t Take(int count) {
        std::uint32_t value = 0;
        for (int i = 0; i < count; ++i)
            value |= std::uint32_t{rest_[static_cast<std::size_t>(i)]} << 8 * i;
        Skip(static_cast<std::size_t>(count));
        return value;
    }
    void Skip(std::size_t count) { rest_ = rest_.subspan(count); }

  private:
    std::span<const std::uint8_t> rest_;
};

using Row = std::span<const std::uint32_t, kRows>;

void PutRow(Writer& writer, std::uint32_t y, Row one, Row other) {
    std::uint32_t columns = 0;
    std::uint32_t masks = 0;
    for (std::uint32_t x = 0; x < kRows; ++x) {
        const std::uint32_t difference = one[x] ^ other[x];
        if (difference != 0) columns |= Bit(x);
        if ((difference & kMaskBit) != 0) masks |= Bit(x);
    }
    if (columns == 0) return;
    writer.Put(y, kRowBytes);
    writer.Put(columns, kBitsBytes);
    writer.Put(masks, kBitsBytes);
    for (std::uint32_t x = 0; x < kRows; ++x) {
        if ((columns & Bit(x)) != 0) writer.Put(one[x] ^ other[x], kColorBytes);
    }
}

}  // namespace

PackedPicture Pack(const gdi::IconPlanes& icon) {
    PackedPicture picture;
    const auto masks = icon.mask.Pixels();
    const auto colors = icon.image.Pixels();
    for (std::size_t i = 0; i < picture.size(); ++i)
        picture[i] = colors[i] | (masks[i] == gdi::kWhite ? kMaskBit : 0);
    return picture;
}

void Unpack(const PackedPicture& picture, gdi::IconPlanes& icon) {
    for (int y = 0; y < gdi::kIconSize; ++y) {
        const auto masks = icon.mask.Row(y);
        const auto colors = icon.image.Row(y);
        for (std::size_t x = 0; x < kRows; ++x) {
            const std::uint32_t pixel = picture[static_cast<std::size_t>(y) * kRows + x];
            masks[x] = (pixel & kMaskBit) != 0 ? gdi::kWhite : gdi::kBlack;
            colors[x] = pixel & gdi::kWhite;
        }
    }
}

PackedPicture EmptyPicture() {
    PackedPicture picture;
    picture.fill(kMaskBit);
    return picture;
}

PictureDifference::PictureDifference(const PackedPicture& one, const PackedPicture& other) {
    Writer writer;
    for (std::uint32_t y = 0; y < kRows; ++y)
        PutRow(writer, y, Row(one.data() + std::size_t{y} * kRows, kRows),
               Row(other.data() + std::size_t{y} * kRows, kRows));
    const auto written = writer.Written();
    bytes_.assign(written.begin(), written.end());
}

std::optional<PictureDifference> PictureDifference::Read(std::span<const std::uint8_t> bytes) {
    constexpr std::size_t kHead = kRowBytes + 2 * kBitsBytes;
    for (Reader reader(bytes); !reader.AtEnd();) {
        if (!reader.Has(kHead) || reader.Take(kRowBytes) >= kRows) return std::nullopt;
        const std::uint32_t columns = reader.Take(kBitsBytes);
        reader.Take(kBitsBytes);
        const std::size_t colors = kColorBytes * static_cast<std::size_t>(std::popcount(columns));
        if (!reader.Has(colors)) return std::nullopt;
        reader.Skip(colors);
    }
    PictureDifference difference;
    difference.bytes_.assign(bytes.begin(), bytes.end());
    return difference;
}

void PictureDifference::ApplyTo(PackedPicture& picture) const {
    for (Reader reader(bytes_); !reader.AtEnd();) {
        const std::size_t row = std::size_t{reader.Take(kRowBytes)} * kRows;
        const std::uint32_t columns = reader.Take(kBitsBytes);
        const std::uint32_t masks = reader.Take(kBitsBytes);
        for (std::uint32_t x = 0; x < kRows; ++x) {
            if ((columns & Bit(x)) == 0) continue;
            const std::uint32_t mask = (masks & Bit(x)) != 0 ? kMaskBit : 0;
            picture[row + x] ^= mask | reader.Take(kColorBytes);
        }
    }
}

}  // namespace kestrel::editing
