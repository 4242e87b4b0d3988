#include "desktop/ScreenPortal.h"

#include <gtest/gtest.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include "services/Screen.h"

namespace kestrel::desktop {
namespace {

// The screenshot portal on a bus, answering as it is told. It is the program's own thread that
// plays it.
class FakePortal : public QDBusVirtualObject {
  public:
    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        if (call.member() != "Screenshot") return false;
        const auto options = qdbus_cast<QVariantMap>(call.arguments().at(1));
        asked = options.value("interactive").toBool() ? "a window" : "at once";
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

    static constexpr auto kName = "org.freedesktop.portal.Desktop";
    std::string asked;
    uint code = 0;
    QUrl picture;
    bool vanishes = false;
};

TEST(ScreenPortal, GivesThePictureOrTellsWhyThereIsNone) {
    const QTemporaryDir folder;
    const QString address = "unix:path=" + folder.filePath("bus");
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toUtf8());
    // On this bus no program starts by itself.
    QFile config(folder.filePath("config"));
    ASSERT_TRUE(config.open(QFile::WriteOnly));
    config.write("<busconfig><listen>" + address.toUtf8() +
                 "</listen><policy context='default'><allow own='*'/>"
                 "<allow send_destination='*'/><allow receive_sender='*'/></policy></busconfig>");
    config.close();
    QProcess daemon;
    daemon.start("dbus-daemon",
                 {"--nofork", "--print-address", "--config-file=" + config.fileName()});
    ASSERT_TRUE(daemon.waitForReadyRead());
    const auto error = [] {
        const auto picture = PictureFromPortal();
        return picture ? 0 : picture.error().number;
    };
    EXPECT_EQ(error(), services::kNoScreenPictures) << "no portal";

    QDBusConnection bus = QDBusConnection::connectToBus(address, "portal");
    FakePortal portal;
    ASSERT_TRUE(bus.registerVirtualObject("/org/freedesktop/portal/desktop", &portal));
    ASSERT_TRUE(bus.registerService(FakePortal::kName));
    portal.code = 1;
    EXPECT_EQ(error(), services::kScreenRefused) << "by the user";
    portal.code = 0;
    EXPECT_EQ(error(), services::kScreenRefused) << "a picture that is nowhere";

    const QString file = folder.filePath("a b.png");
    QImage shown(40, 33, QImage::Format_RGB32);
    shown.fill(Qt::black);
    shown.setPixel(39, 32, 0xFF8000);
    ASSERT_TRUE(shown.save(file));
    portal.picture = QUrl::fromLocalFile(file);
    const auto picture = PictureFromPortal();
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->Width(), 40);
    EXPECT_EQ(picture->GetPixel(39, 32), 0x0080FFU);
    EXPECT_EQ(portal.asked, "at once");
    EXPECT_FALSE(QFile::exists(file)) << "left behind";

    portal.vanishes = true;
    EXPECT_EQ(error(), services::kScreenRefused) << "a portal that ends";
    daemon.terminate();
    daemon.waitForFinished();
}

}  // namespace
}  // namespace kestrel::desktop
