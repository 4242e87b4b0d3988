#include "platform/qt/PictureIcon.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace kestrel::qt {
namespace {

// The pixels as text: a letter a colour, '.' where nothing is.
std::string Drawn(const QIcon& icon, QSize size, QIcon::Mode mode = QIcon::Normal) {
    const QImage image =
        icon.pixmap(size, 1.0, mode).toImage().convertToFormat(QImage::Format_ARGB32);
    std::string text;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            const bool grey = color.red() == color.green() && color.green() == color.blue();
            if (color.alpha() == 0)
                text += '.';
            else if (color.alpha() < 255)
                text += grey ? 'g' : '?';
            else
                text += color == Qt::red ? 'r' : color == Qt::blue ? 'b' : '?';
        }
        text += ' ';
    }
    return text;
}

TEST(PictureIcon, DrawsInWholeStepsAndGreyWhenDisabled) {
    constexpr std::array<gdi::ArtInk, 2> kInks = {
        {{'r', gdi::Rgb(255, 0, 0)}, {'b', gdi::Rgb(0, 0, 255)}}};
    constexpr std::array<std::string_view, 2> kPictures = {"rb\nb.", "bb\nbb"};
    const controls::ImageList list(kPictures, kInks);
    const QIcon icon = PictureIcon(list, 1);
    EXPECT_EQ(Drawn(icon, {2, 2}), "rb b. ");
    EXPECT_EQ(Drawn(icon, {4, 4}), "rrbb rrbb bb.. bb.. ");
    EXPECT_EQ(Drawn(icon, {6, 5}), "...... .rrbb. .rrbb. .bb... .bb... ") << "in the middle";
    EXPECT_EQ(Drawn(icon, {2, 2}, QIcon::Disabled), "gg g. ");
    EXPECT_EQ(Drawn(PictureIcon(list, 2), {2, 2}), "bb bb ");
    EXPECT_TRUE(PictureIcon(list, 0).isNull());
    EXPECT_TRUE(PictureIcon(list, 3).isNull());
}

}  // namespace
}  // namespace kestrel::qt
