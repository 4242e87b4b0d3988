#include "desktop/QtApplication.h"

#include <QApplication>

namespace kestrel::desktop {

void QtApplication::DoEvents() {
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtApplication::ShowHourglass(bool shown) {
    if (shown) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void QtApplication::Beep() {
    QApplication::beep();
}

void QtApplication::Quit() {
    QApplication::exit();
}

}  // namespace kestrel::desktop
