#include "windows/FrmIcoEd.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QUrl>

#include "desktop/Pictures.h"
#include "document/ApplicationIcon.h"
#include "i18n/Language.h"
#include "resources/ImageList.h"
#include "resources/WellPictures.h"

namespace kestrel::windows {

namespace {

// A pure white window would hide white pixels in the preview.
constexpr gdi::COLORREF kGreyForWhite = 0xF0F0F0;
constexpr int kGuardAfterOpen = 250;  // milliseconds

gdi::COLORREF WindowColor() {
    const gdi::COLORREF color =
        desktop::ToColorRef(QApplication::palette().color(QPalette::Window));
    return color == gdi::kWhite ? kGreyForWhite : color;
}

// The local file of a URL, byte for byte: its name need not be UTF-8.
std::string LocalFile(const QUrl& url) {
    if (!url.isLocalFile()) return {};
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

// The file is only read: a source that would move it must not delete it.
void AcceptToRead(QDropEvent& event) {
    for (const Qt::DropAction action : {Qt::CopyAction, Qt::LinkAction}) {
        if (!event.possibleActions().testFlag(action)) continue;
        event.setDropAction(action);
        event.accept();
        return;
    }
    event.ignore();
}

// The first of the dragged files that lies on this machine; empty for none.
std::string FirstLocalFile(const QMimeData& dragged) {
    for (const QUrl& url : dragged.urls()) {
        if (std::string file = LocalFile(url); !file.empty()) return file;
    }
    return {};
}

QIcon ProgramIcon() {
    const document::IconDocument icon = document::ApplicationIcon();
    return QIcon(QPixmap::fromImage(desktop::ToImage(icon.PicMask, icon.PicImage)));
}

}  // namespace

FrmIcoEd::FrmIcoEd(const commands::MainServices& services)
    : help_(services.help),
      clipboard_(services.clipboard),
      pictures_(resources::kImageList, resources::kImageListInks),
      wellPictures_(resources::kWellPictures, resources::kImageListInks),
      barView_(menus_.SmartMenuXP1, pictures_),
      popupView_(menus_.SmartMenuXP2, pictures_),
      editor_({*this, *this, *this, *this, *this, *this, services.application}, WindowColor()),
      cdb_(services.dialogs, *this),
      wellCommands_(editor_.Wells(), services.application, cdb_),
      dialogs_(*this),
      commands_(editor_, *this, menus_, cdb_, dialogs_, services),
      dispatch_(commands_, *this) {}

// The controls show what the members hold: they go first.
FrmIcoEd::~FrmIcoEd() {
    clipboard_.onChanged = nullptr;
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

void FrmIcoEd::Form_Load(const std::string& pathToOpen) {
    FollowDesktopColors();
    QApplication::setWindowIcon(ProgramIcon());
    setMouseTracking(true);
    setAcceptDrops(true);
    // The keyboard starts at the window itself, not at the first button.
    setFocusPolicy(Qt::StrongFocus);
    setFocus();

    LayOutControls();
    LayOutTools();
    BuildToolbar();
    LayOutPalette();
    ShowTextControls(false);
    commands::ApplyMainCaptions(i18n::UiLanguage(), *this);
    BuildMenus();
    DisableMissingCommands();
    ConnectGrid();
    ConnectTools();
    ConnectPalette();
    tmr_ = new QTimer(this);
    tmr_->setInterval(kGuardAfterOpen);
    tmr_->setSingleShot(true);
    connect(tmr_, &QTimer::timeout, this, [this] { EnableGrid(true); });

    clipboard_.onChanged = [this] { RefreshEditCommands(); };
    commands_.Recent().LoadRecentFiles();
    editor_.ResetDocument();
    PlaceOnScreen();
    if (!pathToOpen.empty()) commands_.Documents().OpenNamed(pathToOpen);
    RefreshEditCommands();
    SetStatusPanel(editing::StatusPanel::Zoom, "10:1");
}

bool FrmIcoEd::Form_Unload() {
    if (!commands_.Documents().PromptSaveChanges()) return false;
    editor_.History().ClearUndoHistory();
    commands_.Recent().SaveRecentFiles();
    help_.Close();
    return true;
}

void FrmIcoEd::RunCommand(const std::function<void()>& command) {
    if (commandRunning_) return;
    const QScopedValueRollback running(commandRunning_, true);
    editor_.EndGesture();
    command();
    // What lies under the pointer may have changed.
    const QPoint at = picMain_->mapFromGlobal(QCursor::pos());
    if (picMain_->underMouse()) editor_.PicMain_MouseMove({}, at.x(), at.y());
    RefreshEditCommands();
}

void FrmIcoEd::closeEvent(QCloseEvent* event) {
    event->ignore();
    RunCommand([&] { event->setAccepted(Form_Unload()); });
}

bool FrmIcoEd::event(QEvent* event) {
    // Also where the window's own colour hides that the desktop's has changed.
    if (event->type() == QEvent::ApplicationPaletteChange) FollowDesktopColors();
    return QWidget::event(event);
}

// The window and the preview's ground share one colour.
void FrmIcoEd::FollowDesktopColors() {
    const gdi::COLORREF color = WindowColor();
    if (palette().color(QPalette::Window) != desktop::ToColor(color)) {
        // Only this role: the others go on following the desktop.
        QPalette own;
        own.setColor(QPalette::Window, desktop::ToColor(color));
        setPalette(own);
    }
    editor_.SetWindowColor(color);
}

void FrmIcoEd::dragEnterEvent(QDragEnterEvent* event) {
    // While a command asks something, a file could not be opened.
    if (!commandRunning_ && !FirstLocalFile(*event->mimeData()).empty()) AcceptToRead(*event);
}

void FrmIcoEd::dropEvent(QDropEvent* event) {
    AcceptToRead(*event);
    // The program that dropped the file waits until this returns; a question must not keep it.
    QMetaObject::invokeMethod(
        this, [this, file = FirstLocalFile(*event->mimeData())] { Form_OLEDragDrop(file); },
        Qt::QueuedConnection);
}

void FrmIcoEd::Form_OLEDragDrop(const std::string& pathToOpen) {
    RunCommand([&] { commands_.Documents().OpenNamed(pathToOpen); });
}

void FrmIcoEd::SetTitle(const std::string& title) {
    // "[*]" in a window title is the desktop library's place for a modified mark.
    setWindowTitle(
        QString::fromStdString(title).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

void FrmIcoEd::EnableGrid(bool enabled) {
    // A tick that is still due belongs to an earlier Open.
    tmr_->stop();
    picMain_->setEnabled(enabled);
}

void FrmIcoEd::StartTmr() {
    tmr_->start();
}

services::WindowHandle FrmIcoEd::hWnd() const {
    return static_cast<services::WindowHandle>(winId());
}

void FrmIcoEd::Unload() {
    // After the command that asked for it has returned.
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void FrmIcoEd::LanguageChanged() {
    editor_.ShowTitle();
    ClearStatusPanels();
    FitMenuBar();
}

}  // namespace kestrel::windows
