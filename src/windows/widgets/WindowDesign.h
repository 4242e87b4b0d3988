#pragma once

#include <qdrawutil.h>

#include <QDialog>
#include <QFont>
#include <QPainter>
#include <QScreen>

#include "desktop/CloseKey.h"

namespace kestrel::widgets {

// Of labels and status texts.
inline constexpr int kSmallFontPixels = 11;

// Pixels from a control to the outside of the edge around it.
inline constexpr int kEdgeDistance = 4;

// What a control of this size takes with an edge around it.
inline QSize WithEdge(QSize control) {
    return control.grownBy({kEdgeDistance, kEdgeDistance, kEdgeDistance, kEdgeDistance});
}

// Draws a sunken edge around a control of the widget that is being painted.
inline void DrawEdgeAround(QWidget& widget, const QRect& control) {
    QPainter painter(&widget);
    const QRect edge =
        control.adjusted(-kEdgeDistance, -kEdgeDistance, kEdgeDistance, kEdgeDistance);
    qDrawShadePanel(&painter, edge, widget.palette(), true, 1);
}

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

// "[*]" in a window title is the desktop library's place for a modified mark.
inline void ShowTitle(QWidget& window, QString title) {
    window.setWindowTitle(title.replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

// A dialog with a title bar that closes it, and no more.
inline void DressDialog(QDialog& dialog, const QString& title) {
    dialog.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                          Qt::WindowCloseButtonHint);
    dialog.setWindowTitle(title);
    desktop::AddCloseKey(dialog, Qt::ALT | Qt::Key_F4);
}

}  // namespace kestrel::widgets
