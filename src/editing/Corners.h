#pragma once

namespace kestrel::editing {

// Two corners of a figure, in either order: grid units or icon coordinates.
struct Corners {
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    bool operator==(const Corners&) const = default;
};

}  // namespace kestrel::editing
