#include "desktop/PictureFile.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>
#include <cstdlib>

#include "desktop/Pictures.h"

namespace kestrel::desktop {

namespace {

// In 32 bits just what the desktop library allocates at most.
constexpr qint64 kMostPixels = qint64{1} << 25;

constexpr qsizetype kBmpFileHeader = 14;
constexpr quint32 kCoreHeader = 12;
constexpr quint32 kInfoHeader = 40;
constexpr quint32 kBitFields = 3;

template <typename Number>
qint64 NumberAt(const QByteArray& file, qsizetype at) {
    return qFromLittleEndian<Number>(file.constData() + at);
}

// Fields of BITMAPFILEHEADER and of BITMAPCOREHEADER or BITMAPINFOHEADER. A compressed bitmap
// counts as cut.
bool IsCutBmp(const QByteArray& file, QSize size) {
    if (file.size() < kBmpFileHeader + qsizetype{kCoreHeader}) return true;
    const bool isCore = NumberAt<quint32>(file, kBmpFileHeader) == kCoreHeader;
    if (!isCore && file.size() < kBmpFileHeader + qsizetype{kInfoHeader}) return true;
    const qint64 compression = isCore ? 0 : NumberAt<quint32>(file, 30);
    if (compression != 0 && compression != kBitFields) return true;
    const qint64 bits = NumberAt<quint16>(file, isCore ? 24 : 28);
    const qint64 stride = (size.width() * bits + 31) / 32 * 4;
    return NumberAt<quint32>(file, 10) + stride * size.height() > file.size();
}

// Whether the end of the file is missing, where the desktop library would not tell: it shows what
// is there, and of a bitmap what the memory held before.
bool IsCut(const QByteArray& file, const QByteArray& format, QSize size) {
    constexpr qsizetype kTrailing = 64;
    if (format == "bmp") return IsCutBmp(file, size);
    if (format == "jpeg") return !file.right(kTrailing).contains("\xFF\xD9");
    if (format == "gif") return !file.endsWith(';');
    return false;
}

// The desktop library knows other formats that nobody copies, some of them costly to read.
bool IsKnown(const QByteArray& format) {
    return format == "png" || format == "bmp" || format == "gif" || format == "jpeg";
}

tl::unexpected<Error> Unreadable() {
    return Fail(kInvalidPicture, "Invalid picture");
}

}  // namespace

Result<gdi::Surface> ReadPicture(const QByteArray& file) {
    QBuffer buffer;
    buffer.setData(file);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    if (!IsKnown(format)) return Unreadable();
    // Asked before anything is allocated for it. Rows from the top make the height negative.
    const QSize told = reader.size();
    const QSize size(told.width(), std::abs(told.height()));
    if (size.isEmpty() || qint64{size.width()} * size.height() > kMostPixels) return Unreadable();
    if (IsCut(file, format, size)) return Unreadable();
    const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
    if (image.isNull()) return Unreadable();
    return ToSurface(image);
}

}  // namespace kestrel::desktop
