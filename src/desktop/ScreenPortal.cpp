#include "desktop/ScreenPortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QRandomGenerator>
#include <QTimer>
#include <QUrl>
#include <QVariantMap>
#include <optional>

#include "desktop/Pictures.h"
#include "services/Screen.h"

namespace kestrel::desktop {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kScreenshot = QStringLiteral("org.freedesktop.portal.Screenshot");
const QString kRequest = QStringLiteral("org.freedesktop.portal.Request");

// The user has to find and read a question.
constexpr int kPatience = 60'000;  // milliseconds

// One question to the portal. Its answer comes as a signal of an object of its own.
class Request : public QObject {
    Q_OBJECT
  public:
    // Where the picture is; empty when it was refused, nothing when no portal answers.
    std::optional<QUrl> Ask() {
        const QString token =
            QStringLiteral("kestrel%1").arg(QRandomGenerator::global()->generate());
        // Listened to before it is asked: the answer may be there at once.
        Listen(ObjectNamed(token));
        QDBusMessage call =
            QDBusMessage::createMethodCall(kService, kPath, kScreenshot, "Screenshot");
        call << QString() << QVariantMap{{"handle_token", token}, {"interactive", false}};
        QDBusPendingCallWatcher watcher(bus_.asyncCall(call));
        connect(&watcher, &QDBusPendingCallWatcher::finished, this, &Request::Called);
        QDBusServiceWatcher owner(kService, bus_, QDBusServiceWatcher::WatchForUnregistration);
        connect(&owner, &QDBusServiceWatcher::serviceUnregistered, &loop_, &QEventLoop::quit);
        QTimer::singleShot(kPatience, &loop_, [this] { GiveUp(); });
        loop_.exec(QEventLoop::ExcludeUserInputEvents);
        return answer_;
    }

  private slots:
    void Response(uint code, const QVariantMap& results) {
        answer_ = code == 0 ? QUrl(results.value("uri").toString()) : QUrl();
        loop_.quit();
    }

  private:
    // The portal tells which object answers; it is made of the caller's name and the token.
    QString ObjectNamed(const QString& token) const {
        const QString caller = bus_.baseService().mid(1).replace('.', '_');
        return kPath + "/request/" + caller + '/' + token;
    }
    void Listen(const QString& object) {
        if (object == object_) return;
        object_ = object;
        bus_.connect(kService, object, kRequest, "Response", this,
                     SLOT(Response(uint, QVariantMap)));
    }
    void Called(QDBusPendingCallWatcher* watcher) {
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        if (reply.isError()) return loop_.quit();
        Listen(reply.value().path());
        // There is a portal: without a word more it refuses.
        if (!answer_) answer_ = QUrl();
    }
    void GiveUp() {
        bus_.send(QDBusMessage::createMethodCall(kService, object_, kRequest, "Close"));
        loop_.quit();
    }

    QDBusConnection bus_ = QDBusConnection::sessionBus();
    QEventLoop loop_;
    QString object_;
    std::optional<QUrl> answer_;
};

gdi::Surface ToSurface(const QImage& picture) {
    const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    gdi::Surface surface(pixels.width(), pixels.height());
    for (int y = 0; y < pixels.height(); ++y) {
        const auto* source = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        for (gdi::COLORREF& pixel : surface.Row(y))
            pixel = ToPixel(*source++) & gdi::kColorBits;
    }
    return surface;
}

}  // namespace

Result<gdi::Surface> PictureFromPortal() {
    const std::optional<QUrl> answer = Request().Ask();
    if (!answer) return Fail(services::kNoScreenPictures, "No screenshot portal answers");
    const QString file = answer->toLocalFile();
    const QImage picture = file.isEmpty() ? QImage() : QImage(file);
    // It was made for this program alone.
    if (!file.isEmpty()) QFile::remove(file);
    if (picture.isNull()) return Fail(services::kScreenRefused, "No picture was given");
    return ToSurface(picture);
}

}  // namespace kestrel::desktop

#include "ScreenPortal.moc"
