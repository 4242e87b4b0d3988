#include "windows/PreviewPane.h"

#include <QPainter>
#include <array>

#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "resources/WellPictures.h"
#include "windows/widgets/AccessibleRole.h"
#include "windows/widgets/DesktopFont.h"
#include "windows/widgets/PictureIcon.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

using editing::StatusPanel;

constexpr QSize kPreviewSize(108, 85);
constexpr QRect kLabel1(46, 5, 62, 34);

// Where a readout is printed, and the pictogram before it.
struct Readout {
    StatusPanel panel{};
    QRect pictogram;
    int picture = 0;
    QRect text;
};
constexpr std::array kReadouts{
    Readout{StatusPanel::Cell, QRect(4, 48, 11, 11), resources::kPointerPicture,
            QRect(21, 46, 60, 16)},
    Readout{StatusPanel::DragSize, QRect(4, 70, 11, 11), resources::kDragSizePicture,
            QRect(21, 68, 60, 16)},
};

// The place is narrow: the depth stands below the size, which is the first three words.
QString OnTwoLines(const QString& format) {
    constexpr int kWordsOfSize = 3;
    const QChar blank(u' ');
    return format.section(blank, 0, kWordsOfSize - 1) + QLatin1Char('\n') +
           format.section(blank, kWordsOfSize);
}

}  // namespace

PreviewPane::PreviewPane(editing::StatusView& status, const controls::ImageList& pictures,
                         QWidget* parent)
    : QWidget(parent), pictures_(pictures) {
    setFixedSize(kPreviewSize);
    setMouseTracking(true);
    picIcon_.setObjectName("PicIcon");
    widgets::SetRole(picIcon_, QAccessible::Graphic);
    picIcon_.move(widgets::kEdgeDistance, widgets::kEdgeDistance);
    picIcon_.onMouseMove = [&status](Qt::MouseButtons /*held*/, QPoint /*at*/) {
        status.SetStatusPanel(StatusPanel::Hint, i18n::kActualSize.Now());
    };
    label1_.setObjectName("Label1");
    label1_.setGeometry(kLabel1);
    label1_.setFont(widgets::FontOf(*this, widgets::kSmallFontPixels));
    label1_.setAlignment(Qt::AlignTop | Qt::AlignLeft);
}

void PreviewPane::AddTo(NamedControls& controls) {
    controls.AddName(picIcon_);
    controls.AddCaption("Label1",
                        [this](const QString& text) { label1_.setText(OnTwoLines(text)); });
}

void PreviewPane::FitTexts() {
    const QStringList lines = label1_.text().split(QLatin1Char('\n'));
    const QSize line(kLabel1.width(), kLabel1.height() / 2);
    label1_.setFont(widgets::FittingFont(*this, widgets::kSmallFontPixels, line, lines));
    readoutFont_ = widgets::FittingFont(*this, widgets::kSmallFontPixels,
                                        kReadouts.front().text.size(), {QStringLiteral("32 , 32")});
    update();
}

void PreviewPane::PrintReadout(StatusPanel panel, std::string_view text) {
    QString& printed = readouts_[panel];
    if (printed == desktop::ToText(text)) return;
    printed = desktop::ToText(text);
    for (const Readout& readout : kReadouts) {
        if (readout.panel == panel) update(readout.text);
    }
}

void PreviewPane::paintEvent(QPaintEvent* /*event*/) {
    widgets::DrawEdgeAround(*this, picIcon_.geometry());
    QPainter painter(this);
    painter.setFont(readoutFont_);
    for (const Readout& readout : kReadouts) {
        widgets::PictureIcon(pictures_, readout.picture).paint(&painter, readout.pictogram);
        painter.drawText(readout.text, Qt::AlignLeft | Qt::AlignVCenter, readouts_[readout.panel]);
    }
}

}  // namespace kestrel::windows
