#include "imaging/frmGamma.h"

#include <QLabel>

#include "i18n/Captions.h"
#include "imaging/FrmParts.h"
#include "platform/qt/Text.h"

namespace kestrel::imaging {

namespace {

constexpr int kDigits = 4;
constexpr int kBetweenPromptAndBox = 6;
// Room for the title.
constexpr int kWidth = 300;

}  // namespace

frmGamma::frmGamma(QWidget* owner)
    : QDialog(owner), txtGamma_(new qt::DigitBox(qt::DigitBox::Backspace::Discarded)) {
    txtGamma_->setObjectName("txtGamma");
    txtGamma_->setMaxLength(kDigits);
    txtGamma_->setMinimumWidth(kWidth);
    auto* lblGamma = new QLabel(qt::ToText(i18n::kGammaPrompt.Now()));
    lblGamma->setObjectName("lblGamma");
    lblGamma->setBuddy(txtGamma_);
    auto* question = new QVBoxLayout;
    question->setSpacing(kBetweenPromptAndBox);
    question->addWidget(lblGamma);
    question->addWidget(txtGamma_);
    QVBoxLayout* rows = NewRows(*this, i18n::kGammaTitle);
    rows->addLayout(question);
    rows->addLayout(NewButtons(*this, i18n::kGammaOk, i18n::kGammaCancel));
    PlaceDialog(*this);
}

std::optional<int> frmGamma::Ask() {
    if (exec() != QDialog::Accepted) return std::nullopt;
    return txtGamma_->text().toInt();
}

}  // namespace kestrel::imaging
