#include "desktop/QtClipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTimer>
#include <algorithm>
#include <array>
#include <new>

#include "desktop/PictureFile.h"
#include "desktop/Pictures.h"
#include "desktop/XSelection.h"

namespace kestrel::desktop {

namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

// How long the window waits for an owner's answer, and how long anybody does.
constexpr milliseconds kPatience{800};
constexpr milliseconds kLongest{10000};
// When an owner that gave no answer is asked again; each time twice as late, up to the last.
constexpr milliseconds kFirstRecovery{2000};
constexpr milliseconds kLastRecovery{32000};
// No picture that can be read takes more, not even uncompressed.
constexpr std::size_t kMostBytes = std::size_t{128} << 20;

constexpr const char* kPng = "image/png";
constexpr const char* kBmp = "image/bmp";
// What is read; those that keep every pixel as it was come first.
constexpr std::array kFormats{kPng,        kBmp,        "image/x-bmp", "image/x-MS-bmp",
                              "image/gif", "image/jpeg"};

tl::unexpected<Error> Unreadable() {
    return Fail(kInvalidPicture, "Invalid picture");
}

QClipboard& System() {
    return *QGuiApplication::clipboard();
}

// Whether the clipboard can be read here and now: it is this program's own, or the desktop's
// library is the only way to it, with the time limit that it has.
bool IsAtHand() {
    return System().ownsClipboard() || QGuiApplication::platformName() != QLatin1String("xcb");
}

std::string FormatAtHand() {
    const QMimeData* data = System().mimeData();
    for (const char* format : kFormats) {
        if (data != nullptr && data->hasFormat(format)) return format;
    }
    return {};
}

Result<gdi::Surface> ImageAtHand(const std::string& format) {
    const QMimeData* data = System().mimeData();
    if (data == nullptr) return Unreadable();
    const QByteArray file = data->data(QString::fromStdString(format));
    if (static_cast<std::size_t>(file.size()) > kMostBytes) return Unreadable();
    return ReadPicture(file);
}

// The owner may have changed since it was asked what it has.
Result<gdi::Surface> Fetch(const XSelection::Wanted& wanted) {
    XSelection selection(wanted);
    const auto format = selection.FirstOffered(kFormats);
    if (!format || format->empty()) return Unreadable();
    const auto bytes = selection.Read(*format, kMostBytes);
    if (!bytes) return Unreadable();
    return ReadPicture(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes->data()),
                                               static_cast<qsizetype>(bytes->size())));
}

Result<gdi::Surface> FetchOrRunOut(const XSelection::Wanted& wanted) {
    try {
        return Fetch(wanted);
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
    const auto change = [this] {
        recovery_ = kFirstRecovery;
        Ask();
    };
    connect(&System(), &QClipboard::dataChanged, this, change);
    QTimer::singleShot(0, this, change);
}

QtClipboard::~QtClipboard() {
    ++question_;
    aside_.clear();
}

std::function<bool()> QtClipboard::WantedFor(int question, milliseconds patience) const {
    return [this, question, deadline = Clock::now() + patience] {
        return question == question_ && Clock::now() < deadline;
    };
}

void QtClipboard::Ask() {
    const int question = ++question_;
    if (IsAtHand()) return Learn(FormatAtHand());
    aside_.start([this, question] {
        if (question != question_) return;
        const auto format = XSelection(WantedFor(question, kPatience)).FirstOffered(kFormats);
        QMetaObject::invokeMethod(this, [this, question, format] {
            if (question != question_) return;
            Learn(format.value_or(std::string()));
            if (!format) AskAgain(question);
        });
    });
}

void QtClipboard::AskAgain(int question) {
    QTimer::singleShot(recovery_, this, [this, question] {
        if (question == question_) Ask();
    });
    recovery_ = std::min(2 * recovery_, kLastRecovery);
}

void QtClipboard::Learn(const std::string& format) {
    format_ = format;
    if (onChanged) onChanged();
}

Result<gdi::Surface> QtClipboard::GetImage() {
    if (!HasImage()) return Unreadable();
    if (IsAtHand()) return ImageAtHand(format_);
    // What came too late for the last call may be there by now.
    if (!coming_.valid() || comingFor_ != question_) StartFetching();
    if (coming_.wait_for(kPatience) != std::future_status::ready) return Unreadable();
    Result<gdi::Surface> picture = coming_.get();
    if (!picture) Ask();
    return picture;
}

void QtClipboard::StartFetching() {
    const auto answer = std::make_shared<std::promise<Result<gdi::Surface>>>();
    coming_ = answer->get_future();
    // An owner that is slow to say what it has must not keep the image waiting.
    comingFor_ = ++question_;
    aside_.start([answer, wanted = WantedFor(comingFor_, kLongest)] {
        answer->set_value(FetchOrRunOut(wanted));
    });
}

void QtClipboard::SetImage(const gdi::Surface& pixels) {
    auto* data = new QMimeData;
    data->setData(kPng, ToFile(WhiteWhereTransparent(pixels), "PNG"));
    data->setData(kBmp, ToFile(ToImage(pixels, pixels.Bounds()), "BMP"));
    System().setMimeData(data);
}

}  // namespace kestrel::desktop
