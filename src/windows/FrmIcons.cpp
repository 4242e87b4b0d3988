#include "windows/FrmIcons.h"

#include <QKeyEvent>
#include <QWheelEvent>
#include <map>

#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "windows/FrmParts.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

using desktop::ToText;
using tools::GridMove;
using tools::IconGrid;

const std::map<int, GridMove>& MoveKeys() {
    static const std::map<int, GridMove> keys{
        {Qt::Key_Left, GridMove::Left},     {Qt::Key_Right, GridMove::Right},
        {Qt::Key_Up, GridMove::Up},         {Qt::Key_Down, GridMove::Down},
        {Qt::Key_PageUp, GridMove::PageUp}, {Qt::Key_PageDown, GridMove::PageDown},
        {Qt::Key_Home, GridMove::First},    {Qt::Key_End, GridMove::Last}};
    return keys;
}

}  // namespace

FrmIcons::FrmIcons(QWidget* owner, tools::IconExtraction& extraction)
    : QDialog(owner),
      extraction_(extraction),
      PicFrame_(new QWidget),
      PicIcons_(new widgets::IconGridView(extraction, PicFrame_)),
      Vsb_(new QScrollBar(Qt::Vertical)),
      lblInfo_(new QLabel) {
    QVBoxLayout* rows = NewRows(*this, {});
    rows->addLayout(NewGrid());
    lblInfo_->setObjectName("lblInfo");
    rows->addWidget(lblInfo_);
    rows->addLayout(NewCommands());
    cmdOK_ = findChild<QPushButton*>("cmdOK");
    ShowFile();
    PicIcons_->setFocus();
    constexpr int kThird = 3;
    PlaceDialog(*this, kThird);
}

QLayout* FrmIcons::NewGrid() {
    PicFrame_->setObjectName("PicFrame");
    PicFrame_->setFixedSize(IconGrid::kWidth, IconGrid::kSeenHeight);
    PicIcons_->setObjectName("PicIcons");
    PicIcons_->onMouseUp = [this](QPoint point, bool second) { PicIcons_MouseUp(point, second); };
    Vsb_->setObjectName("Vsb");
    Vsb_->setAccessibleName(ToText(i18n::kIconsScrollName.Now()));
    Vsb_->setSingleStep(IconGrid::kCellSize);
    Vsb_->setPageStep(IconGrid::kSeenHeight);
    Vsb_->installEventFilter(this);
    connect(Vsb_, &QScrollBar::valueChanged, this,
            [this](int value) { PicIcons_->move(0, -value); });
    auto* grid = new QHBoxLayout;
    grid->setSpacing(0);
    grid->addWidget(NewFrame(PicFrame_));
    grid->addWidget(Vsb_);
    return grid;
}

QLayout* FrmIcons::NewCommands() {
    QHBoxLayout* row = NewButtons(*this, i18n::kOk, i18n::kCancel);
    auto* cmdBrowse = new QPushButton(ToText(i18n::kBrowse.Now()));
    cmdBrowse->setObjectName("CmdBrowse");
    connect(cmdBrowse, &QPushButton::clicked, this, &FrmIcons::CmdBrowse_Click);
    row->insertWidget(0, cmdBrowse);
    return row;
}

void FrmIcons::ShowFile() {
    widgets::ShowTitle(*this, QString::fromStdString(extraction_.Title()));
    PicIcons_->ShowFile();
    Vsb_->setRange(0, extraction_.Grid().ScrollMaximum());
    Vsb_->setValue(0);
    Vsb_->setEnabled(Vsb_->maximum() > 0);
    cmdOK_->setEnabled(extraction_.HasIcons());
    lblInfo_->setText(QString::fromStdString(extraction_.Info()));
}

void FrmIcons::ShowSelection() {
    PicIcons_->ShowSelection();
    lblInfo_->setText(QString::fromStdString(extraction_.Info()));
}

void FrmIcons::PicIcons_MouseUp(QPoint point, bool second) {
    if (!extraction_.SelectAt(point.x(), point.y())) return;
    ShowSelection();
    if (second) accept();
}

void FrmIcons::CmdBrowse_Click() {
    if (extraction_.Browse(window_)) ShowFile();
    // The keys are for the icons again, also after a dialog that was cancelled.
    PicIcons_->setFocus();
}

void FrmIcons::keyPressEvent(QKeyEvent* event) {
    const auto move = MoveKeys().find(event->key());
    if (move == MoveKeys().end()) return QDialog::keyPressEvent(event);
    extraction_.MoveSelection(move->second);
    ShowSelection();
    Vsb_->setValue(extraction_.Grid().ScrolledTo(extraction_.SelectedIndex(), Vsb_->value()));
}

// A row for each notch, which is 120 units of the event, wherever the pointer is.
void FrmIcons::wheelEvent(QWheelEvent* event) {
    constexpr int kNotch = QWheelEvent::DefaultDeltasPerStep;
    wheelRest_ += event->angleDelta().y() * IconGrid::kCellSize;
    Vsb_->setValue(Vsb_->value() - wheelRest_ / kNotch);
    wheelRest_ %= kNotch;
}

bool FrmIcons::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::Wheel) return QDialog::eventFilter(object, event);
    wheelEvent(static_cast<QWheelEvent*>(event));
    return true;
}

}  // namespace kestrel::windows
