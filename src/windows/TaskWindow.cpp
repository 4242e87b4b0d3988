#include "windows/TaskWindow.h"

#include <QEvent>

namespace kestrel::windows {

TaskWindow::TaskWindow(QWidget& window) : window_(window) {
    window_.installEventFilter(this);
}

void TaskWindow::Hide() {
    window_.hide();
}

void TaskWindow::ShowNormal() {
    if (isAway_) return;
    window_.setWindowState(window_.windowState() & ~Qt::WindowMinimized);
    window_.show();
    window_.raise();
    window_.activateWindow();
}

void TaskWindow::Leave() {
    isAway_ = true;
    window_.hide();
}

void TaskWindow::ComeBack() {
    isAway_ = false;
    ShowNormal();
}

void TaskWindow::ShowInTaskList(bool shown) {
    isListed_ = shown;
    offTaskList_.Set(!shown);
}

bool TaskWindow::eventFilter(QObject* /*object*/, QEvent* event) {
    // Window managers forget the state of a window that is hidden, and hear of a window that comes
    // back only after this event.
    if (event->type() == QEvent::Show && !isListed_) {
        QMetaObject::invokeMethod(
            this, [this] { ShowInTaskList(isListed_); }, Qt::QueuedConnection);
    }
    if (event->type() == QEvent::WindowStateChange && window_.isMinimized() && onMinimised)
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (window_.isMinimized()) onMinimised();
            },
            Qt::QueuedConnection);
    return false;
}

}  // namespace kestrel::windows
