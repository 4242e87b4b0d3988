#include "editing/CellCursor.h"

#include "tests/support/EditorTest.h"

namespace kestrel::editing {
namespace {

class CellCursorTest : public test::EditorTest {
  protected:
    void Drag(GridPoint from, GridPoint to, Button button = Button::Left) {
        cursor_.MoveTo(from);
        cursor_.Press(button);
        cursor_.MoveTo(to);
        cursor_.Release();
    }

    CellCursor cursor_{editor_};
};

TEST_F(CellCursorTest, AMarqueeHoldsTheCellsOfBothEnds) {
    editor_.Tools().SelectTool(ToolId::Selection);
    for (const auto& [from, to, marked] :
         {std::tuple{GridPoint{2, 3}, GridPoint{4, 5}, Corners{20, 30, 50, 60}},
          {{4, 5}, {2, 3}, {20, 30, 50, 60}},
          {{30, 2}, {31, 0}, {300, 0, 320, 30}}}) {
        Drag(from, to);
        EXPECT_EQ(editor_.Selected().Marquee(), marked);
        EXPECT_TRUE(editor_.Selected().SelectionMarked());
        EXPECT_TRUE(test::ViewsAreFresh(editor_));
        editor_.Selected().DropSelection();
    }
    // There and back is the cell alone; without a step there is no marquee.
    cursor_.MoveTo({7, 7});
    cursor_.Press(Button::Left);
    for (const int x : {8, 7})
        cursor_.MoveTo({x, 7});
    cursor_.Release();
    EXPECT_EQ(editor_.Selected().Marquee(), (Corners{70, 70, 80, 80}));
    Drag({20, 20}, {20, 20});
    EXPECT_FALSE(editor_.Selected().Exists());
    EXPECT_FALSE(icon_.Modified);
    // Pressed inside, it moves what is selected.
    Drag({2, 2}, {3, 3});
    Drag({3, 3}, {6, 4});
    EXPECT_EQ(editor_.Selected().Marquee(), (Corners{50, 30, 70, 50}));
}

TEST_F(CellCursorTest, AKeyThatIsHeldBeyondItsGestureDrawsNoMore) {
    cursor_.Press(Button::Right);
    cursor_.MoveTo({1, 0});
    EXPECT_EQ(icon_.PicImage().GetPixel(1, 0), gdi::kWhite);
    editor_.PopUndoSnapshot();
    cursor_.MoveTo({2, 0});
    cursor_.Release();
    EXPECT_EQ(OpaquePixels(), 0);
}

}  // namespace
}  // namespace kestrel::editing
