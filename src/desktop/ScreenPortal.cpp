#include "desktop/ScreenPortal.h"

#include <QFile>
#include <QImage>
#include <QUrl>
#include <optional>

#include "desktop/Pictures.h"
#include "desktop/PortalRequest.h"
#include "services/Screen.h"

namespace kestrel::desktop {

namespace {

gdi::Surface ToSurface(const QImage& picture) {
    const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    gdi::Surface surface(pixels.width(), pixels.height());
    for (int y = 0; y < pixels.height(); ++y) {
        const auto* source = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        for (gdi::COLORREF& pixel : surface.Row(y))
            pixel = ToPixel(*source++) & gdi::kColorBits;
    }
    return surface;
}

}  // namespace

Result<gdi::Surface> PictureFromPortal(const QDBusConnection& sessionBus) {
    const std::optional<QUrl> answer = PortalRequest(sessionBus).AskForScreenshot();
    if (!answer) return Fail(services::kNoScreenPictures, "No screenshot portal answers");
    const QString file = answer->toLocalFile();
    const QImage picture = file.isEmpty() ? QImage() : QImage(file);
    // It was made for this program alone.
    if (!file.isEmpty()) QFile::remove(file);
    if (picture.isNull()) return Fail(services::kScreenRefused, "No picture was given");
    return ToSurface(picture);
}

}  // namespace kestrel::desktop
