#include "windows/frmZoom.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "desktop/CloseKey.h"
#include "desktop/Pictures.h"
#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "resources/ImageList.h"
#include "resources/ZoomPictures.h"
#include "tools/MagnifierSettings.h"
#include "windows/widgets/FocusEdge.h"

namespace kestrel::windows {

namespace {

using desktop::ToText;
using tools::MagnifierSettings;

// In pixels.
constexpr int kZoomMargin = 4;
constexpr int kZoomGap = 4;
constexpr QSize kSwitch(26, 26);
constexpr QSize kSwitchPicture(16, 16);
constexpr int kZoomBoxWidth = 56;
constexpr int kLeastBarWidth = 40;
constexpr QSize kLeastPicture(112, 48);
constexpr QSize kDesignedPicture(320, 240);
constexpr int kPageStep = 10;

// Those that move the scroll bar.
bool IsBarKey(int key) {
    return key >= Qt::Key_Home && key <= Qt::Key_PageDown;
}

}  // namespace

frmZoom::frmZoom(const MagnifierServices& services)
    : services_(services),
      pictures_(resources::kZoomPictures, resources::kImageListInks),
      magnifier_(services.screen),
      place_(*this, services.editor, "frmZoom") {
    // The main window's end is the program's, also while that window is hidden.
    setAttribute(Qt::WA_QuitOnClose, false);
    desktop::AddCloseKey(*this, Qt::Key_Escape);
    desktop::AddCloseKey(*this, Qt::ALT | Qt::Key_F4);
    BuildControls();
    ShowCaptions(i18n::UiLanguage());
    Form_Load();
}

void frmZoom::BuildControls() {
    QLayout* row = NewControlRow();
    picZoom_ = new widgets::DevicePixelView(
        [this](gdi::Surface& rows, int top) { magnifier_.DrawRows(rows, top); }, this);
    picZoom_->setObjectName("picZoom");
    picZoom_->setMinimumSize(kLeastPicture);
    picZoom_->setFocusPolicy(Qt::StrongFocus);
    picZoom_->installEventFilter(this);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kZoomMargin, kZoomMargin, kZoomMargin, kZoomMargin);
    rows->setSpacing(kZoomGap);
    rows->addLayout(row);
    rows->addWidget(new widgets::FocusEdge(picZoom_, this), 1);
    FollowDesktopColors();
    tmrZoom_.setTimerType(Qt::PreciseTimer);
    tmrZoom_.setInterval(tools::MagnifierClock::kTick);
    tmrZoom_.callOnTimeout(this, &frmZoom::tmrZoom_Timer);
}

QLayout* frmZoom::NewControlRow() {
    const auto newSwitch = [this](const char* name, int picture) {
        auto* button = new widgets::PictureButton(pictures_, picture, kSwitchPicture, this);
        button->setObjectName(name);
        button->setCheckable(true);
        button->setFixedSize(kSwitch);
        return button;
    };
    chkGrid_ = newSwitch("chkGrid", resources::kPixelGridPicture);
    chkOnTop_ = newSwitch("chkOnTop", resources::kPinPicture);
    connect(chkGrid_, &QToolButton::clicked, this, &frmZoom::chkGrid_Click);
    connect(chkOnTop_, &QToolButton::clicked, this, &frmZoom::chkOnTop_Click);

    txtZoom_ = new widgets::PercentBox(this);
    txtZoom_->setObjectName("txtZoom");
    txtZoom_->setFixedWidth(kZoomBoxWidth);
    txtZoom_->onEnter = [this] { txtZoom_KeyEnter(); };
    txtZoom_->onLeave = [this] { txtZoom_LostFocus(); };
    txtZoom_->onRefuse = [this] { services_.application.Beep(); };

    hsbZoom_ = new widgets::ValueBar(Qt::Horizontal);
    hsbZoom_->setObjectName("hsbZoom");
    hsbZoom_->setRange(MagnifierSettings::kLeastZoom, MagnifierSettings::kMostZoom);
    hsbZoom_->setPageStep(kPageStep);
    hsbZoom_->setMinimumWidth(kLeastBarWidth);
    connect(hsbZoom_, &QScrollBar::valueChanged, this, &frmZoom::hsbZoom_Change);

    auto* row = new QHBoxLayout;
    row->setSpacing(kZoomGap);
    row->addWidget(chkGrid_);
    row->addWidget(chkOnTop_);
    row->addWidget(txtZoom_);
    row->addWidget(hsbZoom_, 1);
    return row;
}

void frmZoom::ShowCaptions(std::string_view code) {
    if (code != i18n::kEnglish && code != i18n::kChinese) return;
    setWindowTitle(ToText(i18n::kZoomTitle.In(code)));
    chkGrid_->setToolTip(ToText(i18n::kGridTip.In(code)));
    chkOnTop_->setToolTip(ToText(i18n::kOnTopTip.In(code)));
    chkGrid_->setAccessibleName(ToText(i18n::kGridName.In(code)));
    chkOnTop_->setAccessibleName(ToText(i18n::kOnTopName.In(code)));
    txtZoom_->setAccessibleName(ToText(i18n::kZoomName.In(code)));
    hsbZoom_->setAccessibleName(ToText(i18n::kZoomBarName.In(code)));
    picZoom_->setAccessibleName(ToText(i18n::kZoomPictureName.In(code)));
}

