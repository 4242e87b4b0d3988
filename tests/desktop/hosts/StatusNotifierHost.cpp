#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <cstdio>

namespace {

constexpr char kWatcher[] = "org.kde.StatusNotifierWatcher";

// The watcher that icons register with; it says that a host shows them.
// Protocol: StatusNotifierItem of freedesktop.org.
class Watcher : public QDBusVirtualObject {
  public:
    QString introspect(const QString& /*path*/) const override {
        return QStringLiteral(
            "<interface name=\"org.kde.StatusNotifierWatcher\">"
            "<method name=\"RegisterStatusNotifierItem\"><arg type=\"s\" "
            "direction=\"in\"/></method>"
            "<property name=\"IsStatusNotifierHostRegistered\" type=\"b\" access=\"read\"/>"
            "</interface>");
    }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() == "RegisterStatusNotifierItem") {
            std::printf("%s\n", qPrintable(message.service()));
            std::fflush(stdout);
            return bus.send(message.createReply());
        }
        return message.member() == "Get" &&
               bus.send(message.createReply(QVariant::fromValue(QDBusVariant(true))));
    }
};

}  // namespace

// Prints the bus name of every icon that registers.
int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    QDBusConnection bus = QDBusConnection::sessionBus();
    Watcher watcher;
    if (!bus.registerVirtualObject(QStringLiteral("/StatusNotifierWatcher"), &watcher) ||
        !bus.registerService(kWatcher))
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
