#include "platform/qt/QtClipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTimer>
#include <algorithm>
#include <array>
#include <future>
#include <new>

#include "platform/qt/PictureFile.h"
#include "platform/qt/Pictures.h"
#include "platform/qt/XSelection.h"

namespace kestrel::qt {

namespace {

using std::chrono::milliseconds;
using Clock = XSelection::Clock;

constexpr milliseconds kPatience{800};
// When an owner that gave no answer is asked again.
constexpr milliseconds kRecovery{2000};
// No picture that can be read takes more, not even uncompressed.
constexpr std::size_t kMostBytes = std::size_t{128} << 20;

constexpr const char* kPng = "image/png";
constexpr const char* kBmp = "image/bmp";
// Those that keep every pixel as it was come first.
constexpr std::array kFormats{kPng,        kBmp,        "image/x-bmp", "image/x-MS-bmp",
                              "image/gif", "image/jpeg"};

// The one to read; empty when none of them is an image.
std::string BestFormat(const std::vector<std::string>& formats) {
    const auto* const found =
        std::find_if(kFormats.begin(), kFormats.end(), [&](const char* known) {
            return std::find(formats.begin(), formats.end(), known) != formats.end();
        });
    return found == kFormats.end() ? std::string() : *found;
}

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

// The owner may have changed since it was asked what it has.
Result<gdi::Surface> Fetch(Clock::time_point deadline) {
    XSelection selection(deadline);
    const auto formats = selection.Targets();
    if (!formats) return Unreadable();
    const auto bytes = selection.Read(BestFormat(*formats), kMostBytes);
    if (!bytes) return Unreadable();
    return ReadPicture(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes->data()),
                                               static_cast<qsizetype>(bytes->size())));
}

Result<gdi::Surface> FetchOrRunOut(Clock::time_point deadline) {
    try {
        return Fetch(deadline);
    } catch (const std::bad_alloc&) {
        return Unreadable();
    }
}

// What is transparent is white, whatever its colour was.
QImage WhiteWhereTransparent(gdi::Surface pixels) {
    for (int y = 0; y < pixels.Height(); ++y) {
        for (gdi::COLORREF& pixel : pixels.Row(y))
            pixel = pixel >> 24 == 0 ? gdi::kWhite : pixel;
    }
    return ToImage(pixels);
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
    QTimer::singleShot(0, this, &QtClipboard::Ask);
}

QtClipboard::~QtClipboard() {
    ++question_;
    aside_.clear();
}

void QtClipboard::Ask() {
    const int question = ++question_;
    if (IsAtHand()) return Learn(BestFormat(FormatsAtHand()));
    aside_.start([this, question] {
        if (question != question_) return;
        const auto formats = XSelection(Clock::now() + kPatience).Targets();
        QMetaObject::invokeMethod(this, [this, question, formats] {
            if (question != question_) return;
            Learn(formats ? BestFormat(*formats) : std::string());
            if (!formats) AskAgain(question);
        });
    });
}

void QtClipboard::AskAgain(int question) {
    QTimer::singleShot(kRecovery, this, [this, question] {
        if (question == question_) Ask();
    });
}

void QtClipboard::Learn(const std::string& format) {
    format_ = format;
    if (onChanged) onChanged();
}

Result<gdi::Surface> QtClipboard::GetImage() {
    if (!HasImage()) return Unreadable();
    if (IsAtHand()) return ReadPicture(System().mimeData()->data(QString::fromStdString(format_)));
    const auto deadline = Clock::now() + kPatience;
    const auto answer = std::make_shared<std::promise<Result<gdi::Surface>>>();
    std::future<Result<gdi::Surface>> picture = answer->get_future();
    aside_.start([answer, deadline] {
        // Nobody waits any more for what comes too late.
        const bool inTime = Clock::now() < deadline;
        answer->set_value(inTime ? FetchOrRunOut(deadline) : Unreadable());
    });
    if (picture.wait_until(deadline) != std::future_status::ready) return Unreadable();
    return picture.get();
}

void QtClipboard::SetImage(const gdi::Surface& pixels) {
    auto* data = new QMimeData;
    data->setData(kPng, ToFile(WhiteWhereTransparent(pixels), "PNG"));
    data->setData(kBmp, ToFile(ToImage(pixels, pixels.Bounds()), "BMP"));
    System().setMimeData(data);
}

}  // namespace kestrel::qt
