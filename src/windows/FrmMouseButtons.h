#pragma once

#include <Qt>

#include "editing/Mouse.h"

namespace kestrel::windows {

inline editing::Button ToButton(Qt::MouseButton button) {
    if (button == Qt::LeftButton) return editing::Button::Left;
    return button == Qt::RightButton ? editing::Button::Right : editing::Button::None;
}

inline editing::HeldButtons ToHeldButtons(Qt::MouseButtons held) {
    return {held.testFlag(Qt::LeftButton), held.testFlag(Qt::RightButton)};
}

}  // namespace kestrel::windows
