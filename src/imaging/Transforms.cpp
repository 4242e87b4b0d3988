#include "imaging/Transforms.h"

#include <algorithm>
#include <utility>

namespace kestrel::imaging {

namespace {

// Calls meet(row, its mirror image) for each pair of rows once, from the outside in.
template <typename Meet>
void ForEachPairOfRows(gdi::Surface& plane, const Meet& meet) {
    for (int y = 0; y < plane.Height() / 2; ++y)
        meet(plane.Row(y), plane.Row(plane.Height() - 1 - y));
}

template <typename Reflect>
void ForEachRow(gdi::Surface& plane, const Reflect& reflect) {
    for (int y = 0; y < plane.Height(); ++y)
        reflect(plane.Row(y));
}

void MirrorPlane(gdi::Surface& plane, Reflection reflection) {
    const auto half = plane.Width() / 2;
    switch (reflection) {
        case Reflection::LeftIntoRight:
            return ForEachRow(plane,
                              [half](auto row) { std::copy_n(row.begin(), half, row.rbegin()); });
        case Reflection::RightIntoLeft:
            return ForEachRow(plane,
                              [half](auto row) { std::copy_n(row.rbegin(), half, row.begin()); });
        case Reflection::TopIntoBottom:
            return ForEachPairOfRows(
                plane, [](auto top, auto bottom) { std::ranges::copy(top, bottom.begin()); });
        case Reflection::BottomIntoTop:
            return ForEachPairOfRows(
                plane, [](auto top, auto bottom) { std::ranges::copy(bottom, top.begin()); });
    }
}

gdi::Surface RotatedPlane(const gdi::Surface& plane, Turn turn) {
    gdi::Surface rotated(plane.Height(), plane.Width(), plane.BackColor());
    for (int y = 0; y < plane.Height(); ++y) {
        for (int x = 0; x < plane.Width(); ++x) {
            const gdi::COLORREF color = plane.GetPixel(x, y);
            if (turn == Turn::Left) {
                rotated.SetPixel(y, plane.Width() - 1 - x, color);
            } else {
                rotated.SetPixel(plane.Height() - 1 - y, x, color);
            }
        }
    }
    return rotated;
}

void FlipPlane(gdi::Surface& plane, FlipAxis axis) {
    if (axis == FlipAxis::Horizontal) {
        ForEachRow(plane, [](auto row) { std::ranges::reverse(row); });
    } else {
        ForEachPairOfRows(plane,
                          [](auto top, auto bottom) { std::ranges::swap_ranges(top, bottom); });
    }
}

}  // namespace

void Mirror(gdi::IconPlanes& planes, Reflection reflection) {
    MirrorPlane(planes.image, reflection);
    MirrorPlane(planes.mask, reflection);
}

void Rotate(gdi::IconPlanes& planes, Turn turn) {
    planes.image = RotatedPlane(planes.image, turn);
    planes.mask = RotatedPlane(planes.mask, turn);
}

void Flip(gdi::IconPlanes& planes, FlipAxis axis) {
    FlipPlane(planes.image, axis);
    FlipPlane(planes.mask, axis);
}

}  // namespace kestrel::imaging
