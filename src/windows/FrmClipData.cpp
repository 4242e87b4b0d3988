#include "windows/FrmClipData.h"

#include <QGroupBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "windows/widgets/DesktopFont.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

using desktop::ToText;

constexpr QRect kClient(0, 0, 268, 168);
// Where the two lines of text have their top left corners.
constexpr QPoint kMessage(8, 8);
constexpr QPoint kSizeAt(8, 21);
constexpr QRect kFrame1(8, 42, 252, 84);
constexpr QRect kCmdOk(92, 134, 80, 26);
constexpr QRect kCmdCancel(180, 134, 80, 26);
// In the order of PasteFit.
constexpr std::array kChoices{i18n::kShrinkToFit, i18n::kShrinkKeepingAspect};

constexpr int kMessageFontPixels = 11;

// All of it grows with the desktop's text.
int Grown(int pixels) {
    return widgets::AsOnDesktop(pixels);
}

QRect Grown(const QRect& place) {
    return {Grown(place.x()), Grown(place.y()), Grown(place.width()), Grown(place.height())};
}

}  // namespace

FrmClipData::FrmClipData(QWidget* owner, gdi::Size picture) : QDialog(owner) {
    widgets::DressDialog(*this, ToText(i18n::kPasteTitle.Now()));
    sizeText_ = QStringLiteral("%1 x %2 pixels.").arg(picture.width).arg(picture.height);
    // What is only painted has no text that a screen reader could find.
    setAccessibleDescription(ToText(i18n::kPasteTooLarge.Now()) + QLatin1Char(' ') + sizeText_);
    setFont(widgets::FontOf(*this, Grown(widgets::kDesignedText)));
    setFixedSize(Grown(kClient).size());
    LayOutControls();
    widgets::PlaceOnScreen(*this, size());
}

void FrmClipData::LayOutControls() {
    auto* frame1 = new QGroupBox(ToText(i18n::kPasteChoice.Now()), this);
    frame1->setObjectName("Frame1");
    frame1->setGeometry(Grown(kFrame1));
    auto* choices = new QVBoxLayout(frame1);
    for (std::size_t i = 0; i < opt_.size(); ++i) {
        opt_[i] = new QRadioButton(ToText(kChoices[i].Now()));
        opt_[i]->setObjectName(QStringLiteral("Opt%1").arg(i));
        choices->addWidget(opt_[i]);
    }
    opt_[0]->setChecked(true);

    auto* cmdOk = new QPushButton(ToText(i18n::kOk.Now()), this);
    cmdOk->setObjectName("cmdOK");
    cmdOk->setGeometry(Grown(kCmdOk));
    cmdOk->setDefault(true);
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
    auto* cmdCancel = new QPushButton(ToText(i18n::kCancel.Now()), this);
    cmdCancel->setObjectName("cmdCancel");
    cmdCancel->setGeometry(Grown(kCmdCancel));
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

std::optional<imaging::PasteFit> FrmClipData::Ask() {
    if (exec() != QDialog::Accepted) return std::nullopt;
    return opt_[0]->isChecked() ? imaging::PasteFit::Shrink : imaging::PasteFit::KeepAspect;
}

void FrmClipData::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setFont(widgets::FontOf(*this, Grown(kMessageFontPixels)));
    const auto print = [&](QPoint at, const QString& text) {
        painter.drawText(Grown(at.x()), Grown(at.y()) + painter.fontMetrics().ascent(), text);
    };
    print(kMessage, ToText(i18n::kPasteTooLarge.Now()));
    print(kSizeAt, sizeText_);
}

}  // namespace kestrel::windows
