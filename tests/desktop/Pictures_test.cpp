#include <gtest/gtest.h>

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <array>

#include "desktop/PictureFile.h"
#include "desktop/QtClipboard.h"
#include "windows/widgets/PictureIcon.h"

namespace kestrel::desktop {
namespace {

TEST(PictureIcon, DrawsInWholeStepsInTheMiddleAndGreyWhenDisabled) {
    constexpr std::array<gdi::ArtInk, 2> kInks = {
        {{'r', gdi::Rgb(255, 0, 0)}, {'b', gdi::Rgb(0, 0, 255)}}};
    constexpr std::array<std::string_view, 2> kPictures = {"bb\nbb", "rb\nb."};
    const controls::ImageList list(kPictures, kInks);
    const QIcon icon = widgets::PictureIcon(list, 2);
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

TEST(PictureFile, BitmapsOfEveryHeaderAreRead) {
    using namespace std::string_literals;
    // 2 x 1 pixels of 24 bits in blue, green and red; a row takes 8 bytes.
    const std::string row = "\1\2\3\4\5\6\0\0"s;
    const auto file = [](const std::string& header, const std::string& pixels) {
        const auto start = static_cast<char>(14 + header.size());
        return QByteArray::fromStdString("BM"s + std::string(8, '\0') + start + "\0\0\0"s + header +
                                         pixels);
    };
    const auto info = [](const std::string& height, char compression) {
        return "\x28\0\0\0\2\0\0\0"s + height + "\1\0\x18\0"s + compression + std::string(23, '\0');
    };
    const std::string core = "\x0C\0\0\0\2\0\1\0\1\0\x18\0"s;
    const std::string upwards = info("\1\0\0\0"s, 0);
    const std::string downwards = info("\xFF\xFF\xFF\xFF"s, 0);
    for (const std::string& header : {core, upwards, downwards}) {
        const auto picture = ReadPicture(file(header, row));
        ASSERT_TRUE(picture) << header.size();
        EXPECT_EQ(picture->Row(0)[1], 0xFF040506);
        EXPECT_FALSE(ReadPicture(file(header, row.substr(0, 7)))) << header.size();
    }
    EXPECT_FALSE(ReadPicture(file(info("\1\0\0\0"s, 1), row))) << "compressed";
    EXPECT_FALSE(ReadPicture("P3 1 1 255 1 2 3")) << "not what programs copy";
}

TEST(PictureFile, CutFilesAreRefused) {
    QImage image(40, 30, QImage::Format_RGB32);
    for (int i = 0; i < 40 * 30; ++i)
        image.setPixel(i % 40, i / 40, 0x6B43A9U * static_cast<QRgb>(i));
    for (const char* format : {"PNG", "BMP", "JPG"}) {
        QByteArray file;
        QBuffer buffer(&file);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, format);
        EXPECT_TRUE(ReadPicture(file)) << format;
        for (const qsizetype cut : {qsizetype{0}, qsizetype{10}, qsizetype{40}, file.size() / 2})
            EXPECT_FALSE(ReadPicture(file.left(cut))) << format << " cut at " << cut;
    }
}

TEST(QtClipboard, TellsWhetherItHoldsAPicture) {
    QtClipboard clipboard;
    int changes = 0;
    clipboard.onChanged = [&] { ++changes; };
    clipboard.SetImage(gdi::Surface(3, 1));
    EXPECT_TRUE(clipboard.HasImage());
    EXPECT_EQ(changes, 1);
    QGuiApplication::clipboard()->setText("text");
    EXPECT_FALSE(clipboard.HasImage());
    EXPECT_EQ(changes, 2);
    EXPECT_FALSE(clipboard.GetImage());
}

}  // namespace
}  // namespace kestrel::desktop
