#pragma once

#include <QWidget>

namespace kestrel::desktop {

// Asks the window manager of an X display to set or clear a state of a window that is shown, such
// as "_NET_WM_STATE_SKIP_TASKBAR". A window that is hidden loses it; elsewhere nothing happens.
// Protocol: Extended Window Manager Hints 1.5, _NET_WM_STATE.
void AskWindowState(QWidget& window, const char* state, bool set);

}  // namespace kestrel::desktop
