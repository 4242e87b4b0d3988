#pragma once

#include <QColor>
#include <QCursor>
#include <QIcon>
#include <QImage>

#include "platform/gdi/IconPlanes.h"

namespace kestrel::desktop {

// Part of a surface as a picture of the desktop; `area` must lie inside.
QImage ToImage(const gdi::Surface& surface, gdi::Rect area);

// An icon's two planes as one picture: transparent where the mask is white.
QImage ToImage(const gdi::IconPlanes& icon);

// Pixels of 0xAABBGGRR, as pictures with half-transparent pixels have them, and back.
QImage ToImage(const gdi::Surface& pixels);
gdi::COLORREF ToPixel(QRgb pixel);

QColor ToColor(gdi::COLORREF color);
gdi::COLORREF ToColorRef(const QColor& color);

}  // namespace kestrel::desktop
