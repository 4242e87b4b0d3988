#pragma once

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QEventLoop>
#include <QObject>
#include <QUrl>
#include <QVariantMap>
#include <optional>
#include <utility>

namespace kestrel::desktop {

// One question to the desktop's portal on the session bus, which may be none. The answer comes as a
// signal of an object of its own.
class PortalRequest : public QObject {
    Q_OBJECT

  public:
    explicit PortalRequest(QDBusConnection sessionBus) : bus_(std::move(sessionBus)) {}

    // Asks for a picture of the screen, and waits for it. Where the picture is; empty when it was
    // refused, nothing when no portal answers.
    std::optional<QUrl> AskForScreenshot();

  private:
    QString ObjectNamed(const QString& token) const;
    void Listen(const QString& object);
    void Called(QDBusPendingCallWatcher* watcher);
    void GiveUp();
    // A slot by name is the one way to hear of a signal of the bus.
    Q_SLOT void Response(uint code, const QVariantMap& results);

    QDBusConnection bus_;
    QEventLoop loop_;
    QString object_;
    std::optional<QUrl> answer_;
};

}  // namespace kestrel::desktop
