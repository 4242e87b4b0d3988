#pragma once

#include <QKeyEvent>

namespace kestrel::widgets {

// The mouse button that a key stands for on a control: the left one, with Shift the right one; none
// for any other key.
inline Qt::MouseButton ButtonOfKey(const QKeyEvent& event) {
    const bool chooses = event.key() == Qt::Key_Space || event.key() == Qt::Key_Return ||
                         event.key() == Qt::Key_Enter;
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (!chooses || (modifiers & ~Qt::ShiftModifier) != Qt::NoModifier) return Qt::NoButton;
    return modifiers == Qt::ShiftModifier ? Qt::RightButton : Qt::LeftButton;
}

// Whether the keyboard has come by a key, not by a click or by the window's own doing.
inline bool IsByKey(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

}  // namespace kestrel::widgets
