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
    constexpr gdi::ArtInk kInks[] = {{'r', gdi::Rgb(255, 0, 0)}};
    constexpr std::string_view kPictures[] = {".", "r."};
    const controls::ImageList list(kPictures, kInks);
    for (const auto mode : {QIcon::Normal, QIcon::Disabled}) {
        const QImage icon = widgets::PictureIcon(list, 2).pixmap({5, 4}, 1.0, mode).toImage();
        for (const auto& [x, y, opaque] :
             {std::tuple{0, 1, false}, {1, 0, false}, {1, 1, true}, {2, 2, true}, {3, 2, false}}) {
            const QColor color = icon.pixelColor(x, y);
            EXPECT_EQ(color.alpha() > 0, opaque) << x << ", " << y;
            EXPECT_EQ(color.saturation() > 0, opaque && mode == QIcon::Normal);
        }
    }
}

// 2 x 1 pixels of 24 bits in blue, green and red; a row takes 8 bytes.
TEST(PictureFile, BitmapsOfEveryHeaderAreRead) {
    const struct {
        const char* name;
        const char* header;  // from the place of the pixels on
        bool readable;
    } cases[] = {{"core", "1A000000 0C000000 0200 0100 0100 1800", true},
                 {"upwards", "36000000 28000000 02000000 01000000 0100 1800", true},
                 {"downwards", "36000000 28000000 02000000 FFFFFFFF 0100 1800", true},
                 {"compressed", "36000000 28000000 02000000 01000000 0100 1800 01000000", false}};
    for (const auto& [name, header, readable] : cases) {
        const QByteArray start =
            QByteArray::fromHex("424D 00000000 00000000") + QByteArray::fromHex(header);
        const QByteArray file =
            start.leftJustified(start[10], '\0') + QByteArray::fromHex("0102030405060000");
        const auto picture = ReadPicture(file);
        ASSERT_EQ(picture.has_value(), readable) << name;
        EXPECT_TRUE(!readable || picture->Pixels().Row(0)[1] == 0xFF040506) << name;
        EXPECT_FALSE(ReadPicture(file.chopped(1))) << name;
    }
}

TEST(PictureFile, CutAndUncommonFilesAreRefused) {
    QImage image(40, 30, QImage::Format_RGB32);
    for (int i = 0; i < 40 * 30; ++i)
        image.setPixel(i % 40, i / 40, 0x6B43A9U * static_cast<QRgb>(i));
    for (const char* format : {"PNG", "BMP", "JPG", "PPM"}) {
        QByteArray file;
        QBuffer buffer(&file);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, format);
        EXPECT_EQ(ReadPicture(file).has_value(), file[0] != 'P') << format;
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
