#include "desktop/QtTray.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "desktop/Pictures.h"
#include "desktop/Text.h"

namespace kestrel::desktop {

using services::TrayMessage;

namespace {

using namespace std::chrono_literals;

// A host may come up beside the program when a session begins.
constexpr auto kLongestSearch = 1s;
constexpr auto kBetweenLooks = 100ms;
// A host that is gone leaves the window where nobody finds it.
constexpr auto kBetweenChecks = 300ms;

QIcon ToIcon(const services::TrayIcon& icon) {
    const gdi::IconPlanes empty;
    return QPixmap::fromImage(ToImage(icon.picture.value_or(empty)));
}

}  // namespace

QtTray::QtTray() {
    looking_.callOnTimeout([this] { then_ ? LookForHost() : LookAfterHost(); });
}

void QtTray::FindHost(std::function<void()> then) {
    then_ = std::move(then);
    search_.setRemainingTime(kLongestSearch);
    wasAsked_ = true;
    LookForHost();
}

void QtTray::LookForHost() {
    if (HasHost()) {
        looking_.stop();
        std::exchange(then_, nullptr)();
    } else if (search_.hasExpired()) {
        looking_.stop();
        then_ = nullptr;
    } else {
        looking_.start(kBetweenLooks);
    }
}

// The library tells of no host that goes.
void QtTray::LookAfterHost() {
    if (!HasHost() && onHostGone) onHostGone();
}

bool QtTray::HasHost() {
    return wasAsked_ && QSystemTrayIcon::isSystemTrayAvailable();
}

void QtTray::Add(const services::TrayIcon& icon) {
    if (!icon_) {
        icon_ = std::make_unique<QSystemTrayIcon>();
        icon_->setContextMenu(&menu_);
        connect(icon_.get(), &QSystemTrayIcon::activated, this, &QtTray::Activated);
    }
    Modify(icon);
    icon_->show();
    looking_.start(kBetweenChecks);
}

void QtTray::Modify(const services::TrayIcon& icon) {
    if (!icon_) return;
    icon_->setIcon(ToIcon(icon));
    icon_->setToolTip(ToText(icon.toolTip));
}

void QtTray::Remove() {
    looking_.stop();
    if (icon_) icon_->hide();
}

void QtTray::SetMenu(std::span<const services::TrayMenuItem> items) {
    menu_.clear();
    for (const services::TrayMenuItem& item : items) {
        menu_.addAction(ToText(item.caption), [this, key = item.key] {
            if (onMenu) onMenu(key);
        });
    }
}

void QtTray::Activated(QSystemTrayIcon::ActivationReason reason) {
    // Hosts that have no place for the icon on the screen know one activation and no double click.
    const bool onScreen = !icon_->geometry().isEmpty();
    switch (reason) {
        case QSystemTrayIcon::Trigger:
            if (onScreen) {
                Tell(TrayMessage::LButtonDown);
                Tell(TrayMessage::LButtonUp);
            } else {
                Tell(TrayMessage::LButtonDblClk);
            }
            break;
        case QSystemTrayIcon::DoubleClick:
            Tell(TrayMessage::LButtonDblClk);
            break;
        case QSystemTrayIcon::Context:
            Tell(TrayMessage::RButtonDown);
            Tell(TrayMessage::RButtonUp);
            break;
        default:
            break;
    }
}

void QtTray::Tell(TrayMessage message) {
    if (onMessage) onMessage(message);
}

}  // namespace kestrel::desktop
