#include "windows/frmGamma.h"

#include <QLabel>

#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "windows/FrmParts.h"

namespace kestrel::windows {

namespace {

constexpr int kDigits = 4;
constexpr int kBoxWidth = 80;
// Room for the title too.
constexpr int kRowWidth = 340;

}  // namespace

frmGamma::frmGamma(QWidget* owner)
    : QDialog(owner), txtGamma_(new widgets::DigitBox(widgets::DigitBox::Backspace::Discarded)) {
    txtGamma_->setObjectName("txtGamma");
    txtGamma_->setMaxLength(kDigits);
    txtGamma_->setMinimumWidth(kBoxWidth);
    txtGamma_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* lblGamma = new QLabel(desktop::ToText(i18n::kGammaPrompt.Now()));
    lblGamma->setObjectName("lblGamma");
    lblGamma->setBuddy(txtGamma_);
    auto* question = new QHBoxLayout;
    question->addWidget(lblGamma, 1);
    question->addWidget(txtGamma_);
    QVBoxLayout* rows = NewRows(*this, i18n::kGammaTitle);
    rows->addStrut(kRowWidth);
    rows->addLayout(question);
    rows->addLayout(NewButtons(*this, i18n::kGammaOk, i18n::kGammaCancel));
    PlaceDialog(*this);
}

std::optional<int> frmGamma::Ask() {
    if (exec() != QDialog::Accepted) return std::nullopt;
    return txtGamma_->text().toInt();
}

}  // namespace kestrel::windows
