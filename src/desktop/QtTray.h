#pragma once

#include <QDeadlineTimer>
#include <QMenu>
#include <QSystemTrayIcon>
#include <QTimer>
#include <memory>

#include "services/Tray.h"

namespace kestrel::desktop {

// The tray by the desktop library: StatusNotifier where a host for that is on the session bus, else
// the tray of an X display.
class QtTray : public QObject, public services::Tray {
  public:
    QtTray();

    void FindHost(std::function<void()> then) override;
    bool HasHost() override;
    void Add(const services::TrayIcon& icon) override;
    void Modify(const services::TrayIcon& icon) override;
    void Remove() override;
    void SetMenu(std::span<const services::TrayMenuItem> items) override;

  private:
    void LookForHost();
    void LookAfterHost();
    void Activated(QSystemTrayIcon::ActivationReason reason);
    void Tell(services::TrayMessage message);

    QMenu menu_;
    // The library loads its bus with the first icon.
    std::unique_ptr<QSystemTrayIcon> icon_;
    bool wasAsked_ = false;
    std::function<void()> then_;
    QDeadlineTimer search_;
    QTimer looking_;
};

}  // namespace kestrel::desktop
