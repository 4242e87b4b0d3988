#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <array>

#include "platform/qt/PictureFile.h"
#include "platform/qt/PictureIcon.h"
#include "platform/qt/QtClipboard.h"

namespace kestrel::qt {
namespace {

TEST(PictureIcon, DrawsInWholeStepsInTheMiddleAndGreyWhenDisabled) {
    constexpr std::array<gdi::ArtInk, 2> kInks = {
        {{'r', gdi::Rgb(255, 0, 0)}, {'b', gdi::Rgb(0, 0, 255)}}};
    constexpr std::array<std::string_view, 2> kPictures = {"bb\nbb", "rb\nb."};
    const controls::ImageList list(kPictures, kInks);
    const QIcon icon = PictureIcon(list, 2);
    QImage picture(2, 2, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::blue);
    picture.setPixelColor(0, 0, Qt::red);
    picture.setPixelColor(1, 1, Qt::transparent);
    EXPECT_EQ(icon.pixmap({6, 5}, 1.0).toImage().convertToFormat(picture.format()),
              picture.scaled(4, 4).copy(-1, -1, 6, 5));
    const QImage disabled = icon.pixmap({2, 2}, 1.0, QIcon::Disabled).toImage();
    EXPECT_EQ(disabled.pixelColor(0, 0).saturation(), 0);
    EXPECT_EQ(disabled.pixelColor(1, 1).alpha(), 0);
}

TEST(QtClipboard, KeepsPixelsWithTheirAlphaAndRefusesDamagedOnes) {
    gdi::Surface copied(40, 30);
    for (unsigned i = 0; i < 40 * 30; ++i)
        copied.Row(static_cast<int>(i / 40))[i % 40] = i * 0x6B43A9B5;
    QtClipboard clipboard;
    clipboard.SetImage(copied);
    const auto pasted = clipboard.GetImage();
    EXPECT_TRUE(pasted && pasted->SamePixels(copied));
    for (const char* format : {"image/png", "image/bmp"}) {
        const QByteArray file = QGuiApplication::clipboard()->mimeData()->data(format);
        EXPECT_TRUE(ReadPicture(file)) << format;
        for (const qsizetype cut : {qsizetype{0}, qsizetype{10}, qsizetype{40}, file.size() / 2})
            EXPECT_FALSE(ReadPicture(file.left(cut))) << format << " cut at " << cut;
    }
    QGuiApplication::clipboard()->setText("text");
    EXPECT_FALSE(clipboard.HasImage());
}

}  // namespace
}  // namespace kestrel::qt
