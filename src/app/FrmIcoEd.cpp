#include "app/FrmIcoEd.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

#include "app/ApplicationIcon.h"
#include "platform/qt/Pictures.h"

namespace kestrel::app {

namespace {

// A pure white window would hide white pixels in the preview.
constexpr gdi::COLORREF kGreyForWhite = 0xF0F0F0;
constexpr int kGuardAfterOpen = 250;  // milliseconds

gdi::COLORREF WindowColor(const QWidget& window) {
    const gdi::COLORREF color = qt::ToColorRef(window.palette().color(QPalette::Window));
    return color == gdi::kWhite ? kGreyForWhite : color;
}

QIcon ProgramIcon() {
    const document::IconDocument icon = ApplicationIcon();
    return QIcon(QPixmap::fromImage(qt::ToImage(icon.PicMask, icon.PicImage)));
}

}  // namespace

FrmIcoEd::FrmIcoEd(const MainWindowServices& services)
    : editor_(*this, WindowColor(*this)),
      commands_(editor_, *this, *this, services.cdb, services.boxes, services.files),
      dispatch_(commands_, *this) {}

void FrmIcoEd::Form_Load(const std::string& pathToOpen) {
    QPalette colors = palette();
    colors.setColor(QPalette::Window, qt::ToColor(WindowColor(*this)));
    setPalette(colors);
    setWindowIcon(ProgramIcon());
    setMouseTracking(true);
    setAcceptDrops(true);

    LayOutControls();
    ApplyMainCaptions();
    BuildMenuBar();
    ApplyMenuCaptions();
    ConnectGrid();
    tmr_ = new QTimer(this);
    tmr_->setInterval(kGuardAfterOpen);
    tmr_->setSingleShot(true);
    connect(tmr_, &QTimer::timeout, this, [this] { EnableGrid(true); });

    editor_.ResetDocument();
    PlaceOnScreen();
    if (!pathToOpen.empty()) commands_.OpenNamed(pathToOpen);
    RefreshEditCommands();
    SetStatusPanel(editing::StatusPanel::Zoom, "10:1");
}

bool FrmIcoEd::Form_Unload() {
    if (!commands_.PromptSaveChanges()) return false;
    editor_.History().ClearUndoHistory();
    return true;
}

void FrmIcoEd::closeEvent(QCloseEvent* event) {
    event->setAccepted(Form_Unload());
}

void FrmIcoEd::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void FrmIcoEd::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    // The program that dropped the file waits until this returns; a question must not keep it.
    QMetaObject::invokeMethod(
        this, [this, files = event->mimeData()->urls()] { Form_OLEDragDrop(files); },
        Qt::QueuedConnection);
}

void FrmIcoEd::Form_OLEDragDrop(const QList<QUrl>& files) {
    for (const QUrl& file : files) {
        if (!file.isLocalFile()) continue;
        commands_.OpenNamed(file.toLocalFile().toStdString());
        return;
    }
}

void FrmIcoEd::SetTitle(const std::string& title) {
    // "[*]" in a window title is the desktop library's place for a modified mark.
    setWindowTitle(
        QString::fromStdString(title).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

void FrmIcoEd::EnableGrid(bool enabled) {
    picMain_->setEnabled(enabled);
}

void FrmIcoEd::StartTmr() {
    tmr_->start();
}

void FrmIcoEd::ShowHourglass(bool shown) {
    if (shown) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void FrmIcoEd::ProcessPendingEvents() {
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void FrmIcoEd::Unload() {
    close();
}

}  // namespace kestrel::app
