#include "windows/widgets/DigitBox.h"

#include <QKeyEvent>
#include <QRegularExpressionValidator>

namespace kestrel::widgets {

DigitBox::DigitBox(Backspace backspace) : backspace_(backspace) {
    // For texts that come without keys: pasted, dropped or from an input method.
    setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this));
    setInputMethodHints(Qt::ImhDigitsOnly);
}

void DigitBox::keyPressEvent(QKeyEvent* event) {
    if (Takes(*event)) {
        QLineEdit::keyPressEvent(event);
    } else {
        event->accept();
    }
}

QSize DigitBox::sizeHint() const {
    // Left and right of the text together.
    constexpr int kEdges = 16;
    const int digits = fontMetrics().horizontalAdvance(QStringLiteral("0000"));
    return {digits + kEdges, QLineEdit::sizeHint().height()};
}

bool DigitBox::Takes(const QKeyEvent& event) const {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        // Keys without a character, although X gives them one.
        case Qt::Key_Delete:
        case Qt::Key_Escape:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return true;
        case Qt::Key_Backspace:
            return backspace_ == Backspace::Taken;
        default:
            break;
    }
    const QString text = event.text();
    return text.isEmpty() || (text[0] >= u'0' && text[0] <= u'9');
}

}  // namespace kestrel::widgets
