#include "windows/widgets/PictureButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>

#include "windows/widgets/FocusMark.h"
#include "windows/widgets/PictureIcon.h"

namespace kestrel::widgets {

PictureButton::PictureButton(const controls::ImageList& pictures, int number, QSize pictureSize,
                             QWidget* parent)
    : QToolButton(parent) {
    setIcon(PictureIcon(pictures, number));
    setIconSize(pictureSize);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
}

void PictureButton::SetName(const QString& name) {
    static const QRegularExpression kShortcut(QStringLiteral("\\s*\\([^)]*\\)\\s*$"));
    setToolTip(name);
    setAccessibleName(QString(name).remove(kShortcut).trimmed());
}

// The style's own sign of the keyboard is lost on dark desktops.
void PictureButton::paintEvent(QPaintEvent* event) {
    QToolButton::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    DrawFocusMark(painter, rect().adjusted(1, 1, -1, -1), MarkGround::Window, palette());
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        animateClick();
    } else {
        QToolButton::keyPressEvent(event);
    }
}

}  // namespace kestrel::widgets
