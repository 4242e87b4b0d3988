#pragma once

#include <span>
#include <vector>

#include "i18n/Language.h"
#include "platform/gdi/IconPlanes.h"

namespace kestrel::tools {

// The desktop's colours that the states are drawn in.
struct StateColors {
    // What everything is drawn on.
    gdi::COLORREF ground = gdi::kWhite;
    gdi::COLORREF text = gdi::kBlack;
    // The ground of marked items, and that of lists and text boxes.
    gdi::COLORREF marked = gdi::kBlack;
    gdi::COLORREF window = gdi::kWhite;
    bool operator==(const StateColors&) const = default;
};

// A shape in one colour, so many pixels to the right and down.
struct Layer {
    int shift = 0;
    gdi::COLORREF color = gdi::kBlack;
    // Of its pixels those alone whose column and row add up to an even number.
    bool dithered = false;
};

// One of the states in which a desktop shows icons.
struct StateRow {
    i18n::Text label;
    // How the label is drawn, from the lowest layer.
    std::vector<Layer> (*labelLayers)(const StateColors& colors) = nullptr;
    void (*drawIcon)(gdi::Surface& ground, const gdi::IconPlanes& icon,
                     const StateColors& colors) = nullptr;
};

// From left to right.
std::span<const StateRow> DrawStates();

// Room for an icon with its shadow.
inline constexpr int kStateSize = gdi::kIconSize + 1;

// The icon in this state, on a square of kStateSize pixels.
gdi::Surface DrawState(const StateRow& state, const gdi::IconPlanes& icon,
                       const StateColors& colors);

}  // namespace kestrel::tools
