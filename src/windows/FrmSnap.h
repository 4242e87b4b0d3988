#pragma once

#include <QEventLoop>
#include <memory>
#include <optional>
#include <vector>

#include "services/Screen.h"
#include "tools/Capture.h"
#include "windows/widgets/FrozenMonitor.h"

namespace kestrel::windows {

// Lets the user pick a square of a frozen picture of the screen, which covers all monitors
// meanwhile.
class FrmSnap {
  public:
    FrmSnap(services::Screen& screen, gdi::Surface picture);

    // The pixels of the square; none when the user leaves, or the picture fits the monitors no
    // more.
    std::optional<gdi::Surface> Pick();

  private:
    void CoverMonitors();
    void FollowMonitors();
    void PointAt(gdi::Point pixel);
    void PressKey(int key);
    void Take();

    services::Screen& screen_;
    tools::Capture capture_;
    std::vector<std::unique_ptr<widgets::FrozenMonitor>> monitors_;
    QEventLoop loop_;
    std::optional<gdi::Surface> taken_;
};

}  // namespace kestrel::windows
