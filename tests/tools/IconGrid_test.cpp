#include "tools/IconGrid.h"

#include <gtest/gtest.h>

namespace kestrel::tools {
namespace {

TEST(IconGrid, TellsWhereIconsAre) {
    const int heights[][2] = {{0, 190}, {50, 190}, {51, 228}, {32767, 124526}};
    for (const auto& [count, height] : heights)
        EXPECT_EQ(IconGrid(count).ScrollMaximum(), height - 190) << count;
    const int points[][3] = {{0, 0, 0},   {37, 37, 0}, {379, 5, 9},   {380, 5, -1},  {-1, 5, -1},
                             {5, -1, -1}, {5, 38, 10}, {75, 113, 21}, {76, 113, -1}, {5, 114, -1}};
    for (const auto& [x, y, icon] : points)
        EXPECT_EQ(IconGrid(22).IconAt(x, y).value_or(-1), icon) << x << ", " << y;
    EXPECT_EQ(IconGrid(22).PictureOf(21), (gdi::Rect{41, 79, 32, 32}));
    EXPECT_EQ(IconGrid(22).BoxOf(21), (gdi::Rect{39, 77, 37, 37})) << "both corners included";
}

TEST(IconGrid, MovesAndScrollsAsTheKeysSay) {
    using enum GridMove;
    struct {
        int from;
        GridMove move;
        int to;
    } const moves[] = {{0, Left, 0},       {10, Left, 9},    {9, Right, 10},  {71, Right, 71},
                       {3, Up, 3},         {13, Up, 3},      {61, Down, 71},  {65, Down, 71},
                       {71, Down, 71},     {63, PageUp, 13}, {43, PageUp, 3}, {3, PageDown, 53},
                       {31, PageDown, 71}, {65, First, 0},   {3, Last, 71}};
    for (const auto& [from, move, to] : moves)
        EXPECT_EQ(IconGrid(72).Moved(from, move), to) << from;
    const int scrolls[][3] = {{49, 0, 0},    {50, 0, 38},    {0, 100, 0},
                              {29, 100, 76}, {35, 100, 100}, {72, 100, 114}};
    for (const auto& [icon, before, after] : scrolls)
        EXPECT_EQ(IconGrid(80).ScrolledTo(icon, before), after) << icon;
}

}  // namespace
}  // namespace kestrel::tools
