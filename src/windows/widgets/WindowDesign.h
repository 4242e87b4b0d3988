#pragma once

#include <QDialog>
#include <QFont>
#include <QScreen>

#include "desktop/CloseKey.h"

namespace kestrel::widgets {

// Of labels and status texts.
inline constexpr int kSmallFontPixels = 11;

// The widget's font in another size.
inline QFont FontOf(const QWidget& widget, int pixels) {
    QFont font = widget.font();
    font.setPixelSize(pixels);
    return font;
}

// Moves a window of this size to its first place on the screen: centred, and of the free height one
// part of so many above it.
inline void PlaceOnScreen(QWidget& window, QSize size, int parts = 3) {
    const QRect area = window.screen()->geometry();
    window.move(area.x() + (area.width() - size.width()) / 2,
                area.y() + (area.height() - size.height()) / parts);
}

// A dialog with a title bar that closes it, and no more.
inline void DressDialog(QDialog& dialog, const QString& title) {
    dialog.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint);
    dialog.setWindowTitle(title);
    desktop::AddCloseKey(dialog, Qt::ALT | Qt::Key_F4);
}

}  // namespace kestrel::widgets
