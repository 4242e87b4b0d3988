#include "desktop/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QRandomGenerator>
#include <QTimer>

namespace kestrel::desktop {

namespace {

constexpr auto kService = "org.freedesktop.portal.Desktop";
constexpr auto kPath = "/org/freedesktop/portal/desktop";
constexpr auto kRequest = "org.freedesktop.portal.Request";

// The user has to find and read a question.
constexpr int kPortalPatience = 60'000;  // milliseconds

}  // namespace

std::optional<QUrl> PortalRequest::AskForScreenshot() {
    // Calls would have no end.
    if (!bus_.isConnected()) return std::nullopt;
    const QString token = QStringLiteral("kestrel%1").arg(QRandomGenerator::global()->generate());
    // Listened to before it is asked: the answer may be there at once.
    Listen(ObjectNamed(token));
    QDBusMessage call = QDBusMessage::createMethodCall(
        kService, kPath, "org.freedesktop.portal.Screenshot", "Screenshot");
    call << QString() << QVariantMap{{"handle_token", token}, {"interactive", false}};
    const QDBusPendingCallWatcher watcher(bus_.asyncCall(call));
    connect(&watcher, &QDBusPendingCallWatcher::finished, this, &PortalRequest::Called);
    const QDBusServiceWatcher owner(kService, bus_, QDBusServiceWatcher::WatchForUnregistration);
    connect(&owner, &QDBusServiceWatcher::serviceUnregistered, &loop_, &QEventLoop::quit);
    QTimer::singleShot(kPortalPatience, &loop_, [this] { GiveUp(); });
    loop_.exec(QEventLoop::ExcludeUserInputEvents);
    return answer_;
}

// The portal tells which object answers; it is made of the caller's name and the token.
QString PortalRequest::ObjectNamed(const QString& token) const {
    const QString caller = bus_.baseService().mid(1).replace('.', '_');
    return QString(kPath) + "/request/" + caller + '/' + token;
}

void PortalRequest::Listen(const QString& object) {
    if (object == object_) return;
    object_ = object;
    bus_.connect(kService, object, kRequest, "Response", this, SLOT(Response(uint, QVariantMap)));
}

void PortalRequest::Called(QDBusPendingCallWatcher* watcher) {
    const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
    if (reply.isError()) return loop_.quit();
    Listen(reply.value().path());
    // There is a portal: without a word more it refuses.
    if (!answer_) answer_ = QUrl();
}

void PortalRequest::GiveUp() {
    bus_.send(QDBusMessage::createMethodCall(kService, object_, kRequest, "Close"));
    loop_.quit();
}

void PortalRequest::Response(uint code, const QVariantMap& results) {
    answer_ = code == 0 ? QUrl(results.value("uri").toString()) : QUrl();
    loop_.quit();
}

}  // namespace kestrel::desktop
