#include "resources/ImageList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace kestrel::resources {
namespace {

using Rows = std::vector<std::string>;

Rows Picture(int number) {
    std::istringstream text{std::string(kImageList.at(static_cast<std::size_t>(number) - 1))};
    return {std::istream_iterator<std::string>(text), {}};
}

Rows TurnedClockwise(const Rows& rows) {
    Rows turned(16, std::string(16, '.'));
    for (std::size_t i = 0; i < 256; ++i)
        turned[i % 16][15 - i / 16] = rows[i / 16][i % 16];
    return turned;
}

TEST(ImageList, PicturesAreSixteenSquareInTheInksOfTheTable) {
    std::set<char> inks = {'.'}, used;
    for (const gdi::ArtInk& ink : kImageListInks)
        inks.insert(ink.letter);
    EXPECT_EQ(kImageListInks.size(), std::min<std::size_t>(inks.size() - 1, 24)) << "none twice";
    for (int number = 1; number <= 40; ++number) {
        const Rows rows = Picture(number);
        ASSERT_EQ(rows.size(), 16U) << number;
        for (const std::string& row : rows) {
            ASSERT_EQ(row.size(), 16U) << number << ": " << row;
            used.insert(row.begin(), row.end());
        }
    }
    EXPECT_EQ(used, inks);
    EXPECT_EQ(std::set(kImageList.begin(), kImageList.end()).size(), kImageList.size());
}

TEST(ImageList, PairsAreExactMirrorsAndTurns) {
    for (const int left : {5, 15}) {
        const Rows upside_down = TurnedClockwise(TurnedClockwise(Picture(left)));
        EXPECT_EQ(Picture(left + 1), Rows(upside_down.rbegin(), upside_down.rend())) << left;
    }
    for (const auto& [from, to] : {std::pair{17, 18}, {34, 37}, {37, 35}, {35, 36}})
        EXPECT_EQ(Picture(to), TurnedClockwise(Picture(from))) << to;
}

}  // namespace
}  // namespace kestrel::resources
