#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "windows/FrmIcoEd.h"
#include "windows/widgets/MousePoint.h"

namespace kestrel::windows {

namespace {

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

}  // namespace

void FrmIcoEd::closeEvent(QCloseEvent* event) {
    event->ignore();
    runner_.Run([&] { event->setAccepted(Form_Unload()); });
    // No other window's closing ends the program.
    if (event->isAccepted()) application_.Quit();
}

bool FrmIcoEd::event(QEvent* event) {
    // Also where the window's own colour hides that the desktop's has changed.
    if (event->type() == QEvent::ApplicationPaletteChange) FollowDesktopColors();
    if (event->type() == QEvent::ApplicationFontChange && menuBar_->isVisibleTo(this)) FitTexts();
    return QWidget::event(event);
}

void FrmIcoEd::dragEnterEvent(QDragEnterEvent* event) {
    // While a command asks something, a file could not be opened.
    if (!runner_.IsRunning() && !FirstLocalFile(*event->mimeData()).empty()) AcceptToRead(*event);
}

void FrmIcoEd::dropEvent(QDropEvent* event) {
    AcceptToRead(*event);
    // The program that dropped the file waits until this returns; a question must not keep it.
    QMetaObject::invokeMethod(
        this, [this, file = FirstLocalFile(*event->mimeData())] { Form_OLEDragDrop(file); },
        Qt::QueuedConnection);
}

void FrmIcoEd::mouseMoveEvent(QMouseEvent* /*event*/) {
    statusBar_.Clear();
}

// On the background it puts the selection down. Controls hand on what they do not use.
void FrmIcoEd::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint at = widgets::UnitOf(*event);
    if (!rect().contains(at) || !IsBackground(at)) return;
    runner_.Run([this] { editor_.Selected().DropSelection(); });
}

// The panes' own ground counts as the window's.
bool FrmIcoEd::IsBackground(QPoint at) const {
    const QWidget* const hit = childAt(at);
    return hit == nullptr || hit == &grid_ || hit == &preview_ || hit == &tools_ || hit == &colors_;
}

}  // namespace kestrel::windows
