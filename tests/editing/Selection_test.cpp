#include "editing/Selection.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/support/EditorTest.h"

namespace kestrel::editing {
namespace {

class SelectionTest : public test::EditorTest {
  protected:
    SelectionTest() {
        for (int y = 0; y < 32; ++y) {
            for (int x = 0; x < 32; ++x) {
                if ((x + y) % 3 != 0) Paint({x, y}, ColorAt(x, y));
            }
        }
        // A pixel that inverts the screen.
        icon_.PicImage.SetPixel(6, 6, 0x123456);
        icon_.PicMask.SetPixel(6, 6, gdi::kWhite);
        editor_.Views().RedrawAll();
        editor_.History().ClearUndoHistory();
        editor_.History().PushUndoSnapshot();
        editor_.Tools().SelectTool(ToolId::Selection);
        icon_.Modified = false;
    }

    static gdi::COLORREF ColorAt(int x, int y) {
        return static_cast<gdi::COLORREF>(0x400000 + 256 * 7 * x + 7 * y);
    }
    Selection& Selected() { return editor_.Selected(); }
    // Marks the cells from one to the other.
    void MarkCells(test::At first, test::At last) {
        Selected().DropSelection();
        Stroke(Button::Left, {{first.x * 10, first.y * 10}, {last.x * 10 + 10, last.y * 10 + 10}});
    }
    bool SamePlanes(const document::IconDocument& other) const {
        return icon_.PicImage.SamePixels(other.PicImage) && icon_.PicMask.SamePixels(other.PicMask);
    }
    std::size_t Entries() { return editor_.History().UndoCount(); }
};

TEST_F(SelectionTest, AMarqueeRunsFromTheNearestLineToTheCellUnderThePointer) {
    const struct {
        const char* what;
        std::vector<test::At> way;
        Corners marquee;
    } cases[] = {
        {"downwards", {{24, 35}, {67, 81}}, {20, 40, 60, 80}},
        {"upwards marks the same", {{64, 84}, {20, 40}}, {20, 40, 60, 80}},
        {"across, back and forth", {{64, 41}, {300, 300}, {29, 80}}, {20, 40, 60, 80}},
        {"out at every side", {{155, 155}, {-70, 999}}, {0, 160, 160, 320}},
        {"begun beside the grid", {{-14, 333}, {50, 250}}, {0, 250, 50, 320}},
        {"far out", {{155, 155}, {32767, -32768}}, {160, 0, 320, 160}},
        {"a click", {{155, 155}}, {}},
        {"no height", {{20, 40}, {300, 44}}, {}},
        {"no width", {{20, 40}, {29, 300}}, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Selected().DropSelection();
        window_.refreshes = 0;
        editor_.PicMain_MouseDown(Button::Left, c.way[0].x, c.way[0].y);
        for (std::size_t i = 1; i < c.way.size(); ++i)
            editor_.PicMain_MouseMove(test::Held(Button::Left), c.way[i].x, c.way[i].y);
        editor_.PicMain_MouseUp(Button::Left, c.way.back().x, c.way.back().y);
        const bool marks = c.marquee != Corners{};
        EXPECT_EQ(Selected().SelectionMarked(), marks);
        EXPECT_FALSE(Selected().SelectionFloating());
        EXPECT_EQ(marks ? Selected().Marquee() : Corners{}, c.marquee);
        EXPECT_GE(window_.refreshes, 1);
        EXPECT_TRUE(test::ViewsAreFresh(editor_));
    }
    EXPECT_EQ(Entries(), 1U);
    EXPECT_FALSE(icon_.Modified);
}

TEST_F(SelectionTest, TheRubberMarqueeIsDottedAndTellsItsSize) {
    const gdi::Surface before = editor_.Views().PicMain;
    editor_.PicMain_MouseDown(Button::Left, 28, 41);
    editor_.PicMain_MouseMove(test::Held(Button::Left), 87, 65);
    const gdi::Surface& grid = editor_.Views().PicMain;
    for (const int x : {30, 31, 32})
        EXPECT_EQ(grid.GetPixel(x, 40), before.GetPixel(x, 40) ^ (x == 31 ? 0 : gdi::kWhite));
    gdi::Surface expected = before;
    test::InvertMarquee(expected, {30, 40, 80, 60});
    EXPECT_TRUE(test::ComparePicture(grid, expected));
    EXPECT_EQ(window_.panels[4], "5 , 2");
    editor_.EndGesture();
    // The right button marks nothing and moves nothing: its size is that of the cells passed.
    Stroke(Button::Right, {{58, 58}, {157, 157}});
    EXPECT_EQ(window_.panels[4], "10 , 10");
}

TEST_F(SelectionTest, LiftedAndDroppedInPlaceNothingChanges) {
    const document::IconDocument before = icon_;
    MarkCells({5, 6}, {12, 20});
    window_.refreshes = 0;
    // Near the end of a cell, where a press rounded to the nearest line would shift it.
    Stroke(Button::Left, {{68, 79}});
    EXPECT_GE(window_.refreshes, 1);
    EXPECT_TRUE(Selected().SelectionFloating());
    EXPECT_EQ(Selected().Marquee(), (Corners{50, 60, 130, 210}));
    EXPECT_TRUE(icon_.IsTransparent(7, 6));
    EXPECT_EQ(icon_.PicImage.GetPixel(7, 6), gdi::kBlack);
    EXPECT_FALSE(icon_.IsTransparent(4, 6));
    EXPECT_TRUE(icon_.Modified);
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
    EXPECT_EQ(Entries(), 1U);
    icon_.Modified = false;
    Selected().DropSelection();
    EXPECT_TRUE(icon_.Modified);
    EXPECT_FALSE(Selected().Exists());
    EXPECT_TRUE(SamePlanes(before)) << "also the pixel that inverts the screen";
    EXPECT_EQ(Entries(), 2U);
    MarkCells({5, 6}, {12, 20});
    icon_.Modified = false;
    Selected().DropSelection();
    EXPECT_TRUE(SamePlanes(before));
    EXPECT_EQ(Entries(), 2U) << "what was only marked leaves no trace";
    EXPECT_FALSE(icon_.Modified);
}

// Two pixels, one of them transparent, go to different places, also beyond the edges.
TEST_F(SelectionTest, ADragMovesThePixelsByWholeCells) {
    const document::IconDocument before = icon_;
    const struct {
        test::At from, to;
        Corners marquee;
    } cases[] = {{{45, 55}, {66, 94}, {60, 90, 80, 100}},
                 {{50, 60}, {319, 319}, {300, 300, 320, 310}},
                 {{45, 55}, {-31, 55}, {-30, 50, -10, 60}},
                 {{45, 55}, {30000, -30000}, {30000, -30000, 30020, -29990}},
                 {{45, 55}, {32740, 55}, {32740, 50, 32760, 60}},
                 {{45, 55}, {32767, 55}, {40, 50, 60, 60}},
                 {{55, 55}, {-32768, 55}, {40, 50, 60, 60}}};
    for (const auto& c : cases) {
        MarkCells({4, 5}, {5, 5});
        ASSERT_TRUE(icon_.IsTransparent(4, 5));
        Stroke(Button::Left, {c.from, c.to});
        EXPECT_EQ(Selected().Marquee(), c.marquee) << "the last two would leave the 16 bits";
        EXPECT_TRUE(test::ViewsAreFresh(editor_));
        const std::size_t entries = Entries();
        Selected().DropSelection();
        EXPECT_EQ(Entries(), entries + 1);
        EXPECT_TRUE(test::ViewsAreFresh(editor_));
        document::IconDocument expected = before;
        expected.PicImage.SetPixel(5, 5, gdi::kBlack);
        expected.PicMask.SetPixel(5, 5, gdi::kWhite);
        expected.PicImage.SetPixel(c.marquee.x1 / 10 + 1, c.marquee.y1 / 10, ColorAt(5, 5));
        expected.PicMask.SetPixel(c.marquee.x1 / 10 + 1, c.marquee.y1 / 10, gdi::kBlack);
        EXPECT_TRUE(SamePlanes(expected));
        editor_.PopUndoSnapshot();
        EXPECT_TRUE(SamePlanes(before));
    }
}

TEST_F(SelectionTest, WhileItMovesItIsShownWithoutMarquee) {
    MarkCells({4, 5}, {9, 9});
    window_.panels[4] = "kept";
    editor_.PicMain_MouseDown(Button::Left, 65, 65);
    editor_.PicMain_MouseMove(test::Held(Button::Left), 185, 65);
    EXPECT_TRUE(Selected().MovingSelection());
    EXPECT_EQ(window_.panels[4], "kept") << "no size of a drag";
    EXPECT_EQ(window_.cursor, GridCursor::Move) << "the pointer was faster than the selection";
    const gdi::Surface& grid = editor_.Views().PicMain;
    EXPECT_EQ(grid.GetPixel(160, 50), gdi::kBlack);
    EXPECT_EQ(grid.GetPixel(175, 55), ColorAt(5, 5));
    EXPECT_EQ(editor_.Views().PicIcon.GetPixel(17, 5), ColorAt(5, 5));
    test::InvertMarquee(editor_.Views().PicMain, Selected().Marquee());
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
    test::InvertMarquee(editor_.Views().PicMain, Selected().Marquee());
    editor_.PicMain_MouseUp(Button::Left, 185, 65);
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
    editor_.PicMain_MouseDown(Button::Left, 185, 65);
    Selected().DropSelection();
    EXPECT_FALSE(Selected().MovingSelection());
    editor_.SelectAll();
    EXPECT_TRUE(test::ViewsAreFresh(editor_)) << "the gesture has ended";
    Selected().LiftSelection();
    // The desktop's colours change behind a floating selection.
    editor_.SetWindowColor(0x00FF00);
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
}

TEST_F(SelectionTest, EachCommandRecordsWhatItSays) {
    const auto mark = [this] { MarkCells({2, 2}, {4, 4}); };
    const auto lift = [this, mark] {
        mark();
        Stroke(Button::Left, {{35, 35}, {95, 35}});
    };
    const auto nothing = [] {};
    const auto drop = [this] { Selected().DropSelection(); };
    const auto erase = [this] { Selected().Delete(); };
    const auto all = [this] { editor_.SelectAll(); };
    const auto paste = [this] {
        editor_.FloatSelection(gdi::Surface(2, 2, gdi::kBlack), gdi::Surface(2, 2, 0xABCDEF));
    };
    using Step = std::function<void()>;
    const struct {
        const char* what;
        Step before, command;
        std::size_t entries;
        const char* after;
    } cases[] = {
        {"mark", nothing, mark, 0, "marked"},
        {"lift", nothing, lift, 0, "floating"},
        {"select all", nothing, all, 0, "marked"},
        {"select all, floating", lift, all, 1, "marked"},
        {"paste", nothing, paste, 0, "floating"},
        {"paste, marked", mark, paste, 0, "floating"},
        {"paste, floating", lift, paste, 1, "floating"},
        {"drop, marked", mark, drop, 0, ""},
        {"drop, floating", lift, drop, 1, ""},
        {"drop, pasted", paste, drop, 1, ""},
        {"delete", nothing, erase, 0, ""},
        {"delete, marked", mark, erase, 1, ""},
        {"delete, floating", lift, erase, 1, ""},
        {"delete, pasted", paste, erase, 1, ""},
        {"tool, marked", mark, [this] { editor_.Tools().SelectTool(ToolId::Line); }, 0, ""},
        {"tool, floating", lift, [this] { editor_.Tools().SelectTool(ToolId::Line); }, 1, ""},
        {"same tool", lift, [this] { editor_.Tools().SelectTool(ToolId::Selection); }, 1, ""},
        {"new marquee", lift,
         [this] {
             Stroke(Button::Left, {{300, 300}, {320, 320}});
         },
         1, "marked"},
        {"click beside", lift,
         [this] {
             Stroke(Button::Left, {{300, 300}});
         },
         1, ""},
        {"right click", lift,
         [this] {
             Stroke(Button::Right, {{35, 35}});
         },
         0, "floating"},
        {"move", mark, [this] { Selected().MoveBy(1, 0); }, 0, "floating"},
        {"move again", lift, [this] { Selected().MoveBy(0, -9); }, 0, "floating"},
        {"move nothing", nothing, [this] { Selected().MoveBy(0, 1); }, 0, ""},
        {"stamp", mark, [this] { Selected().StampSelection(); }, 0, "marked"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        editor_.Tools().SelectTool(ToolId::Selection);
        c.before();
        const std::size_t entries = Entries();
        c.command();
        // The window asks it after every command.
        EXPECT_TRUE(editor_.CanUndo() || Entries() == 1U);
        EXPECT_EQ(Entries() - entries, c.entries);
        EXPECT_EQ(Selected().SelectionMarked(), std::string_view(c.after) == "marked");
        EXPECT_EQ(Selected().SelectionFloating(), std::string_view(c.after) == "floating");
        EXPECT_TRUE(test::ViewsAreFresh(editor_));
    }
}

TEST_F(SelectionTest, UndoAndRedoPutItDownFirst) {
    const document::IconDocument before = icon_;
    EXPECT_FALSE(editor_.CanUndo());
    editor_.FloatSelection(gdi::Surface(2, 2, gdi::kBlack), gdi::Surface(2, 2, 0xABCDEF));
    EXPECT_TRUE(editor_.CanUndo());
    editor_.PopUndoSnapshot();
    EXPECT_TRUE(SamePlanes(before));
    EXPECT_FALSE(Selected().Exists());
    EXPECT_TRUE(editor_.CanRedo());
    editor_.PopRedoSnapshot();
    EXPECT_EQ(icon_.PicImage.GetPixel(1, 1), 0xABCDEFU);
    editor_.PopUndoSnapshot();
    MarkCells({2, 2}, {4, 4});
    Selected().LiftSelection();
    EXPECT_TRUE(editor_.CanRedo());
    editor_.PopRedoSnapshot();
    EXPECT_TRUE(SamePlanes(before)) << "dropped, which ends the other branch";
    EXPECT_FALSE(editor_.CanRedo());
    editor_.SelectAll();
    editor_.PopUndoSnapshot();
    EXPECT_FALSE(Selected().Exists());
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
}

TEST_F(SelectionTest, SelectAllAndDeleteLeaveAnEmptyIcon) {
    editor_.Tools().SelectTool(ToolId::Pencil);
    editor_.SelectAll();
    EXPECT_EQ(editor_.Tools().CurrentTool(), ToolId::Selection);
    EXPECT_EQ(Selected().Marquee(), (Corners{0, 0, 320, 320}));
    EXPECT_EQ(Selected().PicSelMask.Width(), 32);
    icon_.Modified = false;
    Selected().Delete();
    EXPECT_TRUE(SamePlanes({}));
    EXPECT_TRUE(icon_.Modified);
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
    Paint({0, 0}, gdi::kBlack);
    editor_.FloatSelection(gdi::Surface(2, 2, gdi::kBlack), gdi::Surface(2, 2, 0xABCDEF));
    Selected().Delete();
    EXPECT_EQ(OpaquePixels(), 1) << "what it floated over stays";
    editor_.FloatSelection(gdi::Surface(2, 2, gdi::kBlack), gdi::Surface(2, 2, 0xABCDEF));
    editor_.ResetDocument();
    EXPECT_FALSE(Selected().Exists());
    EXPECT_TRUE(SamePlanes({}));
    EXPECT_FALSE(icon_.Modified);
    EXPECT_EQ(Entries(), 1U);
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
}

TEST_F(SelectionTest, ThePointerTellsWhereItCanBeMoved) {
    MarkCells({2, 2}, {4, 4});
    const struct {
        int x, y;
        bool inside;
    } cases[] = {{20, 20, true},  {50, 50, true},  {35, 41, true}, {19, 30, false},
                 {51, 30, false}, {30, 19, false}, {30, 51, false}};
    for (const auto& c : cases) {
        editor_.PicMain_MouseMove({}, c.x, c.y);
        EXPECT_EQ(window_.cursor, c.inside ? GridCursor::Move : GridCursor::Cross) << c.x << c.y;
    }
    Selected().DropSelection();
    editor_.PicMain_MouseMove({}, 35, 35);
    EXPECT_EQ(window_.cursor, GridCursor::Cross);
    // A press tells where the pointer is, too.
    editor_.SelectAll();
    editor_.PicMain_MouseDown(Button::Left, 35, 35);
    EXPECT_TRUE(Selected().MovingSelection());
}

TEST_F(SelectionTest, OnlyARealReleaseOfTheRightButtonOpensThePopup) {
    icon_.Modified = false;
    Stroke(Button::Right, {{35, 35}});
    EXPECT_EQ(window_.popups, 1);
    editor_.PicMain_MouseDown(Button::Right, 35, 35);
    editor_.EndGesture();
    EXPECT_EQ(window_.popups, 1) << "a command by keyboard in between";
    EXPECT_FALSE(icon_.Modified);
    editor_.Tools().SelectTool(ToolId::Line);
    Stroke(Button::Right, {{35, 35}});
    EXPECT_EQ(window_.popups, 1);
}

// What transforms and filters do with the selection planes.
TEST_F(SelectionTest, ChangedPlanesAreShownWhereTheSelectionIs) {
    MarkCells({2, 2}, {4, 4});
    const auto recolor = [this](gdi::COLORREF color) {
        Selected().PicSelImage.SetPixel(1, 1, color);
        Selected().PicSelMask.SetPixel(1, 1, gdi::kBlack);
        icon_.Modified = false;
    };
    recolor(0x00ABCD);
    Selected().PicSelImage.SetPixel(0, 0, gdi::kBlack);
    Selected().PicSelMask.SetPixel(0, 0, gdi::kWhite);
    Selected().StampSelection();
    EXPECT_EQ(icon_.PicImage.GetPixel(3, 3), 0x00ABCDU);
    EXPECT_TRUE(icon_.IsTransparent(2, 2)) << "what is there is replaced";
    EXPECT_TRUE(icon_.Modified);
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
    Selected().LiftSelection();
    recolor(0x00FF00);
    Selected().ShowFloatingSelection();
    EXPECT_TRUE(icon_.IsTransparent(3, 3));
    EXPECT_EQ(editor_.Views().PicMain.GetPixel(35, 35), 0x00FF00U);
    EXPECT_EQ(editor_.Views().PicIcon.GetPixel(3, 3), 0x00FF00U);
    EXPECT_TRUE(icon_.Modified);
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
}

}  // namespace
}  // namespace kestrel::editing
