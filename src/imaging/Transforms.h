#pragma once

#include "platform/gdi/IconPlanes.h"

namespace kestrel::imaging {

// Which half is reflected into the other, in the order of the menu. In a plane of odd size the
// middle stays.
enum class Reflection { LeftIntoRight, RightIntoLeft, TopIntoBottom, BottomIntoTop };
// Which way the picture turns by 90 degrees.
enum class Turn { Left, Right };
enum class FlipAxis { Horizontal, Vertical };

void Mirror(gdi::IconPlanes& planes, Reflection reflection);
// Width and height change places.
void Rotate(gdi::IconPlanes& planes, Turn turn);
void Flip(gdi::IconPlanes& planes, FlipAxis axis);

}  // namespace kestrel::imaging
