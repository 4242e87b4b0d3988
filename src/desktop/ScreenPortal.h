#pragma once

#include <QDBusConnection>

#include "platform/Result.h"
#include "platform/gdi/Surface.h"

namespace kestrel::desktop {

// A picture of the whole screen from the desktop's portal, which may ask the user. Windows are
// painted meanwhile. Fails with kNoScreenPictures or kScreenRefused.
// Interface: org.freedesktop.portal.Screenshot of xdg-desktop-portal.
Result<gdi::Surface> PictureFromPortal(const QDBusConnection& sessionBus);

}  // namespace kestrel::desktop
