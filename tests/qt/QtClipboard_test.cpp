#include "platform/qt/QtClipboard.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include "platform/qt/PictureFile.h"

namespace kestrel::qt {
namespace {

QByteArray FileOf(const QImage& image, const char* format) {
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return file;
}

TEST(QtClipboard, KeepsPixelsWithTheirAlpha) {
    constexpr gdi::COLORREF kPixels[] = {0xFF0201FE, 0x00FFFFFF, 0x80102030};
    gdi::Surface copied(3, 1);
    std::copy(std::begin(kPixels), std::end(kPixels), copied.Row(0).begin());
    QtClipboard clipboard;
    int changes = 0;
    clipboard.onChanged = [&] { ++changes; };
    clipboard.SetImage(copied);
    EXPECT_TRUE(clipboard.HasImage());
    EXPECT_EQ(changes, 1);
    const auto pasted = clipboard.GetImage();
    ASSERT_TRUE(pasted);
    EXPECT_TRUE(pasted->SamePixels(copied));
    const QImage bitmap =
        QImage::fromData(QGuiApplication::clipboard()->mimeData()->data("image/bmp"), "BMP");
    EXPECT_EQ(bitmap.pixelColor(0, 0), QColor(0xFE, 0x01, 0x02));
    EXPECT_EQ(bitmap.pixelColor(1, 0), QColor(Qt::white));
    EXPECT_EQ(bitmap.pixelColor(2, 0), QColor(0x30, 0x20, 0x10));
    QGuiApplication::clipboard()->setText("text");
    EXPECT_FALSE(clipboard.HasImage());
    EXPECT_EQ(changes, 2);
    EXPECT_FALSE(clipboard.GetImage());
    QGuiApplication::clipboard()->clear();
    EXPECT_FALSE(clipboard.HasImage());
}

TEST(QtClipboard, DamagedPicturesAreRefused) {
    QImage image(40, 30, QImage::Format_RGB32);
    for (int i = 0; i < 40 * 30; ++i)
        image.setPixel(i % 40, i / 40, qRgb(i * 7, i * 13, i * 29));
    for (const char* format : {"PNG", "BMP", "JPG"}) {
        const QByteArray file = FileOf(image, format);
        const auto whole = ReadPicture(file);
        ASSERT_TRUE(whole) << format;
        EXPECT_EQ(whole->Bounds(), (gdi::Rect{0, 0, 40, 30}));
        for (const qsizetype cut : {qsizetype{0}, qsizetype{10}, qsizetype{40}, file.size() / 2}) {
            if (std::string_view(format) == "JPG" && cut == file.size() / 2) continue;
            EXPECT_FALSE(ReadPicture(file.left(cut))) << format << " cut at " << cut;
        }
    }
}

}  // namespace
}  // namespace kestrel::qt
