#include "resources/ImageList.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

namespace kestrel::resources {
namespace {

// A picture that lost a row, or a letter without an ink, would only show on the screen.
TEST(ImageList, PicturesAreSixteenSquareInTheInksOfTheTable) {
    std::string known = ".";
    for (const gdi::ArtInk& ink : kImageListInks)
        known += ink.letter;
    for (const std::string_view picture : kImageList) {
        std::istringstream text{std::string(picture)};
        int rows = 0;
        for (std::string row; text >> row; ++rows)
            EXPECT_TRUE(row.size() == 16 && row.find_first_not_of(known) == std::string::npos);
        EXPECT_EQ(rows, 16) << picture;
    }
    EXPECT_EQ(std::set(kImageList.begin(), kImageList.end()).size(), 40U);
}

}  // namespace
}  // namespace kestrel::resources
