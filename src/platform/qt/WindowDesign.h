#pragma once

#include <QFont>
#include <QScreen>
#include <QWidget>

namespace kestrel::qt {

// Of labels and status texts.
inline constexpr int kSmallFontPixels = 11;

// The widget's font in another size.
inline QFont FontOf(const QWidget& widget, int pixels) {
    QFont font = widget.font();
    font.setPixelSize(pixels);
    return font;
}

// Moves a window of this size to its first place on the screen: centred, and one third down.
inline void PlaceOnScreen(QWidget& window, QSize size) {
    const QRect area = window.screen()->geometry();
    window.move(area.x() + (area.width() - size.width()) / 2,
                area.y() + (area.height() - size.height()) / 3);
}

// The same in the middle of the screen.
inline void CentreOnScreen(QWidget& window, QSize size) {
    const QRect area = window.screen()->geometry();
    window.move(area.x() + (area.width() - size.width()) / 2,
                area.y() + (area.height() - size.height()) / 2);
}

}  // namespace kestrel::qt
