#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/gdi/IconPlanes.h"

namespace kestrel::services {

// What a user does to an icon in the tray.
enum class TrayMessage {
    LButtonDown,
    LButtonUp,
    LButtonDblClk,
    RButtonDown,
    RButtonUp,
    RButtonDblClk
};

// An icon as the tray shows it; without a picture its place is empty.
struct TrayIcon {
    std::optional<gdi::IconPlanes> picture;
    std::string toolTip;
};

struct TrayMenuItem {
    std::string_view key;
    std::string caption;
};

// The desktop's tray, for one icon of the program. It is there while some host shows its icons;
// hosts come and go. Without one nothing happens.
class Tray {
  public:
    virtual ~Tray() = default;
    // Asks for a host, without waiting, and calls `then` once one has answered, unless that takes
    // longer than a second.
    virtual void FindHost(std::function<void()> then) = 0;
    // Whether a host is there now. None is known before FindHost has been asked.
    virtual bool HasHost() = 0;
    virtual void Add(const TrayIcon& icon) = 0;
    // Changes the icon where it is shown.
    virtual void Modify(const TrayIcon& icon) = 0;
    virtual void Remove() = 0;
    // What the icon's pop-up menu offers.
    virtual void SetMenu(std::span<const TrayMenuItem> items) = 0;

    std::function<void(TrayMessage message)> onMessage;
    std::function<void(std::string_view key)> onMenu;
    // The host went while the icon was to be shown.
    std::function<void()> onHostGone;
};

}  // namespace kestrel::services
