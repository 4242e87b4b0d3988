#pragma once

#include "platform/gdi/Surface.h"

namespace kestrel::imaging {

// Which half is reflected into the other, in the order of the menu. In a plane of odd size the
// middle stays.
enum class Reflection { LeftIntoRight, RightIntoLeft, TopIntoBottom, BottomIntoTop };
// Which way the picture turns by 90 degrees.
enum class Turn { Left, Right };
enum class FlipAxis { Horizontal, Vertical };

// Each moves the pixels of one plane; what is done to the colours is done to the mask as well.
void Mirror(gdi::Surface& plane, Reflection reflection);
// As wide as the plane was high.
gdi::Surface Rotated(const gdi::Surface& plane, Turn turn);
void Flip(gdi::Surface& plane, FlipAxis axis);

}  // namespace kestrel::imaging
