#include "tools/WindowPictures.h"

#include <QPainter>
#include <QPixmap>

#include "desktop/Pictures.h"
#include "desktop/QtMessageBoxes.h"
#include "desktop/QtShell.h"
#include "document/ApplicationIcon.h"
#include "i18n/Language.h"
#include "platform/system/DiskFiles.h"
#include "platform/system/FileRegistry.h"
#include "tools/PrintPictureToFitPage.h"
#include "windows/frmAbout.h"
#include "windows/frmDrawState.h"

namespace kestrel::artwork {

namespace {

// A sheet of A4 with margins of 1/4 inch, made smaller.
class DrawnPage : public services::Printer {
  public:
    QImage page{155, 219, QImage::Format_RGB32};

    DrawnPage() {
        page.fill(Qt::white);
        QPainter(&page).drawRect(page.rect().adjusted(0, 0, -1, -1));
    }
    bool IsInstalled() const override { return true; }
    void SetOrientation(services::Orientation /*orientation*/) override {}
    gdi::Size PrintableArea() const override { return {2330, 3359}; }
    void FillRectangle(gdi::Rect area, gdi::COLORREF color) override {
        constexpr int kMargin = 75;
        constexpr int kDotsPerPixel = 16;
        const auto pixel = [](int dot) { return (dot + kMargin) / kDotsPerPixel; };
        const QPoint corner(pixel(area.left), pixel(area.top));
        const QPoint end(pixel(area.left + area.width) - 1, pixel(area.top + area.height) - 1);
        QPainter(&page).fillRect(QRect(corner, end), desktop::ToColor(color));
    }
    Result<void> EndDocument(const std::string& /*title*/) override { return {}; }
};

}  // namespace

std::map<std::string, QImage> WindowPictures() {
    const gdi::IconPlanes icon = document::ApplicationIcon();
    DrawnPage printer;
    tools::PrintPictureToFitPage(printer, icon);
    std::map<std::string, QImage> pictures{{"page", printer.page}};

    system::DiskFiles files;
    system::FileRegistry registry(files, "");
    desktop::QtShell shell;
    desktop::QtMessageBoxes boxes;
    tools::SystemInformation information(registry, files, shell, boxes);
    for (const std::string_view language : {i18n::kEnglish, i18n::kChinese}) {
        i18n::SetUiLanguage(language);
        const std::string ending = "-" + std::string(language);
        windows::frmDrawState states(nullptr, icon);
        pictures["states" + ending] = states.grab().toImage();
        windows::frmAbout about(nullptr, information);
        pictures["about" + ending] = about.grab().toImage();
    }
    return pictures;
}

}  // namespace kestrel::artwork
