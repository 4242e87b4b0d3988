#include "windows/widgets/DesktopFont.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <algorithm>

namespace kestrel::widgets {

int AsOnDesktop(int pixels) {
    return pixels * QFontInfo(QApplication::font()).pixelSize() / kDesignedText;
}

QFont FittingFont(const QWidget& widget, int designed, QSize room, const QStringList& texts) {
    QFont font = widget.font();
    int pixels = AsOnDesktop(designed);
    const auto fits = [&] {
        font.setPixelSize(pixels);
        const QFontMetrics metrics(font);
        return metrics.ascent() + metrics.descent() <= room.height() &&
               std::ranges::all_of(texts, [&](const QString& text) {
                   return metrics.horizontalAdvance(text) <= room.width();
               });
    };
    while (!fits() && pixels > designed)
        --pixels;
    return font;
}

}  // namespace kestrel::widgets
