#include "desktop/QtClipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTimer>
#include <algorithm>
#include <array>
#include <new>

#include "desktop/CopiedFiles.h"
#include "desktop/PictureFile.h"
#include "desktop/Pictures.h"
#include "desktop/XSelection.h"
#include "formats/IconFile.h"
#include "platform/system/DiskFiles.h"

namespace kestrel::desktop {

namespace {

using std::chrono::milliseconds;
using Picture = Result<gdi::SampledPicture>;
using Clock = std::chrono::steady_clock;

// How long the window waits for an owner's answer, and how long anybody does.
constexpr milliseconds kSelectionPatience{800};
constexpr milliseconds kLongest{10000};
// When an owner that gave no answer is asked again; each time twice as late, up to the last.
constexpr milliseconds kFirstRecovery{2000};
constexpr milliseconds kLastRecovery{32000};
// What is taken of an image or of an image's file, and of a list of files.
constexpr std::size_t kMostBytes = formats::kMaxIconFileBytes;
constexpr std::size_t kMostListBytes = std::size_t{1} << 20;

constexpr const char* kPng = "image/png";
constexpr const char* kBmp = "image/bmp";
// What is read; those that keep every pixel as it was come first.
constexpr std::array kFormats{kPng,           kBmp,
                              "image/x-bmp",  "image/x-MS-bmp",
                              "image/x-icon", "image/vnd.microsoft.icon",
                              "image/gif",    "image/jpeg",
                              kFileList};

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
    if (data == nullptr) return {};
    const auto* const format =
        std::ranges::find_if(kFormats, [data](const char* each) { return data->hasFormat(each); });
    if (format == kFormats.end()) return {};
    const bool holdsNone =
        *format == std::string_view(kFileList) && CopiedPicture(data->data(*format)).empty();
    return holdsNone ? std::string() : *format;
}

QByteArray ViewOf(const std::vector<std::uint8_t>& bytes) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                   static_cast<qsizetype>(bytes.size()));
}

// The first format that holds an image; empty for none, nothing when the owner does not answer.
std::optional<std::string> OfferedFormat(XSelection& selection) {
    auto format = selection.FirstOffered(kFormats);
    if (format != kFileList) return format;
    const auto list = selection.Read(kFileList, kMostListBytes);
    if (!list) return std::nullopt;
    return CopiedPicture(ViewOf(*list)).empty() ? std::string() : format;
}

// What the clipboard holds in this format as an image, or the file that it names.
Picture ReadContent(const std::string& format, const QByteArray& content) {
    if (static_cast<std::size_t>(content.size()) > kMostBytes) return Unreadable();
    if (format != kFileList) return ReadPicture(content);
    const auto file = system::DiskFiles(system::PathNames::AsWritten)
                          .ReadFile(CopiedPicture(content), kMostBytes);
    if (!file) return Unreadable();
    return ReadPicture(ViewOf(*file));
}

// The owner may have changed since it was asked what it has.
Picture Fetch(const XSelection::Wanted& wanted) {
    XSelection selection(wanted);
    const auto format = OfferedFormat(selection);
    if (!format || format->empty()) return Unreadable();
    const auto bytes = selection.Read(*format, kMostBytes);
    if (!bytes) return Unreadable();
    return ReadContent(*format, ViewOf(*bytes));
}

Picture OrRunOut(const std::function<Picture()>& work) {
    try {
        return work();
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
    aside_->setMaxThreadCount(1);
    const auto change = [this] {
        recovery_ = kFirstRecovery;
        Ask();
    };
    connect(&System(), &QClipboard::dataChanged, this, change);
    QTimer::singleShot(0, this, change);
}

QtClipboard::~QtClipboard() {
    ++question_;
    aside_->clear();
    // A file on a server that does not answer can hold it for ever; it ends with the process then.
    if (!aside_->waitForDone(static_cast<int>(kFirstRecovery.count())))
        static_cast<void>(aside_.release());
}

std::function<bool()> QtClipboard::WantedFor(int question, milliseconds patience) const {
    return [this, question, deadline = Clock::now() + patience] {
        return question == question_ && Clock::now() < deadline;
    };
}

void QtClipboard::Ask() {
    const int question = ++question_;
    if (IsAtHand()) return Learn(FormatAtHand());
    aside_->start([this, question] {
        if (question != question_) return;
        XSelection selection(WantedFor(question, kSelectionPatience));
        const auto format = OfferedFormat(selection);
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

Picture QtClipboard::GetImage() {
    if (!HasImage()) return Unreadable();
    // What came too late for the last call may be there by now.
    if (!coming_.valid() || comingFor_ != question_) StartFetching();
    if (coming_.wait_for(kSelectionPatience) != std::future_status::ready) return Unreadable();
    Picture picture = coming_.get();
    if (!picture) Ask();
    return picture;
}

void QtClipboard::StartFetching() {
    const auto answer = std::make_shared<std::promise<Picture>>();
    coming_ = answer->get_future();
    // An owner that is slow to say what it has must not keep the image waiting.
    comingFor_ = ++question_;
    std::function<Picture()> work = [wanted = WantedFor(comingFor_, kLongest)] {
        return Fetch(wanted);
    };
    if (const QMimeData* data = IsAtHand() ? System().mimeData() : nullptr)
        work = [format = format_, content = data->data(QString::fromStdString(format_))] {
            return ReadContent(format, content);
        };
    aside_->start([answer, work] { answer->set_value(OrRunOut(work)); });
}

void QtClipboard::SetImage(const gdi::Surface& pixels) {
    auto* data = new QMimeData;
    data->setData(kPng, ToFile(WhiteWhereTransparent(pixels), "PNG"));
    data->setData(kBmp, ToFile(ToImage(pixels, pixels.Bounds()), "BMP"));
    System().setMimeData(data);
}

}  // namespace kestrel::desktop
