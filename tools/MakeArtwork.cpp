// Writes the program's artwork as the files that a desktop and the help want:
// make_artwork <folder for icons> <folder for pictures> <icon file> <icon library>, all existing.

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <cstdio>
#include <span>
#include <string>
#include <string_view>

#include "desktop/LibraryTranslator.h"
#include "desktop/Pictures.h"
#include "document/ApplicationIcon.h"
#include "formats/IcoFile.h"
#include "platform/controls/ImageList.h"
#include "platform/gdi/Blit.h"
#include "platform/gdi/PixelArt.h"
#include "platform/system/DiskFiles.h"
#include "resources/ImageList.h"
#include "resources/KestrelIcon.h"
#include "resources/KestrelIconSizes.h"
#include "resources/ToolStrip.h"
#include "resources/WellPictures.h"
#include "resources/ZoomPictures.h"
#include "tools/Capture.h"
#include "tools/Magnifier.h"
#include "tools/MagnifierSettings.h"
#include "tools/WindowPictures.h"

namespace {

using namespace kestrel;

bool Said(bool written, const std::string& file) {
    if (!written) std::fprintf(stderr, "Cannot write %s\n", file.c_str());
    return written;
}

bool Save(const QImage& picture, const std::string& file) {
    return Said(picture.save(QString::fromStdString(file)), file);
}

// The picture of an icon theme's size: a drawing, enlarged, or in the middle of a larger square.
struct ThemeIcon {
    int size;
    std::string_view drawing;
    int scale = 1;
};

constexpr ThemeIcon kThemeIcons[] = {
    {16, resources::kKestrelIcon16},   {22, resources::kKestrelIcon22},
    {24, resources::kKestrelIcon22},   {32, resources::kKestrelIcon},
    {48, resources::kKestrelIcon48},   {64, resources::kKestrelIcon, 2},
    {128, resources::kKestrelIcon, 4}, {256, resources::kKestrelIcon, 8},
};

bool WriteThemeIcon(const std::string& folder, const ThemeIcon& icon) {
    const std::span inks(resources::kKestrelInks.begin(), resources::kKestrelInks.size());
    const QImage drawn = desktop::ToImage(gdi::ReadIconArt(icon.drawing, inks));
    QImage picture(icon.size, icon.size, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    const QSize enlarged = drawn.size() * icon.scale;
    QPainter(&picture).drawImage((icon.size - enlarged.width()) / 2,
                                 (icon.size - enlarged.height()) / 2, drawn.scaled(enlarged));
    return Save(picture, folder + "/kestrel-icon-editor-" + std::to_string(icon.size) + ".png");
}

bool WriteIcon(const std::string& folder) {
    const gdi::IconPlanes icon = document::ApplicationIcon();
    system::DiskFiles files;
    const std::string iconFile = folder + "/kestrel.ico";
    bool written = Said(formats::WriteIcoCopy(files, icon, iconFile).has_value(), iconFile);
    for (const ThemeIcon& drawn : kThemeIcons)
        written = WriteThemeIcon(folder, drawn) && written;
    return written;
}

// A list's pictures as <prefix>01.png and on.
bool WritePictures(const std::string& folder, const char* prefix, const controls::ImageList& list) {
    bool written = true;
    for (int number = 1; number <= list.Count(); ++number) {
        std::string file = folder + "/" + prefix + (number < 10 ? "0" : "");
        file += std::to_string(number) + ".png";
        written = Save(desktop::ToImage(list.Picture(number)), file) && written;
    }
    return written;
}

// A screen that shows the program's icon and nothing else.
class ScreenOfIcon : public services::Screen {
  public:
    bool IsSeen() const override { return true; }
    gdi::Size Size() const override { return {gdi::kIconSize, gdi::kIconSize}; }
    bool Copy(gdi::Point leftTop, gdi::Surface& into) override {
        gdi::BitBlt(into, 0, 0, into.Width(), into.Height(), icon_.image, leftTop.x, leftTop.y,
                    gdi::RasterOp::Copy);
        gdi::BitBlt(into, 0, 0, into.Width(), into.Height(), icon_.mask, leftTop.x, leftTop.y,
                    gdi::RasterOp::Xor);
        return true;
    }
    gdi::Point Pointer() const override { return {}; }
    void MovePointer(gdi::Point /*to*/) override {}
    Result<gdi::Surface> Picture() override { return icon_.image; }
    bool IsComposited() const override { return false; }
    std::unique_ptr<services::InputHold> Hold(services::WindowHandle /*window*/,
                                              gdi::Rect /*area*/) override {
        return nullptr;
    }

  private:
    gdi::IconPlanes icon_ = document::ApplicationIcon();
};

// What the magnifier makes of the kestrel's eye and beak.
QImage MagnifiedIcon() {
    constexpr gdi::Size kSize{320, 200};
    constexpr gdi::Point kEye{20, 9};
    ScreenOfIcon screen;
    tools::Magnifier magnifier(screen);
    magnifier.SetZoom(tools::MagnifierSettings::kMostZoom);
    magnifier.ShowGrid(true);
    magnifier.SetGround(gdi::kWhite);
    magnifier.Look(kEye, kSize);
    gdi::Surface picture(kSize.width, kSize.height);
    magnifier.DrawRows(picture, 0);
    return desktop::ToImage(picture, picture.Bounds());
}

// A corner of a desktop while one picks the program's icon from it.
bool WritePicking(const std::string& file) {
    constexpr gdi::Size kScreen{640, 480};
    constexpr gdi::Rect kShown{0, 0, 400, 300};
    constexpr int kCell = 50;
    constexpr int kMargin = 17;
    constexpr gdi::COLORREF kWallpaper = gdi::Rgb(0x5B, 0x7F, 0xA6);
    gdi::Surface desktop(kScreen.width, kScreen.height, kWallpaper);
    const controls::ImageList list(resources::kImageList, resources::kImageListInks);
    int number = 0;
    for (int y = kMargin; y < kShown.height; y += kCell) {
        for (int x = kMargin; x < kShown.width; x += kCell)
            gdi::DrawOver(desktop, {x, y, 16, 16}, list.Picture(number++ % list.Count() + 1));
    }
    const gdi::Point picked{2 * kCell + kMargin - 8, kMargin - 8};
    gdi::PatBlt(desktop, {picked.x, picked.y, gdi::kIconSize, gdi::kIconSize}, kWallpaper);
    gdi::DrawOver(desktop, {picked.x, picked.y, gdi::kIconSize, gdi::kIconSize},
                  document::ApplicationIcon());
    tools::Capture capture(desktop, {});
    capture.PointAt(picked);
    return Save(desktop::ToImage(capture.Shown(kShown), kShown), file);
}

bool WriteHelpPictures(const std::string& folder, const artwork::PictureSources& sources) {
    using namespace resources;
    bool written = WritePictures(folder, "", {kImageList, kImageListInks});
    written = WritePictures(folder, "tool-", {kToolStrip, kImageListInks}) && written;
    written = WritePictures(folder, "well-", {kWellPictures, kImageListInks}) && written;
    written = WritePictures(folder, "zoom-", {kZoomPictures, kImageListInks}) && written;
    for (const auto& [name, picture] : artwork::WindowPictures(sources))
        written = Save(picture, std::string(folder).append("/").append(name) + ".png") && written;
    written = WritePicking(folder + "/capture.png") && written;
    return Save(MagnifiedIcon(), folder + "/zoom.png") && written;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 5) {
        std::fputs(
            "Usage: make_artwork <folder for icons> <folder for pictures> <icon> <library>\n",
            stderr);
        return 2;
    }
    // Windows are drawn, but on no screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    desktop::LibraryTranslator translator;
    QApplication::installTranslator(&translator);
    QApplication::setApplicationVersion(QStringLiteral(KESTREL_VERSION));
    const bool iconWritten = WriteIcon(argv[1]);
    return WriteHelpPictures(argv[2], {argv[3], argv[4]}) && iconWritten ? 0 : 1;
}
