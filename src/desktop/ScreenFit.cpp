#include "desktop/ScreenFit.h"

#include <QFontInfo>
#include <QLayout>
#include <QScreen>

namespace kestrel::desktop {

namespace {

// What window managers add to a window.
constexpr QSize kFrame(10, 36);
constexpr int kSmallestText = 8;  // pixels

}  // namespace

QSize RoomOnScreen(const QDialog& dialog) {
    return dialog.screen()->availableSize() - kFrame;
}

void FitOnScreen(QDialog& dialog) {
    const QSize room = RoomOnScreen(dialog);
    QFont font = dialog.font();
    int pixels = QFontInfo(font).pixelSize();
    const auto fits = [&] {
        dialog.layout()->activate();
        const QSize least = dialog.layout()->totalMinimumSize();
        return least.width() <= room.width() && least.height() <= room.height();
    };
    while (!fits() && pixels > kSmallestText) {
        font.setPixelSize(--pixels);
        dialog.setFont(font);
    }
}

}  // namespace kestrel::desktop
