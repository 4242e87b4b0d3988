#pragma once

namespace kestrel::editing {

// The mouse buttons that draw; others do nothing on the grid.
enum class Button { None = 0, Left = 1, Right = 2 };

constexpr Button Other(Button button) {
    return button == Button::Right ? Button::Left : Button::Right;
}

// The drawing buttons held during a pointer move.
struct HeldButtons {
    bool left = false;
    bool right = false;

    bool Has(Button button) const { return button == Button::Left ? left : right; }
    bool IsOnly(Button button) const { return Has(button) && left != right; }
};

// A point of the grid in grid units; outside it while the mouse is captured.
struct GridPoint {
    int x = 0;
    int y = 0;
    bool operator==(const GridPoint&) const = default;
};

}  // namespace kestrel::editing
