#pragma once

#include <QApplication>
#include <QPalette>
#include <QWidget>

#include "desktop/Pictures.h"

namespace kestrel::windows {

// The desktop's window colour. A pure white window would hide white pixels that are shown on it.
inline gdi::COLORREF WindowColor() {
    constexpr gdi::COLORREF kGreyForWhite = 0xF0F0F0;
    const gdi::COLORREF color =
        desktop::ToColorRef(QApplication::palette().color(QPalette::Window));
    return color == gdi::kWhite ? kGreyForWhite : color;
}

// Makes it the window's own.
inline void FollowWindowColor(QWidget& window) {
    const QColor color = desktop::ToColor(WindowColor());
    if (window.palette().color(QPalette::Window) == color) return;
    // Only this role: the others go on following the desktop.
    QPalette own;
    own.setColor(QPalette::Window, color);
    window.setPalette(own);
}

}  // namespace kestrel::windows
