#include "platform/qt/QtClipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImageReader>
#include <QMimeData>
#include <QTimer>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <future>

#include "platform/qt/Pictures.h"
#include "platform/qt/XSelection.h"

namespace kestrel::qt {

namespace {

using std::chrono::milliseconds;
using Clock = XSelection::Clock;

constexpr milliseconds kPatience{800};
// A screen of 7680 x 4320 pixels fits.
constexpr qint64 kMostPixels = qint64{1} << 25;
constexpr std::size_t kMostBytes = std::size_t{kMostPixels} * 4 + 4096;

constexpr const char* kPng = "image/png";
constexpr const char* kBmp = "image/bmp";
// Those that keep every pixel as it was come first.
constexpr std::array kFormats{kPng,        kBmp,        "image/x-bmp", "image/x-MS-bmp",
                              "image/gif", "image/jpeg"};

tl::unexpected<Error> Unreadable() {
    return Fail(kInvalidPicture, "Invalid picture");
}

QClipboard& System() {
    return *QGuiApplication::clipboard();
}

// Whether the clipboard can be read here and now: it is this program's own, or the desktop's
// library is the only way to it.
bool IsAtHand() {
    return System().ownsClipboard() || QGuiApplication::platformName() != QLatin1String("xcb");
}

std::vector<std::string> FormatsAtHand() {
    std::vector<std::string> names;
    const QMimeData* data = System().mimeData();
    if (data == nullptr) return names;
    for (const QString& name : data->formats())
        names.push_back(name.toStdString());
    return names;
}

Result<gdi::Surface> Fetch(const std::string& format, Clock::time_point deadline) {
    const auto bytes = XSelection(deadline).Read(format, kMostBytes);
    if (!bytes) return Unreadable();
    return ReadPicture(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes->data()),
                                               static_cast<qsizetype>(bytes->size())));
}

// Whether pixels of a bitmap file are missing: the desktop library would leave their rows as the
// memory was before. Compressed bitmaps count as cut. Fields of BITMAPFILEHEADER and
// BITMAPINFOHEADER.
bool IsCutBitmap(const QByteArray& file, QSize size) {
    constexpr qsizetype kHeaders = 54;
    if (!file.startsWith("BM")) return false;
    if (file.size() < kHeaders) return true;
    const auto dwordAt = [&](qsizetype at) { return qFromLittleEndian<quint32>(file.data() + at); };
    const qint64 firstPixel = dwordAt(10);
    const qint64 bits = dwordAt(28) & 0xFFFF;
    const quint32 compression = dwordAt(30);
    constexpr quint32 kBitFields = 3;
    if (compression != 0 && compression != kBitFields) return true;
    const qint64 stride = (size.width() * bits + 31) / 32 * 4;
    return firstPixel + stride * size.height() > file.size();
}

QByteArray ToFile(const QImage& image, const char* format) {
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return file;
}

}  // namespace

QtClipboard::QtClipboard() {
    aside_.setMaxThreadCount(1);
    connect(&System(), &QClipboard::dataChanged, this, &QtClipboard::Ask);
    // An owner that gave no answer may have come to itself.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](auto state) {
        if (state == Qt::ApplicationActive) Ask();
    });
    QTimer::singleShot(0, this, &QtClipboard::Ask);
}

void QtClipboard::Ask() {
    const int question = ++question_;
    if (IsAtHand()) return Learn(FormatsAtHand());
    aside_.start([this, question] {
        auto formats = XSelection(Clock::now() + kPatience).Targets();
        QMetaObject::invokeMethod(this, [this, question, formats = std::move(formats)] {
            if (question == question_) Learn(formats);
        });
    });
}

void QtClipboard::Learn(const std::vector<std::string>& formats) {
    const auto* const found =
        std::find_if(kFormats.begin(), kFormats.end(), [&](const char* known) {
            return std::find(formats.begin(), formats.end(), known) != formats.end();
        });
    format_ = found == kFormats.end() ? std::string() : *found;
    if (onChanged) onChanged();
}

Result<gdi::Surface> QtClipboard::GetImage() {
    if (!HasImage()) return Unreadable();
    if (IsAtHand()) return ReadPicture(System().mimeData()->data(QString::fromStdString(format_)));
    const auto deadline = Clock::now() + kPatience;
    const auto answer = std::make_shared<std::promise<Result<gdi::Surface>>>();
    std::future<Result<gdi::Surface>> picture = answer->get_future();
    aside_.start([answer, deadline, format = format_] {
        // Nobody waits any more for what comes too late.
        const bool inTime = Clock::now() < deadline;
        answer->set_value(inTime ? Fetch(format, deadline) : Unreadable());
    });
    if (picture.wait_until(deadline) != std::future_status::ready) return Unreadable();
    return picture.get();
}

void QtClipboard::SetImage(const gdi::Surface& pixels) {
    auto* data = new QMimeData;
    data->setData(kPng, ToFile(ToImage(pixels), "PNG"));
    data->setData(kBmp, ToFile(ToImage(pixels, pixels.Bounds()), "BMP"));
    System().setMimeData(data);
}

Result<gdi::Surface> ReadPicture(const QByteArray& file) {
    QBuffer buffer;
    buffer.setData(file);
    QImageReader reader(&buffer);
    // Asked before anything is allocated for it.
    const QSize size = reader.size();
    if (size.isEmpty() || qint64{size.width()} * size.height() > kMostPixels) return Unreadable();
    if (IsCutBitmap(file, size)) return Unreadable();
    const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
    if (image.isNull()) return Unreadable();
    return ToSurface(image);
}

}  // namespace kestrel::qt
