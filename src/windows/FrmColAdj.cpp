#include "windows/FrmColAdj.h"

#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "imaging/filters/Levels.h"
#include "windows/FrmParts.h"

namespace kestrel::windows {

namespace {

using desktop::ToText;

constexpr int kBarHeight = 176;
constexpr int kBetweenColumns = 12;
constexpr int kBetweenLabels = 6;
constexpr int kWidestStrut = 100;

// In the order of AdjustmentBar.
constexpr std::array kNames{"Brightness", "Red", "Green", "Blue"};
constexpr std::array kBarCaptions{i18n::kBrightness, i18n::kRed, i18n::kGreen, i18n::kBlue};

// All of one width, so that the bars and the preview stand at even distances, as long as the text
// is not so large that they would be far apart.
QVBoxLayout* NewColumn(const QDialog& dialog) {
    int width = 0;
    for (const i18n::Text& caption : kBarCaptions)
        width = std::max(width, dialog.fontMetrics().horizontalAdvance(ToText(caption.Now())));
    auto* column = new QVBoxLayout;
    column->setSpacing(kBetweenLabels);
    column->addStrut(std::min(width, kWidestStrut));
    return column;
}

QLabel* NewValueLabel(const char* name) {
    auto* value = new QLabel(QString::number(0));
    value->setObjectName(QStringLiteral("Lbl%1").arg(name));
    value->setAlignment(Qt::AlignCenter);
    return value;
}

}  // namespace

FrmColAdj::FrmColAdj(QWidget* owner, imaging::ColorAdjustment& colors, gdi::Surface preview)
    : QDialog(owner),
      colors_(colors),
      picture_(std::move(preview)),
      PicShade_(new widgets::SurfaceWidget(picture_, this)) {
    PicShade_->setObjectName("PicShade");
    NamePreview(*PicShade_);
    QVBoxLayout* rows = NewRows(*this, i18n::kColorAdjustmentTitle);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(kBetweenColumns);
    for (int bar = 0; bar < imaging::kAdjustmentBars; ++bar)
        columns->addLayout(NewBarColumn(static_cast<imaging::AdjustmentBar>(bar)));
    QVBoxLayout* last = NewColumn(*this);
    last->addWidget(NewFrame(PicShade_), 0, Qt::AlignCenter);
    columns->addLayout(last);
    rows->addLayout(columns);
    rows->addLayout(NewCommands());
    PlaceDialog(*this);
}

QLayout* FrmColAdj::NewBarColumn(imaging::AdjustmentBar bar) {
    const auto index = static_cast<std::size_t>(bar);
    auto* caption = new QLabel(ToText(kBarCaptions[index].Now()));
    caption->setAlignment(Qt::AlignCenter);
    QLabel* value = NewValueLabel(kNames[index]);
    auto* vsb = new widgets::ValueBar(Qt::Vertical);
    vsb->setObjectName(QStringLiteral("Vsb%1").arg(kNames[index]));
    vsb->setRange(-filters::kMaxLevel, filters::kMaxLevel);
    vsb->setSingleStep(imaging::kAdjustmentStep);
    vsb->setPageStep(imaging::kAdjustmentStep);
    vsb->setFixedHeight(kBarHeight);
    // A drag is one change, however long it is.
    vsb->setTracking(false);
    caption->setBuddy(vsb);
    connect(vsb, &QScrollBar::sliderMoved, value, qOverload<int>(&QLabel::setNum));
    connect(vsb, &QScrollBar::valueChanged, value, qOverload<int>(&QLabel::setNum));
    connect(vsb, &QScrollBar::valueChanged, this, [this, bar](int now) { VsbChange(bar, now); });
    vsb_[index] = vsb;

    QVBoxLayout* column = NewColumn(*this);
    column->addWidget(caption);
    column->addWidget(vsb, 0, Qt::AlignHCenter);
    column->addWidget(value);
    return column;
}

QLayout* FrmColAdj::NewCommands() {
    QHBoxLayout* row = NewButtons(*this, i18n::kOk, i18n::kCancel);
    auto* cmdReset = new QPushButton(ToText(i18n::kReset.Now()));
    cmdReset->setObjectName("CmdReset");
    connect(cmdReset, &QPushButton::clicked, this, &FrmColAdj::CmdReset_Click);
    row->insertWidget(0, cmdReset);
    return row;
}

void FrmColAdj::VsbChange(imaging::AdjustmentBar bar, int value) {
    colors_.Change(bar, value);
    ShowColors();
}

void FrmColAdj::CmdReset_Click() {
    colors_.Reset();
    ShowColors();
    // The colours know every bar at 0 already, so that none of these is a step.
    for (widgets::ValueBar* vsb : vsb_)
        vsb->setValue(0);
}

void FrmColAdj::ShowColors() {
    colors_.Draw(picture_);
    PicShade_->update();
}

}  // namespace kestrel::windows
