#include "windows/frmAbout.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/CloseKey.h"
#include "desktop/Pictures.h"
#include "desktop/ScreenFit.h"
#include "desktop/Text.h"
#include "document/ApplicationIcon.h"
#include "i18n/Captions.h"
#include "i18n/Messages.h"
#include "windows/widgets/AccessibleRole.h"
#include "windows/widgets/DevicePixels.h"

namespace kestrel::windows {

namespace {

using desktop::ToText;

constexpr int kAboutMargin = 20;
constexpr int kBetweenFacts = 18;
constexpr int kBetweenLines = 6;
constexpr int kPictureTimes = 2;

QLabel* NewLine(const QString& text) {
    auto* line = new QLabel(text);
    line->setTextFormat(Qt::PlainText);
    line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return line;
}

QLabel* NewHeading(const QString& text) {
    QLabel* heading = NewLine(text);
    QFont font = heading->font();
    font.setBold(true);
    font.setPixelSize(QFontInfo(font).pixelSize() * 3 / 2);
    heading->setFont(font);
    return heading;
}

// The program's icon, enlarged.
class Picture : public QWidget {
  public:
    Picture() {
        setFixedSize(picture_.size() * kPictureTimes);
        setAccessibleName(ToText(i18n::kProgramName));
        widgets::SetRole(*this, QAccessible::Graphic);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        widgets::DrawSharp(painter, rect(), picture_);
    }

  private:
    QImage picture_ = desktop::ToImage(document::ApplicationIcon());
};

}  // namespace

frmAbout::frmAbout(QWidget* owner, tools::SystemInformation& information) : QDialog(owner) {
    setWindowTitle(ToText(i18n::kAboutTitle.Now()));
    auto* facts = new QHBoxLayout;
    facts->setSpacing(kBetweenFacts);
    facts->addWidget(new Picture, 0, Qt::AlignTop);
    facts->addLayout(NewTexts());
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kAboutMargin, kAboutMargin, kAboutMargin, kAboutMargin);
    rows->setSpacing(kBetweenFacts);
    rows->addLayout(facts);
    rows->addWidget(NewButtons(information));
    desktop::AddCloseKey(*this, Qt::ALT | Qt::Key_F4);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    desktop::FitOnScreen(*this);
}

QLayout* frmAbout::NewTexts() {
    auto* texts = new QVBoxLayout;
    texts->setSpacing(kBetweenLines);
    texts->addWidget(NewHeading(ToText(i18n::kProgramName)));
    texts->addWidget(
        NewLine(ToText(i18n::kAboutVersion.Now()) + QApplication::applicationVersion()));
    texts->addSpacing(kBetweenLines);
    for (const i18n::Text& line :
         {i18n::kAboutPurpose, i18n::kAboutCopyright, i18n::kAboutLicence}) {
        texts->addWidget(NewLine(ToText(line.Now())));
    }
    return texts;
}

QWidget* frmAbout::NewButtons(tools::SystemInformation& information) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    auto* cmdSysInfo =
        buttons->addButton(ToText(i18n::kSystemInfo.Now()), QDialogButtonBox::ResetRole);
    cmdSysInfo->setObjectName("cmdSysInfo");
    // Return closes the box.
    cmdSysInfo->setAutoDefault(false);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connect(cmdSysInfo, &QPushButton::clicked, this, [&information] { information.Start(); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    return buttons;
}

}  // namespace kestrel::windows
