#include "windows/widgets/PercentBox.h"

#include <QKeyEvent>
#include <QRegularExpressionValidator>
#include <QTimer>

namespace kestrel::widgets {

namespace {

// Keys that act on the window are no characters; X gives Delete one, past the control characters.
bool IsRefused(const QKeyEvent& event) {
    const QString text = event.text();
    const bool acts = event.modifiers().testAnyFlags(Qt::AltModifier | Qt::MetaModifier);
    if (text.isEmpty() || acts || event.key() == Qt::Key_Delete) return false;
    return text[0] >= u' ' && (text[0] < u'0' || text[0] > u'9');
}

}  // namespace

PercentBox::PercentBox(QWidget* parent) : QLineEdit(parent) {
    // For texts that come without keys: pasted, dropped or from an input method.
    setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*%?")), this));
    setInputMethodHints(Qt::ImhDigitsOnly);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize PercentBox::sizeHint() const {
    // Left and right of the text together.
    constexpr int kEdges = 16;
    const int text = fontMetrics().horizontalAdvance(QStringLiteral("1000%"));
    return {text + kEdges, QLineEdit::sizeHint().height()};
}

void PercentBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (onEnter) onEnter();
    } else if (IsRefused(*event)) {
        if (onRefuse) onRefuse();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void PercentBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::PopupFocusReason) return;
    setText(text().remove(u'%'));
    selectAll();
    // The press that brings the keyboard sets the cursor afterwards.
    if (event->reason() == Qt::MouseFocusReason) QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void PercentBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && onLeave) onLeave();
}

}  // namespace kestrel::widgets