void frmZoom::Form_Load() {
    // As large as was designed.
    layout()->activate();
    resize(minimumSizeHint() - picZoom_->minimumSize() + kDesignedPicture);
    place_.PlaceAtFirst();
    RestoreWindowPosition(services_.settings, place_);
    place_.BringOntoMonitor();

    const MagnifierSettings chosen = tools::ReadMagnifierSettings(services_.settings);
    hsbZoom_->setValue(chosen.zoom);
    hsbZoom_Change();
    chkGrid_->setChecked(chosen.grid);
    chkGrid_Click();
    // The first tick puts the window on top: only one that is shown can be.
    chkOnTop_->setChecked(chosen.onTop);
    picZoom_->setFocus();
}

void frmZoom::Form_Unload() {
    // A number that is being typed counts.
    if (txtZoom_->hasFocus()) txtZoom_LostFocus();
    SaveWindowPosition(services_.settings, place_);
    tools::SaveMagnifierSettings(
        services_.settings, {hsbZoom_->value(), chkGrid_->isChecked(), chkOnTop_->isChecked()});
}

void frmZoom::tmrZoom_Timer() {
    const gdi::Point pointer = services_.screen.Pointer();
    const auto due = clock_.Tick(pointer);
    if (due.draw && magnifier_.Look(pointer, picZoom_->SizeInPixels())) picZoom_->update();
    if (due.renew && chkOnTop_->isChecked()) KeepOnTop();
}

void frmZoom::hsbZoom_Change() {
    txtZoom_->setText(ToText(tools::PercentText(hsbZoom_->value())));
    magnifier_.SetZoom(hsbZoom_->value());
    picZoom_->setFocus();
    clock_.Redraw();
    ShowRatio();
}

// The keyboard goes away and comes back, so that the value is taken and selected again.
void frmZoom::txtZoom_KeyEnter() {
    picZoom_->setFocus();
    services_.application.DoEvents();
    txtZoom_->setFocus();
}

void frmZoom::txtZoom_LostFocus() {
    hsbZoom_->setValue(tools::TypedZoom(txtZoom_->text().toStdString()));
    txtZoom_->setText(ToText(tools::PercentText(hsbZoom_->value())));
}

void frmZoom::chkGrid_Click() {
    magnifier_.ShowGrid(chkGrid_->isChecked());
    clock_.Redraw();
    picZoom_->setFocus();
}

void frmZoom::chkOnTop_Click() {
    if (chkOnTop_->isChecked()) {
        KeepOnTop();
    } else {
        topmost_.Set(false);
    }
    picZoom_->setFocus();
}

// Among windows that are all above, the one raised last is seen.
void frmZoom::KeepOnTop() {
    topmost_.Set(true);
    raise();
}

void frmZoom::Rest(bool resting) {
    resting_ = resting;
    if (resting && chkOnTop_->isChecked()) topmost_.Set(false);
    WakeOrSleep();
}

void frmZoom::WakeOrSleep() {
    ShowRatio();
    if (!IsSeen() || resting_) return tmrZoom_.stop();
    if (tmrZoom_.isActive()) return;
    clock_.Restart();
    tmrZoom_.start();
}

void frmZoom::ShowRatio() {
    services_.status.SetStatusPanel(
        editing::StatusPanel::Zoom,
        IsSeen() ? tools::RatioText(hsbZoom_->value()) : std::string(tools::kGridRatio));
}

void frmZoom::FollowDesktopColors() {
    magnifier_.SetGround(desktop::ToColorRef(palette().color(QPalette::Window)));
}

void frmZoom::closeEvent(QCloseEvent* /*event*/) {
    Form_Unload();
}

bool frmZoom::event(QEvent* event) {
    const bool isUsed = QWidget::event(event);
    switch (event->type()) {
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::WindowStateChange:
            WakeOrSleep();
            break;
        case QEvent::PaletteChange:
            FollowDesktopColors();
            break;
        default:
            break;
    }
    return isUsed;
}

// Keys and wheel on the picture move the scroll bar, which gives it the keyboard at every change.
bool frmZoom::eventFilter(QObject* object, QEvent* event) {
    if (object == picZoom_ && event->type() == QEvent::Resize) clock_.Redraw();
    const bool isKey =
        event->type() == QEvent::KeyPress && IsBarKey(static_cast<QKeyEvent*>(event)->key());
    if (!isKey && event->type() != QEvent::Wheel) return QWidget::eventFilter(object, event);
    return QCoreApplication::sendEvent(hsbZoom_, event);
}

}  // namespace kestrel::windows
