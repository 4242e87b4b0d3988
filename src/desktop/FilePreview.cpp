#include "desktop/FilePreview.h"

#include <QPainter>
#include <QStyleOptionFrame>
#include <algorithm>
#include <optional>

#include "desktop/Pictures.h"
#include "desktop/Text.h"
#include "formats/IconFile.h"
#include "formats/IconSource.h"
#include "i18n/Messages.h"
#include "platform/system/DiskFiles.h"
#include "platform/system/PathText.h"

namespace kestrel::desktop {

namespace {

constexpr int kSide = 128;
constexpr int kPreviewFrame = 4;
constexpr int kTextLines = 3;
// Icon files above it are not read while one moves through a folder.
constexpr std::size_t kMostIconBytes = 4 << 20;

struct Preview {
    formats::IconImage icon;
    QString count;
};

QString CountText(const i18n::Text& text, std::size_t count) {
    return count > 1 ? ToText(i18n::Filled(text, std::to_string(count))) : QString();
}

std::optional<Preview> PreviewOf(const std::string& path) {
    system::DiskFiles files(system::PathNames::AsWritten);
    if (const auto file = files.ReadFile(path, kMostIconBytes)) {
        const auto images = formats::ListImages(*file);
        auto best = formats::ReadBestImage(*file);
        if (images && best)
            return Preview{*std::move(best), CountText(i18n::kImageCount, images->size())};
    }
    auto bytes = files.OpenSource(path);
    if (!bytes) return std::nullopt;
    const auto source =
        formats::IconSource::Open(*std::move(bytes), std::string(system::NameOnDisk(path)),
                                  formats::IconSource::Lists::Stored);
    if (!source || source->count == 0) return std::nullopt;
    auto first = source->Icon(0);
    if (!first) return std::nullopt;
    return Preview{*std::move(first), CountText(i18n::kIconCount, source->count)};
}

}  // namespace

FilePreview::FilePreview(QWidget* parent) : QWidget(parent) {
    setAccessibleName(ToText(i18n::kPreview.Now()));
    setMinimumSize(
        kSide + 2 * kPreviewFrame,
        kSide + 2 * kPreviewFrame + kTextLines * fontMetrics().lineSpacing() + kPreviewFrame);
}

void FilePreview::Show(const std::string& path) {
    const auto preview = PreviewOf(path);
    picture_ = preview ? ToImage(preview->icon.planes) : QImage();
    QString text;
    if (preview) {
        const formats::ImageInfo& info = preview->icon.info;
        text =
            QStringLiteral("%1 x %2\n%3\n%4")
                .arg(QString::number(info.width), QString::number(info.height),
                     ToText(i18n::Filled(i18n::kBitsPerPixel, std::to_string(info.bitsPerPixel))),
                     preview->count)
                .trimmed();
    }
    setAccessibleDescription(text);
    update();
}

void FilePreview::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const int side = kSide + 2 * kPreviewFrame;
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.rect = QRect((width() - side) / 2, 0, side, side);
    frame.lineWidth = 1;
    frame.state |= QStyle::State_Sunken;
    painter.fillRect(frame.rect, palette().base());
    style()->drawPrimitive(QStyle::PE_Frame, &frame, &painter, this);
    if (picture_.isNull()) return;
    DrawPicture(painter, frame.rect);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(0, side + kPreviewFrame, width(), height() - side - kPreviewFrame),
                     Qt::AlignHCenter | Qt::AlignTop, accessibleDescription());
}

// Enlarged by whole device pixels, so that no pixel is wider than another; reduced smoothly.
void FilePreview::DrawPicture(QPainter& painter, QRect ground) const {
    const double ratio = devicePixelRatioF();
    const int longest = std::max(picture_.width(), picture_.height());
    const int room = static_cast<int>(kSide * ratio);
    const int scale = room / longest;
    const QSize size = scale > 0 ? picture_.size() * scale
                                 : picture_.size().scaled(room, room, Qt::KeepAspectRatio);
    QImage shown = picture_.scaled(size, Qt::IgnoreAspectRatio,
                                   scale > 0 ? Qt::FastTransformation : Qt::SmoothTransformation);
    shown.setDevicePixelRatio(ratio);
    const QSizeF drawn = QSizeF(size) / ratio;
    const auto onDevice = [&](double at) { return qRound(at * ratio) / ratio; };
    painter.drawImage(QPointF(onDevice(ground.x() + (ground.width() - drawn.width()) / 2),
                              onDevice(ground.y() + (ground.height() - drawn.height()) / 2)),
                      shown);
}

}  // namespace kestrel::desktop
