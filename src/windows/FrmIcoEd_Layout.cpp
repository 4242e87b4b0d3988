#include <qdrawutil.h>

#include <QPaintEvent>
#include <QPainter>
#include <array>

#include "desktop/Text.h"
#include "resources/WellPictures.h"
#include "windows/FrmIcoEd.h"
#include "windows/widgets/PictureIcon.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

// The client area, and the whole window with its frame as it was designed.
constexpr QSize kClientSize(565, 432);
constexpr QSize kWindowSize(571, 457);

constexpr QPoint kMenuBar(0, 2);
constexpr QPoint kToolbar(8, 31);
constexpr QSize kToolbarButton(28, 28);
constexpr QPoint kPicMain(12, 69);
constexpr QPoint kPicIcon(350, 69);
constexpr QRect kLabel1(392, 70, 62, 34);
constexpr QRect kStatusBar(2, 408, 561, 22);
constexpr QRect kColorWells(344, 156, 208, 20);

// Where a readout is printed beside the preview, and the pictogram before it.
struct Readout {
    editing::StatusPanel panel{};
    QRect pictogram;
    int picture = 0;
    QRect text;
};
constexpr std::array kReadouts{
    Readout{editing::StatusPanel::Cell, QRect(354, 113, 11, 11), resources::kPointerPicture,
            QRect(371, 111, 60, 16)},
    Readout{editing::StatusPanel::DragSize, QRect(354, 135, 11, 11), resources::kDragSizePicture,
            QRect(371, 133, 60, 16)},
};

// Hint, pixel, cell, drag size, magnification.
constexpr std::array kPanelWidths{0, 84, 56, 56, 44};

constexpr int kFontPixels = 12;

// A sunken edge four pixels outside the control on every side.
void DrawEdgeAround(QPainter& painter, const QRect& control, const QPalette& colors) {
    constexpr int kDistance = 4;
    qDrawShadePanel(&painter, control.adjusted(-kDistance, -kDistance, kDistance, kDistance),
                    colors, true, 1);
}

}  // namespace

void FrmIcoEd::LayOutControls() {
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    setFixedSize(kClientSize);
    setFont(widgets::FontOf(*this, kFontPixels));

    menuBar_ = new QMenuBar(this);
    menuBar_->setNativeMenuBar(false);

    toolbar1_ = new widgets::ToolBar(pictures_, kToolbarButton, this);
    toolbar1_->move(kToolbar);

    picMain_ = new widgets::SurfaceWidget(editor_.Views().PicMain, this);
    picMain_->move(kPicMain);
    picIcon_ = new widgets::SurfaceWidget(editor_.Views().PicIcon, this);
    picIcon_->move(kPicIcon);

    label1_ = new QLabel(this);
    label1_->setObjectName("Label1");
    label1_->setGeometry(kLabel1);
    label1_->setFont(widgets::FontOf(*this, widgets::kSmallFontPixels));
    label1_->setAlignment(Qt::AlignTop | Qt::AlignLeft);

    statusBar_ = new widgets::StatusBar(kPanelWidths, this);
    statusBar_->setFont(widgets::FontOf(*this, widgets::kSmallFontPixels));
    statusBar_->setGeometry(kStatusBar);
}

void FrmIcoEd::ShowTextControls(bool shown) {
    for (QWidget* control :
         std::initializer_list<QWidget*>{menuBar_, label1_, chkPal_, statusBar_}) {
        control->setVisible(shown);
    }
    if (shown) FitMenuBar();
}

// Its entries underline the bar only where they are as high as it is, which depends on the font of
// the language.
void FrmIcoEd::FitMenuBar() {
    menuBar_->setGeometry(QRect(kMenuBar, QSize(width(), menuBar_->sizeHint().height())));
}

// Laying out the first text loads the fonts, a third of the whole start: the window is put on the
// screen first and gets its texts before it is painted.
void FrmIcoEd::showEvent(QShowEvent* /*event*/) {
    QTimer::singleShot(0, this, [this] { ShowTextControls(true); });
}

void FrmIcoEd::PlaceOnScreen() {
    widgets::PlaceOnScreen(*this, kWindowSize);
}

void FrmIcoEd::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    qDrawShadePanel(&painter, QRect(0, 0, width() + 1, 2), palette(), true, 1);
    DrawEdgeAround(painter, picMain_->geometry(), palette());
    DrawEdgeAround(painter, picIcon_->geometry(), palette());
    DrawEdgeAround(painter, picTools_->geometry(), palette());
    qDrawShadePanel(&painter, kColorWells, palette(), true, 1);
    PaintIndicators(painter);
    PaintReadouts(painter);
}

void FrmIcoEd::PaintReadouts(QPainter& painter) {
    painter.setFont(widgets::FontOf(*this, widgets::kSmallFontPixels));
    for (const Readout& readout : kReadouts) {
        widgets::PictureIcon(wellPictures_, readout.picture).paint(&painter, readout.pictogram);
        painter.drawText(readout.text, Qt::AlignLeft | Qt::AlignVCenter, readouts_[readout.panel]);
    }
}

void FrmIcoEd::PrintReadout(editing::StatusPanel panel, std::string_view text) {
    QString& printed = readouts_[panel];
    if (printed == desktop::ToText(text)) return;
    printed = desktop::ToText(text);
    for (const Readout& readout : kReadouts) {
        if (readout.panel == panel) update(readout.text);
    }
}

}  // namespace kestrel::windows
