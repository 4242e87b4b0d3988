#include "windows/FrmClipData.h"

#include <QGroupBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

using desktop::ToText;

constexpr QSize kClientSize(268, 168);
// Where the two lines of text have their top left corners.
constexpr QPoint kMessage(8, 8);
constexpr QPoint kSize(8, 21);
constexpr QRect kFrame1(8, 42, 252, 84);
constexpr QRect kCmdOk(92, 134, 80, 26);
constexpr QRect kCmdCancel(180, 134, 80, 26);
// In the order of PasteFit.
constexpr std::array kChoices{i18n::kShrinkToFit, i18n::kShrinkKeepingAspect};

constexpr int kFontPixels = 12;
constexpr int kMessageFontPixels = 11;

}  // namespace

FrmClipData::FrmClipData(QWidget* owner, gdi::Size picture) : QDialog(owner) {
    widgets::DressDialog(*this, ToText(i18n::kPasteTitle.Now()));
    sizeText_ = QStringLiteral("%1 x %2 pixels.").arg(picture.width).arg(picture.height);
    // What is only painted has no text that a screen reader could find.
    setAccessibleDescription(ToText(i18n::kPasteTooLarge.Now()) + QLatin1Char(' ') + sizeText_);
    setFont(widgets::FontOf(*this, kFontPixels));
    setFixedSize(kClientSize);
    LayOutControls();
    widgets::PlaceOnScreen(*this, kClientSize);
}

void FrmClipData::LayOutControls() {
    auto* frame1 = new QGroupBox(ToText(i18n::kPasteChoice.Now()), this);
    frame1->setObjectName("Frame1");
    frame1->setGeometry(kFrame1);
    auto* choices = new QVBoxLayout(frame1);
    for (std::size_t i = 0; i < opt_.size(); ++i) {
        opt_[i] = new QRadioButton(ToText(kChoices[i].Now()));
        opt_[i]->setObjectName(QStringLiteral("Opt%1").arg(i));
        choices->addWidget(opt_[i]);
    }
    opt_[0]->setChecked(true);

    auto* cmdOk = new QPushButton(ToText(i18n::kOk.Now()), this);
    cmdOk->setObjectName("cmdOK");
    cmdOk->setGeometry(kCmdOk);
    cmdOk->setDefault(true);
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
    auto* cmdCancel = new QPushButton(ToText(i18n::kCancel.Now()), this);
    cmdCancel->setObjectName("cmdCancel");
    cmdCancel->setGeometry(kCmdCancel);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

std::optional<imaging::PasteFit> FrmClipData::Ask() {
    if (exec() != QDialog::Accepted) return std::nullopt;
    return opt_[0]->isChecked() ? imaging::PasteFit::Shrink : imaging::PasteFit::KeepAspect;
}

void FrmClipData::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setFont(widgets::FontOf(*this, kMessageFontPixels));
    const auto print = [&](QPoint at, const QString& text) {
        painter.drawText(at + QPoint(0, painter.fontMetrics().ascent()), text);
    };
    print(kMessage, ToText(i18n::kPasteTooLarge.Now()));
    print(kSize, sizeText_);
}

}  // namespace kestrel::windows
