#include "document/GridCoordinates.h"

#include <gtest/gtest.h>

#include <utility>

namespace kestrel::document {
namespace {

TEST(GridCoordinates, HelpersMovePoints) {
    struct {
        const char* name;
        void (*helper)(int&, int&);
        int x, y, wantX, wantY;
    } const cases[] = {
        {"cell, first and second", SnapToCell, 9, 10, 0, 10},
        {"cell, truncating toward zero", SnapToCell, -9, -11, 0, -10},
        {"nearest line, below and at the middle", SnapToNearestLine, 14, 15, 10, 20},
        {"nearest line, negative", SnapToNearestLine, -4, -14, 0, -10},
        {"centre", CellCentre, 0, 319, 5, 315},
        {"centre outside", CellCentre, -3, 325, 5, 325},
        {"clamp keeps the last line", ClampToGrid, 320, 321, 320, 320},
        {"clamp", ClampToGrid, -1, 32767, 0, 320},
        {"swap", SwapInt, 1, 2, 2, 1},
    };
    for (auto c : cases) {
        c.helper(c.x, c.y);
        EXPECT_EQ(std::pair(c.x, c.y), std::pair(c.wantX, c.wantY)) << c.name;
    }
}

}  // namespace
}  // namespace kestrel::document
