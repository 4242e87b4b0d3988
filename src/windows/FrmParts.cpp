#include "windows/FrmParts.h"

#include <QFrame>
#include <QPushButton>

#include "desktop/ScreenFit.h"
#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "windows/widgets/AccessibleRole.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

QVBoxLayout* NewRows(QDialog& dialog, const i18n::Text& title) {
    widgets::DressDialog(dialog, desktop::ToText(title.Now()));
    auto* rows = new QVBoxLayout(&dialog);
    rows->setContentsMargins(kDialogMargin, kDialogMargin, kDialogMargin, kDialogMargin);
    rows->setSpacing(kBetweenBlocks);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    return rows;
}

QHBoxLayout* NewButtons(QDialog& dialog, const i18n::Text& ok, const i18n::Text& cancel) {
    auto* cmdOk = new QPushButton(desktop::ToText(ok.Now()));
    cmdOk->setObjectName("cmdOK");
    cmdOk->setDefault(true);
    QObject::connect(cmdOk, &QPushButton::clicked, &dialog, &QDialog::accept);
    auto* cmdCancel = new QPushButton(desktop::ToText(cancel.Now()));
    cmdCancel->setObjectName("cmdCancel");
    QObject::connect(cmdCancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cmdOk);
    row->addWidget(cmdCancel);
    return row;
}

QWidget* NewFrame(QWidget* picture) {
    auto* frame = new QFrame;
    frame->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(picture);
    frame->setFixedSize(frame->sizeHint());
    return frame;
}

void NamePreview(QWidget& picture) {
    widgets::SetRole(picture, QAccessible::Graphic);
    picture.setAccessibleName(desktop::ToText(i18n::kPreviewName.Now()));
}

void PlaceDialog(QDialog& dialog, int parts) {
    desktop::FitOnScreen(dialog);
    widgets::PlaceOnScreen(dialog, dialog.size(), parts);
}

}  // namespace kestrel::windows
