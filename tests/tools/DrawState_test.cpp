#include "tools/DrawState.h"

#include "tests/support/PictureText.h"

namespace kestrel::tools {
namespace {

const StateColors kColors{
    .ground = 0xD0D0D0, .text = 0x102030, .marked = 0x803010, .window = 0xFFFFFF};
// x is what an inverted-screen pixel of 0x00FF00 makes of the ground. Capitals are half way from
// the colour of their letter to kColors.marked, 1, 2 and 3 from k, w and c to kColors.window.
const std::vector<gdi::ArtInk> kStateInks{
    {'k', 0x000000}, {'w', 0xFFFFFF}, {'c', 0x204061}, {'_', 0xD0D0D0}, {'x', 0xD02FD0},
    {'s', 0x808080}, {'o', 0x0080FF}, {'t', 0x102030}, {'K', 0x401808}, {'W', 0xBF9787},
    {'C', 0x503838}, {'1', 0x7F7F7F}, {'2', 0xFFFFFF}, {'3', 0x8F9FB0}};
constexpr const char* kPictures[] = {
    "k w _ c _ \n c k x _ _ \n _ _ k w _ \n c c _ k _ \n _ _ _ _ _",
    "s _ _ s _ \n s s _ _ w \n _ w s _ _ \n s s _ s _ \n _ w w _ w",
    "o _ _ o _ \n o o _ _ _ \n _ _ o _ _ \n o o _ o _ \n _ _ _ _ _",
    "t _ _ _ _ \n _ t _ _ _ \n _ _ t _ _ \n _ t _ t _ \n _ _ _ _ _",
    "K W _ C _ \n C K _ _ _ \n _ _ K W _ \n C C _ K _ \n _ _ _ _ _",
    "1 2 _ 3 _ \n 3 1 _ _ _ \n _ _ 1 2 _ \n 3 3 _ 1 _ \n _ _ _ _ _"};

TEST(DrawState, EachStateIsThePictureOfItsRule) {
    gdi::IconPlanes icon = gdi::ReadIconArt("k w . c \n c k . . \n . . k w \n c c . k", kStateInks);
    icon.image.SetPixel(2, 1, 0x00FF00);
    ASSERT_EQ(DrawStates().size(), std::size(kPictures));
    for (std::size_t i = 0; i < std::size(kPictures); ++i) {
        gdi::Surface ground(5, 5, kColors.ground);
        DrawStates()[i].drawIcon(ground, icon, kColors);
        EXPECT_TRUE(test::ComparePicture(ground, gdi::ReadPixelArt(kPictures[i], kStateInks)))
            << DrawStates()[i].label.english;
        EXPECT_TRUE(test::ComparePicture(DrawState(DrawStates()[i], {}, kColors),
                                         gdi::Surface(33, 33, kColors.ground)));
    }
}

}  // namespace
}  // namespace kestrel::tools
