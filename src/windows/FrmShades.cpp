#include "windows/FrmShades.h"

#include <QFrame>
#include <QIcon>

#include "desktop/Pictures.h"
#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "i18n/Speech.h"
#include "imaging/filters/Levels.h"
#include "windows/FrmParts.h"

namespace kestrel::windows {

namespace {

using desktop::ToText;
using filters::kMaxLevel;
using filters::Level;

constexpr int kLevelPage = 5;
constexpr int kBarWidth = 128;
constexpr int kSwatchHeight = 22;
constexpr int kGroupMargin = 10;
constexpr int kBetweenControls = 8;
constexpr std::size_t kChannels = 3;
constexpr std::array kLevelCaptions{i18n::kGradientRed, i18n::kGradientGreen, i18n::kGradientBlue};

// None when it is too large for a level. Nothing counts as 0.
std::optional<int> LevelOf(const QString& text) {
    if (text.isEmpty()) return 0;
    bool fits = false;
    const int number = text.toInt(&fits);
    return fits && number <= kMaxLevel ? std::optional(number) : std::nullopt;
}

widgets::ValueBar* NewLevelBar(std::size_t index, int value) {
    auto* bar = new widgets::ValueBar(Qt::Horizontal);
    bar->setObjectName(QStringLiteral("Hsb%1").arg(index));
    bar->setRange(0, kMaxLevel);
    bar->setPageStep(kLevelPage);
    bar->setValue(value);
    bar->setFixedWidth(kBarWidth);
    return bar;
}

widgets::DigitBox* NewLevelBox(std::size_t index, int value) {
    auto* box = new widgets::DigitBox(widgets::DigitBox::Backspace::Taken);
    box->setObjectName(QStringLiteral("TxtColor%1").arg(index));
    box->setText(QString::number(value));
    box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return box;
}

}  // namespace

FrmShades::FrmShades(QWidget* owner)
    : QDialog(owner),
      picture_(imaging::DrawShade(shades_)),
      PicSml_(new widgets::SurfaceWidget(picture_, this)),
      VsbDegrees_(new widgets::ValueBar(Qt::Vertical)),
      LblDegrees_(new QLabel) {
    PicSml_->setObjectName("PicSml");
    NamePreview(*PicSml_);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(kBetweenBlocks);
    columns->addWidget(NewColorGroup(End::Start));
    columns->addLayout(NewDirection());
    columns->addWidget(NewColorGroup(End::End));
    QVBoxLayout* rows = NewRows(*this, i18n::kGradientTitle);
    rows->addLayout(columns);
    rows->addLayout(NewButtons(*this, i18n::kOk, i18n::kCancel));
    ShowShade();
    PlaceDialog(*this);
}

QWidget* FrmShades::NewColorGroup(End end) {
    auto* group = new QFrame;
    group->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(kGroupMargin, kGroupMargin, kGroupMargin, kGroupMargin);
    grid->setSpacing(kBetweenControls);
    auto* swatch = new widgets::PictureBox(widgets::PictureBox::Edge::Sunken, group);
    swatch->setFixedHeight(kSwatchHeight);
    swatch_[static_cast<std::size_t>(end)] = swatch;
    grid->addWidget(swatch, 0, 0, 1, 3);
    const std::size_t first = end == End::Start ? 0 : kChannels;
    for (std::size_t i = 0; i < kChannels; ++i) {
        AddLevel(first + i, end == End::Start ? 0 : kMaxLevel);
        auto* caption = new QLabel(ToText(kLevelCaptions[i].Now()));
        caption->setBuddy(TxtColor_[first + i]);
        const int row = static_cast<int>(i) + 1;
        grid->addWidget(caption, row, 0, Qt::AlignRight);
        grid->addWidget(Hsb_[first + i], row, 1);
        grid->addWidget(TxtColor_[first + i], row, 2);
    }
    return group;
}

void FrmShades::AddLevel(std::size_t index, int value) {
    Hsb_[index] = NewLevelBar(index, value);
    TxtColor_[index] = NewLevelBox(index, value);
    const QString name =
        QString::fromStdString(i18n::Named(i18n::kShadeEndNames[index / kChannels].Now(),
                                           i18n::kShadePartNames[index % kChannels].Now()));
    Hsb_[index]->setAccessibleName(name);
    TxtColor_[index]->setAccessibleName(name);
    connect(Hsb_[index], &QScrollBar::valueChanged, this,
            [this, index](int now) { Hsb_Change(index, now); });
    connect(TxtColor_[index], &QLineEdit::textChanged, this,
            [this, index] { TxtColor_Change(index); });
    // What was typed need not be what the bar shows: "007", or nothing.
    connect(TxtColor_[index], &QLineEdit::editingFinished, this,
            [this, index] { TxtColor_[index]->setText(QString::number(Hsb_[index]->value())); });
}

QLayout* FrmShades::NewDirection() {
    LblDegrees_->setObjectName("LblDegrees");
    LblDegrees_->setAlignment(Qt::AlignCenter);
    VsbDegrees_->setObjectName("VsbDegrees");
    VsbDegrees_->setRange(0, imaging::kDirections);
    VsbDegrees_->setPageStep(1);
    connect(VsbDegrees_, &QScrollBar::valueChanged, this, &FrmShades::ShowShade);
    auto* caption = new QLabel(ToText(i18n::kDegrees.Now()));
    caption->setAlignment(Qt::AlignCenter);
    caption->setBuddy(VsbDegrees_);
    auto* texts = new QVBoxLayout;
    texts->addWidget(NewFrame(PicSml_), 0, Qt::AlignHCenter);
    texts->addStretch();
    texts->addWidget(caption);
    texts->addWidget(LblDegrees_);
    auto* direction = new QHBoxLayout;
    direction->setSpacing(kBetweenControls);
    direction->addLayout(texts);
    direction->addWidget(VsbDegrees_);
    return direction;
}

std::optional<gdi::Surface> FrmShades::Ask() {
    if (exec() != QDialog::Accepted) return std::nullopt;
    return picture_;
}

void FrmShades::Hsb_Change(std::size_t index, int value) {
    // A text that says so already is left alone: the user may be in the middle of it.
    if (LevelOf(TxtColor_[index]->text()) != value)
        TxtColor_[index]->setText(QString::number(value));
    ShowShade();
}

void FrmShades::TxtColor_Change(std::size_t index) {
    widgets::DigitBox* box = TxtColor_[index];
    if (const auto level = LevelOf(box->text())) return Hsb_[index]->setValue(*level);
    constexpr int kDigitsKept = 2;
    box->setText(box->text().left(kDigitsKept));
    box->selectAll();
    box->setFocus();
}

gdi::COLORREF FrmShades::ColorAt(End end) const {
    const std::size_t first = end == End::Start ? 0 : kChannels;
    return gdi::Rgb(Level(Hsb_[first]->value()), Level(Hsb_[first + 1]->value()),
                    Level(Hsb_[first + 2]->value()));
}

void FrmShades::ShowShade() {
    shades_ = {ColorAt(End::Start), ColorAt(End::End),
               VsbDegrees_->value() * imaging::kDegreesPerStep};
    LblDegrees_->setText(QString::number(shades_.degrees));
    for (const End end : {End::Start, End::End}) {
        const auto index = static_cast<std::size_t>(end);
        swatch_[index]->Show(desktop::ToColor(ColorAt(end)), {});
        swatch_[index]->SetName(QString::fromStdString(
            i18n::Named(i18n::kShadeEndNames[index].Now(), i18n::ColorName(ColorAt(end)))));
    }
    picture_ = imaging::DrawShade(shades_);
    PicSml_->update();
}

}  // namespace kestrel::windows
