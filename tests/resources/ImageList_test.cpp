#include "resources/ImageList.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

#include "resources/ToolStrip.h"

namespace kestrel::resources {
namespace {

// A picture that lost a row, or a letter without an ink, would only show on the screen.
TEST(ImageList, PicturesAreSixteenSquareInTheInksOfTheTable) {
    std::string known = ".";
    for (const gdi::ArtInk& ink : kImageListInks)
        known += ink.letter;
    std::set<std::string_view> pictures(kImageList.begin(), kImageList.end());
    pictures.insert(kToolStrip.begin(), kToolStrip.end());
    for (const std::string_view picture : pictures) {
        std::istringstream text{std::string(picture)};
        int rows = 0;
        for (std::string row; text >> row; ++rows)
            EXPECT_TRUE(row.size() == 16 && row.find_first_not_of(known) == std::string::npos);
        EXPECT_EQ(rows, 16) << picture;
    }
    EXPECT_EQ(pictures.size(), 52U);
}

}  // namespace
}  // namespace kestrel::resources
