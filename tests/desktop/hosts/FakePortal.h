#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

namespace kestrel::test {

// A session bus of this program's own, on which no service starts by itself.
class OwnBus {
  public:
    OwnBus() {
        QFile config(folder.filePath("config"));
        if (!config.open(QFile::WriteOnly)) return;
        config.write("<busconfig><listen>" + address.toUtf8() +
                     "</listen><policy context='default'><allow own='*'/>"
                     "<allow send_destination='*'/><allow receive_sender='*'/></policy>"
                     "</busconfig>");
        config.close();
        daemon.start("/usr/bin/dbus-daemon",
                     {"--nofork", "--print-address", "--config-file=" + config.fileName()});
        daemon.waitForReadyRead();
    }
    OwnBus(const OwnBus&) = delete;
    OwnBus& operator=(const OwnBus&) = delete;
    ~OwnBus() {
        daemon.terminate();
        daemon.waitForFinished();
    }

    QTemporaryDir folder;
    QString address = "unix:path=" + folder.filePath("bus");
    QProcess daemon;
};

// The screenshot portal on a bus, answering as it is told. The thread that asks it plays it too.
class FakePortal : public QDBusVirtualObject {
  public:
    // Whether it is there from now on.
    bool Begin(const QString& address) {
        QDBusConnection bus = QDBusConnection::connectToBus(address, "portal");
        return bus.registerVirtualObject("/org/freedesktop/portal/desktop", this) &&
               bus.registerService(kName);
    }
    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        if (call.member() != "Screenshot") return false;
        const auto options = qdbus_cast<QVariantMap>(call.arguments().at(1));
        interactive = options.value("interactive").toBool();
        const QString path = "/org/freedesktop/portal/desktop/request/" +
                             call.service().mid(1).replace('.', '_') + '/' +
                             options.value("handle_token").toString();
        bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(path))));
        if (vanishes) return QDBusConnection(bus).unregisterService(kName);
        QDBusMessage answer =
            QDBusMessage::createSignal(path, "org.freedesktop.portal.Request", "Response");
        answer << code << QVariantMap{{"uri", picture.toString()}};
        QTimer::singleShot(10, this, [=] { bus.send(answer); });
        return true;
    }

    uint code = 0;
    QUrl picture;
    bool vanishes = false;
    bool interactive = true;

  private:
    static constexpr auto kName = "org.freedesktop.portal.Desktop";
};

}  // namespace kestrel::test
