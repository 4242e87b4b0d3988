#include "tools/WindowPictures.h"

#include <QPainter>
#include <QPixmap>

#include "desktop/Pictures.h"
#include "desktop/QtApplication.h"
#include "desktop/QtClipboard.h"
#include "desktop/QtDesktopDialogs.h"
#include "desktop/QtHelpViewer.h"
#include "desktop/QtMessageBoxes.h"
#include "desktop/QtShell.h"
#include "desktop/QtTray.h"
#include "desktop/RecentlyUsed.h"
#include "desktop/XScreen.h"
#include "document/ApplicationIcon.h"
#include "document/JournalFolder.h"
#include "editing/WorkLog.h"
#include "i18n/Language.h"
#include "platform/gdi/Blit.h"
#include "platform/system/DiskFiles.h"
#include "platform/system/FileRegistry.h"
#include "settings/Settings.h"
#include "tools/IconExtraction.h"
#include "tools/PrintPictureToFitPage.h"
#include "windows/FrmClipData.h"
#include "windows/FrmColAdj.h"
#include "windows/FrmIcoEd.h"
#include "windows/FrmIcons.h"
#include "windows/FrmShades.h"
#include "windows/WindowColor.h"
#include "windows/frmAbout.h"
#include "windows/frmDrawState.h"
#include "windows/frmGamma.h"

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

using Pictures = std::map<std::string, QImage>;

// With a line around it, as on a desktop a frame.
QImage PictureOf(QWidget& window) {
    constexpr QRgb kFrame = 0xFF7F8C99;
    QImage picture = window.grab().toImage();
    QPainter painter(&picture);
    painter.setPen(QColor(kFrame));
    painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
    return picture;
}

void AddDialogs(Pictures& pictures, const std::string& ending, const gdi::IconPlanes& icon) {
    constexpr gdi::Size kPasted{64, 48};
    gdi::Surface preview(gdi::kIconSize, gdi::kIconSize, windows::WindowColor());
    gdi::DrawOver(preview, preview.Bounds(), icon);
    imaging::ColorAdjustment colors(icon);
    windows::FrmColAdj adjustment(nullptr, colors, preview);
    pictures["coladj" + ending] = PictureOf(adjustment);
    windows::frmGamma gamma(nullptr);
    pictures["gamma" + ending] = PictureOf(gamma);
    windows::FrmShades shades(nullptr);
    pictures["shades" + ending] = PictureOf(shades);
    windows::FrmClipData fit(nullptr, kPasted);
    pictures["fit" + ending] = PictureOf(fit);
}

// The main window with an icon, and the icons of the library, in a program that keeps nothing.
void AddMainWindow(Pictures& pictures, const std::string& ending, const PictureSources& sources) {
    system::DiskFiles files;
    system::FileRegistry registry(files, "");
    settings::Settings settings(files, "");
    desktop::QtMessageBoxes boxes;
    desktop::QtApplication program;
    desktop::QtPrinter printer(files);
    desktop::QtDesktopDialogs dialogs(boxes, printer);
    desktop::QtClipboard clipboard;
    desktop::QtShell shell;
    desktop::RecentlyUsed documents(files, "");
    desktop::XScreen screen;
    desktop::QtTray tray;
    desktop::QtHelpViewer help(shell);
    system::RandomNumbers random(0);
    const document::JournalFolder journals("");
    editing::WorkLog log("");
    windows::FrmIcoEd window({program,
                              dialogs,
                              clipboard,
                              boxes,
                              help,
                              files,
                              registry,
                              shell,
                              documents,
                              screen,
                              printer,
                              tray,
                              random,
                              settings,
                              log,
                              journals,
                              {}});
    window.Form_Load(sources.icon);
    window.show();
    // It gets its texts once it is shown.
    QCoreApplication::processEvents();
    pictures["window" + ending] = PictureOf(window);
    tools::IconExtraction extraction({program, dialogs, boxes, files}, sources.library);
    windows::FrmIcons icons(nullptr, extraction);
    pictures["icons" + ending] = PictureOf(icons);
}

}  // namespace

std::map<std::string, QImage> WindowPictures(const PictureSources& sources) {
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
        pictures["states" + ending] = PictureOf(states);
        windows::frmAbout about(nullptr, information);
        pictures["about" + ending] = PictureOf(about);
        AddDialogs(pictures, ending, icon);
        AddMainWindow(pictures, ending, sources);
    }
    return pictures;
}

}  // namespace kestrel::artwork
