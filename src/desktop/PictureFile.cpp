#include "desktop/PictureFile.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>
#include <cstdlib>

#include "desktop/Pictures.h"
#include "formats/IconFile.h"
#include "formats/PngImage.h"

namespace kestrel::desktop {

namespace {

// No screen is wider or higher.
constexpr int kLongestSide = 32767;
constexpr gdi::COLORREF kOpaque = 0xFF000000;
// Of the file and what is unpacked of it.
constexpr qint64 kMostMemory = qint64{52} << 20;

// Of a bitmap only these rows are unpacked.
constexpr int kMostKeptRows = 324;

constexpr qsizetype kBmpFileHeader = 14;
constexpr quint32 kCoreHeader = 12;
constexpr quint32 kInfoHeader = 40;
constexpr quint32 kBitFields = 3;
// Fields of BITMAPFILEHEADER, and of BITMAPCOREHEADER or BITMAPINFOHEADER behind it.
constexpr qsizetype kPixelsAt = 10;
constexpr qsizetype kCoreHeightAt = 20;
constexpr qsizetype kHeightAt = 22;

template <typename Number>
qint64 NumberAt(const QByteArray& file, qsizetype at) {
    return qFromLittleEndian<Number>(file.constData() + at);
}

// The bitmap without the rows that are not kept: the desktop library would read all of them.
// Nothing when rows are missing, or when it is compressed.
QByteArray OnlyKeptRows(const QByteArray& file, QSize size, const std::vector<int>& kept) {
    if (file.size() < kBmpFileHeader + qsizetype{kCoreHeader}) return {};
    const bool isCore = NumberAt<quint32>(file, kBmpFileHeader) == kCoreHeader;
    const qint64 header = isCore ? kCoreHeader : kInfoHeader;
    const qint64 pixels = NumberAt<quint32>(file, kPixelsAt);
    if (pixels < kBmpFileHeader + header || pixels > file.size()) return {};
    const qint64 compression = isCore ? 0 : NumberAt<quint32>(file, 30);
    if (compression != 0 && compression != kBitFields) return {};
    const qint64 bits = NumberAt<quint16>(file, isCore ? 24 : 28);
    const qint64 stride = (size.width() * bits + 31) / 32 * 4;
    if (pixels + stride * size.height() > file.size()) return {};

    const bool fromTop = !isCore && NumberAt<qint32>(file, kHeightAt) < 0;
    QByteArray rows = file.left(pixels);
    const auto count = static_cast<qint32>(kept.size());
    if (isCore) {
        qToLittleEndian(static_cast<quint16>(count), rows.data() + kCoreHeightAt);
    } else {
        qToLittleEndian(fromTop ? -count : count, rows.data() + kHeightAt);
    }
    for (qint32 i = 0; i < count; ++i) {
        const int y = kept[static_cast<std::size_t>(fromTop ? i : count - 1 - i)];
        rows += file.mid(pixels + stride * (fromTop ? y : size.height() - 1 - y), stride);
    }
    return rows;
}

// Whether the end of the file is missing, where the desktop library would show what is there.
bool IsCut(const QByteArray& file, const QByteArray& format) {
    constexpr qsizetype kTrailing = 64;
    if (format == "jpeg") return !file.right(kTrailing).contains("\xFF\xD9");
    if (format == "gif") return !file.endsWith(';');
    return false;
}

// Whether a JPEG is stored in several scans, so that what they say of all pixels is kept until the
// last one. Marker segments: ITU-T T.81, B.1.1 and B.2.
bool ComesInScans(const QByteArray& file) {
    constexpr quint8 kMarker = 0xFF;
    constexpr quint8 kFirstFrame = 0xC0;
    constexpr quint8 kExtendedFrame = 0xC1;
    constexpr quint8 kScan = 0xDA;
    constexpr qsizetype kLongestField = 9;
    const auto byte = [&](qsizetype at) { return static_cast<quint8>(file[at]); };
    quint8 components = 0;
    for (qsizetype at = 2; at + kLongestField < file.size() && byte(at) == kMarker;) {
        const quint8 marker = byte(at + 1);
        if (marker == kScan) return components == 0 || byte(at + 4) < components;
        if (marker == kFirstFrame || marker == kExtendedFrame) components = byte(at + 9);
        // Markers may be filled up.
        at += marker == kMarker ? 1 : 2 + 0x100 * byte(at + 2) + byte(at + 3);
    }
    return true;
}

// What the desktop library needs for a pixel while it reads; 0 for formats that nobody copies, some
// of them costly to read.
qint64 BytesAPixel(const QByteArray& format, const QByteArray& file) {
    constexpr qint64 kPixel = 4;
    constexpr qint64 kPixelTwice = 8;
    constexpr qint64 kPixelAndScans = 10;
    if (format == "gif" || format == "bmp") return kPixelTwice;
    if (format == "jpeg") return ComesInScans(file) ? kPixelAndScans : kPixel;
    return 0;
}

// Each scan of a JPEG goes over the whole picture.
bool HasManyScans(const QByteArray& file) {
    constexpr qsizetype kMostScans = 100;
    return file.count("\xFF\xDA") > kMostScans;
}

tl::unexpected<Error> UnreadablePicture() {
    return Fail(kInvalidPicture, "Invalid picture");
}

gdi::Surface PixelsOf(const formats::IconImage& icon) {
    gdi::Surface pixels = icon.planes.image;
    for (int y = 0; y < pixels.Height(); ++y) {
        for (int x = 0; x < pixels.Width(); ++x) {
            if (!icon.planes.IsTransparent(x, y))
                pixels.Row(y)[static_cast<std::size_t>(x)] |= kOpaque;
        }
    }
    return pixels;
}

// By the readers of the editor's own files.
Result<gdi::SampledPicture> ReadIcon(formats::Bytes file) {
    const auto icon = formats::ReadBestImage(file);
    if (!icon) return UnreadablePicture();
    return gdi::SampledPicture(PixelsOf(*icon));
}

Result<gdi::SampledPicture> ReadPng(formats::Bytes file) {
    const auto info = formats::ReadPngInfo(file, kLongestSide);
    if (!info) return UnreadablePicture();
    gdi::SampledPicture picture(gdi::Size{info->width, info->height});
    std::size_t work = 0;
    auto pixels = formats::ReadPngPixels(file, *info, picture.Kept(), work);
    if (!pixels) return UnreadablePicture();
    picture.Pixels() = *std::move(pixels);
    return picture;
}

// The pixels that are kept, out of an image of the same width and of the kept rows or of all.
void TakeKept(const QImage& image, gdi::SampledPicture& picture) {
    const auto& [columns, rows] = picture.Kept();
    const bool onlyKept = image.height() == picture.Pixels().Height();
    for (int y = 0; y < picture.Pixels().Height(); ++y) {
        auto pixel = picture.Pixels().Row(y).begin();
        for (const int x : columns)
            *pixel++ = ToPixel(image.pixel(x, onlyKept ? y : rows[static_cast<std::size_t>(y)]));
    }
}

Result<gdi::SampledPicture> ReadByLibrary(const QByteArray& file) {
    QBuffer buffer;
    buffer.setData(file);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    const bool isBmp = format == "bmp";
    const qint64 bytesAPixel = BytesAPixel(format, file);
    if (bytesAPixel == 0) return UnreadablePicture();
    // Asked before anything is allocated for it. Rows from the top make the height negative.
    const QSize told = reader.size();
    const QSize size(told.width(), std::abs(told.height()));
    if (size.isEmpty()) return UnreadablePicture();
    const qint64 rows = isBmp ? std::min(size.height(), kMostKeptRows) : size.height();
    if (qint64{size.width()} * rows * bytesAPixel + file.size() > kMostMemory)
        return UnreadablePicture();
    gdi::SampledPicture picture(gdi::Size{size.width(), size.height()});
    QImage image;
    if (isBmp) {
        image.loadFromData(OnlyKeptRows(file, size, picture.Kept().rows), "bmp");
    } else if (!IsCut(file, format) && !HasManyScans(file)) {
        image = reader.read();
    }
    if (image.isNull() || image.width() != size.width() || (!isBmp && image.size() != size))
        return UnreadablePicture();
    TakeKept(image, picture);
    return picture;
}

}  // namespace

Result<gdi::SampledPicture> ReadPicture(const QByteArray& file) {
    const formats::Bytes bytes(reinterpret_cast<const std::uint8_t*>(file.constData()),
                               static_cast<std::size_t>(file.size()));
    if (formats::IsPng(bytes)) return ReadPng(bytes);
    if (auto icon = ReadIcon(bytes)) return icon;
    return ReadByLibrary(file);
}

}  // namespace kestrel::desktop
