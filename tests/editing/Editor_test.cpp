#include "editing/Editor.h"

#include <gtest/gtest.h>

#include "i18n/Language.h"
#include "tests/support/EditorTest.h"

namespace kestrel::editing {
namespace {

using test::EditorTest;
using test::Held;

TEST_F(EditorTest, TheCellsUnderThePointerArePaintedInOneEntry) {
    Stroke(Button::Left, {{45, 59}});
    EXPECT_FALSE(icon_.IsTransparent(4, 5));
    EXPECT_TRUE(icon_.Modified);
    EXPECT_EQ(editor_.History().UndoCount(), 2U);
    Stroke(Button::Right, {{45, 59}, {55, 59}});
    EXPECT_EQ(icon_.PicImage().GetPixel(5, 5), gdi::kWhite);
    // Nothing between two points, beside the grid, or on its outer lines to the left and top.
    Stroke(Button::Left, {{1, 1}, {65, 5}, {-15, 5}, {330, 5}, {20, 400}, {32767, -32768}});
    Stroke(Button::Left, {{0, 15}, {15, 0}});
    EXPECT_FALSE(icon_.IsTransparent(0, 0));
    EXPECT_FALSE(icon_.IsTransparent(6, 0));
    EXPECT_EQ(OpaquePixels(), 4);
    editor_.PopUndoSnapshot();
    editor_.PicMain_MouseDown(Button::Left, 5, 5);
    EXPECT_FALSE(editor_.CanRedo()) << "from the press on";
}

TEST_F(EditorTest, AGestureBelongsToTheButtonThatBeganIt) {
    editor_.PicMain_MouseDown(Button::Left, 5, 5);
    editor_.PicMain_MouseDown(Button::Right, 5, 5);
    editor_.PicMain_MouseMove({true, true}, 15, 5);
    editor_.PicMain_MouseUp(Button::Right, 15, 5);
    editor_.PicMain_MouseMove(Held(Button::Left), 25, 5);
    EXPECT_EQ(OpaquePixels(), 2);
    EXPECT_FALSE(editor_.CanUndo()) << "what it has drawn so far is no entry of its own";
    EXPECT_EQ(editor_.History().UndoCount(), 1U);
    // The release was lost to a dialog: the next press of the button ends the old stroke first.
    editor_.PicMain_MouseDown(Button::Left, 35, 5);
    EXPECT_EQ(editor_.History().UndoCount(), 2U);
    // ... and so does a move without it.
    editor_.PicMain_MouseMove({}, 45, 5);
    EXPECT_EQ(editor_.History().UndoCount(), 3U);
    // The button comes up where no move has been.
    editor_.PicMain_MouseDown(Button::Left, 55, 5);
    editor_.PicMain_MouseUp(Button::Left, 95, 5);
    EXPECT_FALSE(icon_.IsTransparent(9, 0));
    // Undo ends the stroke under way and takes it back.
    editor_.PicMain_MouseDown(Button::Left, 155, 5);
    icon_.Modified = false;
    editor_.PopUndoSnapshot();
    editor_.PicMain_MouseMove(Held(Button::Left), 155, 5);
    EXPECT_EQ(OpaquePixels(), 5);
    EXPECT_TRUE(icon_.IsTransparent(15, 0));
    EXPECT_TRUE(icon_.Modified);
}

TEST_F(EditorTest, ResetEndsAStrokeAndEmptiesEverything) {
    editor_.Wells().SetTransparent(Button::Right);
    editor_.Tools().SelectTool(ToolId::ColorEraser);
    editor_.PicMain_MouseDown(Button::Left, 5, 5);
    editor_.ResetDocument();
    editor_.PicMain_MouseMove(Held(Button::Left), 15, 5);
    editor_.PicMain_MouseUp(Button::Left, 15, 5);
    EXPECT_FALSE(icon_.Modified);
    EXPECT_EQ(editor_.History().UndoCount(), 1U);
    EXPECT_EQ(editor_.Tools().CurrentTool(), ToolId::Pencil);
    EXPECT_FALSE(editor_.Wells().IsTransparent(Button::Right));
}

TEST_F(EditorTest, ReadoutsTellPixelAndCell) {
    editor_.Wells().SetPenColor(Button::Left, 0x0000FF);
    // A press shows them without a move before.
    editor_.PicMain_MouseDown(Button::Left, 5, 5);
    EXPECT_EQ(views_.panels[2], "Transparent") << "as it was before the pencil";
    editor_.EndGesture();
    EXPECT_EQ(views_.panels[2], "#FF");
    const struct {
        int x, y;
        const char* pixel;
        const char* cell;
    } cases[] = {
        {9, 9, "#FF", "0 , 0"}, {10, 0, "Transparent", "1 , 0"}, {319, 319, "透明", "31 , 31"},
        {-1, 5, "", "0 , 0"},   {5, 9999, "", "0 , 31"},
    };
    for (const auto& c : cases) {
        i18n::SetUiLanguage(c.x == 319 ? i18n::kChinese : i18n::kEnglish);
        editor_.PicMain_MouseMove({}, c.x, c.y);
        EXPECT_EQ(views_.panels[2], c.pixel) << c.x << "," << c.y;
        EXPECT_EQ(views_.panels[3], c.cell) << c.x << "," << c.y;
        EXPECT_EQ(views_.printed[3], c.cell);
    }
}

}  // namespace
}  // namespace kestrel::editing
