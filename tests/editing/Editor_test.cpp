#include "editing/Editor.h"

#include <gtest/gtest.h>

#include "i18n/Language.h"
#include "tests/support/EditorTest.h"

namespace kestrel::editing {
namespace {

using test::EditorTest;
using test::Held;

TEST_F(EditorTest, AClickPaintsOneCellAndRecordsOneEntry) {
    Stroke(Button::Left, {{45, 59}});
    EXPECT_FALSE(icon_.IsTransparent(4, 5));
    EXPECT_EQ(icon_.PicImage.GetPixel(4, 5), gdi::kBlack);
    EXPECT_EQ(OpaquePixels(), 1);
    EXPECT_TRUE(icon_.Modified);
    EXPECT_EQ(editor_.History().UndoCount(), 2U);
    Stroke(Button::Right, {{45, 59}, {55, 59}});
    EXPECT_EQ(icon_.PicImage.GetPixel(4, 5), gdi::kWhite);
    EXPECT_EQ(icon_.PicImage.GetPixel(5, 5), gdi::kWhite);
    EXPECT_EQ(editor_.History().UndoCount(), 3U);
}

TEST_F(EditorTest, OnlyCellsUnderPointerEventsArePainted) {
    Stroke(Button::Left, {{5, 5}, {65, 5}, {-15, 5}, {330, 5}, {20, 400}, {32767, -32768}});
    EXPECT_EQ(OpaquePixels(), 2);
    EXPECT_FALSE(icon_.IsTransparent(6, 0));
}

TEST_F(EditorTest, TheOuterLinesOnTheLeftAndTopPaintNothing) {
    Stroke(Button::Left, {{0, 5}});
    Stroke(Button::Left, {{5, 0}});
    EXPECT_EQ(OpaquePixels(), 0);
    Stroke(Button::Left, {{1, 1}});
    EXPECT_FALSE(icon_.IsTransparent(0, 0));
}

TEST_F(EditorTest, AGestureBelongsToTheButtonThatBeganIt) {
    editor_.PicMain_MouseDown(Button::Left, 5, 5);
    editor_.PicMain_MouseDown(Button::Right, 5, 5);
    editor_.PicMain_MouseMove({true, true}, 15, 5);
    editor_.PicMain_MouseUp(Button::Right, 15, 5);
    editor_.PicMain_MouseMove(Held(Button::Left), 25, 5);
    EXPECT_EQ(icon_.PicImage.GetPixel(0, 0), gdi::kBlack);
    EXPECT_EQ(OpaquePixels(), 2);
    EXPECT_EQ(editor_.History().UndoCount(), 1U);
    // The release was lost to a dialog: the next press of the button ends the old stroke first.
    editor_.PicMain_MouseDown(Button::Left, 35, 5);
    EXPECT_EQ(editor_.History().UndoCount(), 2U);
    // ... and so does a move without it.
    editor_.PicMain_MouseMove({}, 45, 5);
    EXPECT_EQ(editor_.History().UndoCount(), 3U);
    editor_.PicMain_MouseUp(Button::Left, 35, 5);
    editor_.PicMain_MouseDown(Button::None, 95, 95);
    EXPECT_EQ(editor_.History().UndoCount(), 3U);
    EXPECT_EQ(OpaquePixels(), 3);
}

TEST_F(EditorTest, ResetEndsAStrokeAndEmptiesEverything) {
    icon_.FilePath = "/icons/a.ico";
    editor_.Wells().SetTransparent(Button::Right);
    editor_.Tools().SelectTool(ToolId::ColorEraser);
    editor_.PicMain_MouseDown(Button::Left, 5, 5);
    editor_.ResetDocument();
    editor_.PicMain_MouseMove(Held(Button::Left), 15, 5);
    editor_.PicMain_MouseUp(Button::Left, 15, 5);
    EXPECT_EQ(OpaquePixels(), 0);
    EXPECT_FALSE(icon_.Modified);
    EXPECT_TRUE(icon_.IsUntitled());
    EXPECT_EQ(editor_.History().UndoCount(), 1U);
    EXPECT_EQ(window_.title, "KestrelIconEditor - Untitled");
    EXPECT_EQ(editor_.Tools().CurrentTool(), ToolId::Pencil);
    EXPECT_FALSE(editor_.Wells().IsTransparent(Button::Right));
}

TEST_F(EditorTest, TheButtonComesUpWhereThePointerHasBeen) {
    editor_.PicMain_MouseDown(Button::Left, 5, 5);
    editor_.PicMain_MouseUp(Button::Left, 95, 5);
    EXPECT_FALSE(icon_.IsTransparent(9, 0));
    // Undo ends the stroke under way and takes it back.
    editor_.PicMain_MouseDown(Button::Left, 155, 5);
    editor_.PopUndoSnapshot();
    editor_.PicMain_MouseMove(Held(Button::Left), 155, 5);
    EXPECT_TRUE(icon_.IsTransparent(15, 0));
    EXPECT_EQ(OpaquePixels(), 2);
    icon_.Modified = false;
    editor_.PopUndoSnapshot();
    EXPECT_EQ(OpaquePixels(), 0);
    EXPECT_TRUE(icon_.Modified);
}

TEST_F(EditorTest, APressShowsTheReadoutsWithoutAMoveBefore) {
    editor_.PicMain_MouseDown(Button::Left, 15, 25);
    EXPECT_EQ(window_.panels[3], "1 , 2");
    EXPECT_EQ(window_.panels[2], "Transparent") << "as it was before the pencil";
    editor_.EndGesture();
    EXPECT_EQ(window_.panels[2], "#0");
    EXPECT_TRUE(icon_.Modified);
}

TEST_F(EditorTest, ReadoutsTellPixelAndCell) {
    editor_.Wells().SetPenColor(Button::Left, 0x0000FF);
    Stroke(Button::Left, {{5, 5}});
    Stroke(Button::Right, {{15, 5}});
    struct {
        int x, y;
        const char* pixel;
        const char* cell;
    } const cases[] = {
        {9, 9, "#FF", "0 , 0"}, {10, 0, "#FFFFFF", "1 , 0"}, {319, 319, "Transparent", "31 , 31"},
        {320, 5, "", "31 , 0"}, {-1, 5, "", "0 , 0"},        {5, 9999, "", "0 , 31"},
    };
    for (const auto& c : cases) {
        editor_.PicMain_MouseMove({}, c.x, c.y);
        EXPECT_EQ(window_.panels[2], c.pixel) << c.x << "," << c.y;
        EXPECT_EQ(window_.panels[3], c.cell) << c.x << "," << c.y;
        EXPECT_EQ(window_.printed[3], c.cell);
    }
    EXPECT_EQ(window_.panels[1], "Left-Click (Forecolor) Or Right-Click (Backcolor)");
    i18n::SetUiLanguage(i18n::kChinese);
    editor_.PicMain_MouseMove({}, 319, 319);
    i18n::SetUiLanguage(i18n::kEnglish);
    EXPECT_EQ(window_.panels[2], "透明");
}

}  // namespace
}  // namespace kestrel::editing
