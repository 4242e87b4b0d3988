#pragma once

#include <QScreen>

#include "platform/gdi/Surface.h"

namespace kestrel::desktop {

// Where a monitor, or a place on it in the units of windows, lies on an X screen in its own pixels.
// Their edges may be off by one where the scale is no whole number. Elsewhere monitors are laid out
// in units.
gdi::Rect PixelsOf(const QScreen& monitor);
gdi::Rect PixelsOf(const QScreen& monitor, const QRect& place);

}  // namespace kestrel::desktop
