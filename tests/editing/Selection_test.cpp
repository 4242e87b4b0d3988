#include "editing/Selection.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "tests/support/EditorTest.h"

namespace kestrel::editing {
namespace {

class SelectionTest : public test::EditorTest {
  protected:
    SelectionTest() {
        for (int i = 0; i < 1024; ++i) {
            if ((i % 32 + i / 32) % 3 != 0)
                Paint({i % 32, i / 32}, 0x400000 + static_cast<gdi::COLORREF>(i));
        }
        // A pixel that inverts the screen.
        icon_.ChangePlanes().image.SetPixel(3, 3, 0x123456);
        editor_.Views().RedrawAll();
        editor_.History().ClearUndoHistory();
        editor_.History().PushUndoSnapshot();
        editor_.Tools().SelectTool(ToolId::Selection);
        icon_.Modified = false;
        first_ = icon_.Planes();
    }

    Selection& Selected() { return editor_.Selected(); }
    // Marks the cells from one to the other.
    void MarkCells(test::At first = {2, 2}, test::At last = {4, 4}) {
        Selected().DropSelection();
        Stroke(Button::Left, {{first.x * 10, first.y * 10}, {last.x * 10 + 10, last.y * 10 + 10}});
    }
    void Paste() {
        gdi::IconPlanes planes(2, 2);
        for (int i = 0; i < 4; ++i)
            planes.SetOpaque(i % 2, i / 2, 0xABCDEF);
        editor_.FloatSelection(planes);
    }
    bool SamePlanes(const gdi::IconPlanes& other) const { return icon_.Planes().SamePixels(other); }

    gdi::IconPlanes first_;
};

TEST_F(SelectionTest, AMarqueeRunsFromTheNearestLineToTheCellUnderThePointer) {
    const struct {
        const char* what;
        std::vector<test::At> way;
        Corners marquee;
    } cases[] = {
        {"downwards", {{24, 35}, {67, 81}}, {20, 40, 60, 80}},
        {"upwards marks the same", {{64, 84}, {20, 40}}, {20, 40, 60, 80}},
        {"back and forth", {{64, 41}, {300, 300}, {29, 80}}, {20, 40, 60, 80}},
        {"begun beside the grid", {{-14, 333}, {50, 250}}, {0, 250, 50, 320}},
        {"far out", {{155, 155}, {32767, -32768}}, {160, 0, 320, 160}},
        {"a click", {{155, 155}}, {}},
        {"no height", {{20, 40}, {300, 44}}, {}},
        {"no width", {{20, 40}, {29, 300}}, {}},
    };
    gdi::Surface dotted = editor_.Views().PicMain;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Selected().DropSelection();
        editor_.PicMain_MouseDown(Button::Left, c.way[0].x, c.way[0].y);
        for (const test::At& at : std::span(c.way).subspan(1))
            editor_.PicMain_MouseMove(test::Held(Button::Left), at.x, at.y);
        editor_.EndGesture();
        const bool marks = c.marquee != Corners{};
        EXPECT_EQ(Selected().SelectionMarked(), marks);
        EXPECT_EQ(marks ? Selected().Marquee() : Corners{}, c.marquee);
        EXPECT_TRUE(test::ViewsAreFresh(editor_));
    }
    EXPECT_FALSE(icon_.Modified);
    // It is dotted from the beginning.
    test::InvertMarquee(dotted, {30, 40, 80, 60});
    editor_.PicMain_MouseDown(Button::Left, 28, 41);
    editor_.PicMain_MouseMove(test::Held(Button::Left), 87, 65);
    EXPECT_TRUE(test::ComparePicture(editor_.Views().PicMain, dotted));
}

// Two pixels, the first of them transparent, go to different places, also beyond the edges.
TEST_F(SelectionTest, ADragMovesThePixelsByWholeCells) {
    const struct {
        test::At from, to;
        Corners marquee;
    } cases[] = {{{49, 59}, {49, 59}, {40, 50, 60, 60}},
                 {{45, 55}, {66, 94}, {60, 90, 80, 100}},
                 {{50, 60}, {319, 319}, {300, 300, 320, 310}},
                 {{45, 55}, {-31, 55}, {-30, 50, -10, 60}},
                 {{45, 55}, {30000, -30000}, {30000, -30000, 30020, -29990}},
                 {{45, 55}, {32740, 55}, {32740, 50, 32760, 60}},
                 {{45, 55}, {32767, 55}, {40, 50, 60, 60}},
                 {{55, 55}, {-32768, 55}, {40, 50, 60, 60}}};
    for (const auto& c : cases) {
        MarkCells({4, 5}, {5, 5});
        views_.refreshes = 0;
        icon_.Modified = false;
        Stroke(Button::Left, {c.from, c.to});
        EXPECT_EQ(Selected().Marquee(), c.marquee) << "the last two would leave the 16 bits";
        EXPECT_TRUE(icon_.IsTransparent(5, 5));
        EXPECT_GE(views_.refreshes, 1);
        EXPECT_TRUE(icon_.Modified);
        EXPECT_TRUE(test::ViewsAreFresh(editor_));
        Selected().DropSelection();
        gdi::IconPlanes expected = first_;
        const test::At to{c.marquee.x1 / 10 + 1, c.marquee.y1 / 10};
        expected.mask.SetPixel(5, 5, gdi::kWhite);
        expected.mask.SetPixel(to.x, to.y, gdi::kBlack);
        expected.image.SetPixel(5, 5, gdi::kBlack);
        expected.image.SetPixel(to.x, to.y, first_.image.GetPixel(5, 5));
        EXPECT_TRUE(SamePlanes(expected));
        editor_.PopUndoSnapshot();
    }
    EXPECT_TRUE(SamePlanes(first_));
}

TEST_F(SelectionTest, WhileItMovesItIsShownWithoutMarquee) {
    MarkCells({4, 5}, {9, 9});
    editor_.PicMain_MouseDown(Button::Left, 65, 65);
    editor_.PicMain_MouseMove(test::Held(Button::Left), 185, 65);
    EXPECT_EQ(views_.cursor, GridCursor::Move) << "the pointer was faster than the selection";
    gdi::Surface& grid = editor_.Views().PicMain;
    test::InvertMarquee(grid, Selected().Marquee());
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
    test::InvertMarquee(grid, Selected().Marquee());
    Selected().DropSelection();
    editor_.SelectAll();
    EXPECT_TRUE(test::ViewsAreFresh(editor_)) << "the gesture has ended";
    Selected().LiftSelection();
    // The desktop's colours change behind a floating selection.
    editor_.SetWindowColor(0x00FF00);
    EXPECT_TRUE(test::ViewsAreFresh(editor_));
}

TEST_F(SelectionTest, EachCommandRecordsWhatItSays) {
    const auto stroke = [this](Button button, test::At from, test::At to) {
        return [=, this] { Stroke(button, {from, to}); };
    };
    const std::map<std::string, std::function<void()>> steps{
        {"", [] {}},
        {"mark", [this] { MarkCells(); }},
        {"lift",
         [this] {
             MarkCells();
             Drag(Button::Left, {3, 3}, {9, 3});
         }},
        {"paste", [this] { Paste(); }},
        {"all", [this] { editor_.SelectAll(); }},
        {"drop", [this] { Selected().DropSelection(); }},
        {"delete", [this] { Selected().Delete(); }},
        {"line", [this] { editor_.Tools().SelectTool(ToolId::Line); }},
        {"tool", [this] { editor_.Tools().SelectTool(ToolId::Selection); }},
        {"anew", stroke(Button::Left, {290, 290}, {320, 320})},
        {"beside", stroke(Button::Left, {300, 300}, {300, 300})},
        {"popup", stroke(Button::Right, {35, 35}, {35, 35})},
        {"move", [this] { Selected().MoveBy(1, -9); }},
    };
    const struct {
        std::string before, command;
        std::size_t entries;
        // Marked, floating or none.
        char after;
    } cases[] = {
        {"", "mark", 0, 'M'},       {"", "lift", 0, 'F'},        {"", "all", 0, 'M'},
        {"lift", "all", 1, 'M'},    {"", "paste", 0, 'F'},       {"mark", "paste", 0, 'F'},
        {"lift", "paste", 1, 'F'},  {"mark", "drop", 0, '-'},    {"lift", "drop", 1, '-'},
        {"paste", "drop", 1, '-'},  {"", "delete", 0, '-'},      {"mark", "delete", 1, '-'},
        {"lift", "delete", 1, '-'}, {"paste", "delete", 1, '-'}, {"mark", "line", 0, '-'},
        {"lift", "line", 1, '-'},   {"lift", "tool", 1, '-'},    {"lift", "anew", 1, 'M'},
        {"lift", "beside", 1, '-'}, {"lift", "popup", 0, 'F'},   {"mark", "move", 0, 'F'},
        {"lift", "move", 0, 'F'},   {"", "move", 0, '-'},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.before + ", " + c.command);
        editor_.Tools().SelectTool(ToolId::Selection);
        steps.at(c.before)();
        const std::size_t entries = editor_.History().UndoCount();
        steps.at(c.command)();
        // The window asks it after every command.
        EXPECT_TRUE(editor_.CanUndo() || entries == 1);
        EXPECT_EQ(editor_.History().UndoCount() - entries, c.entries);
        EXPECT_EQ(Selected().SelectionMarked(), c.after == 'M');
        EXPECT_EQ(Selected().SelectionFloating(), c.after == 'F');
        EXPECT_TRUE(test::ViewsAreFresh(editor_));
    }
}

TEST_F(SelectionTest, UndoAndRedoPutItDownFirst) {
    Paste();
    EXPECT_TRUE(editor_.CanUndo());
    editor_.PopUndoSnapshot();
    EXPECT_TRUE(SamePlanes(first_));
    editor_.PopRedoSnapshot();
    EXPECT_EQ(icon_.PicImage().GetPixel(1, 1), 0xABCDEFU);
    editor_.PopUndoSnapshot();
    MarkCells();
    Selected().LiftSelection();
    EXPECT_TRUE(editor_.CanRedo());
    editor_.PopRedoSnapshot();
    EXPECT_TRUE(SamePlanes(first_)) << "dropped, which ends the other branch";
    EXPECT_FALSE(editor_.CanRedo());
}

TEST_F(SelectionTest, DeleteAndNewDiscardIt) {
    editor_.SelectAll();
    Selected().Delete();
    EXPECT_TRUE(SamePlanes(gdi::IconPlanes()));
    EXPECT_TRUE(icon_.Modified);
    Paint({0, 0}, gdi::kBlack);
    Paste();
    Selected().Delete();
    EXPECT_EQ(OpaquePixels(), 1) << "what it floated over stays";
    Paste();
    editor_.ResetDocument();
    EXPECT_FALSE(Selected().Exists());
}

TEST_F(SelectionTest, ThePointerTellsWhereItCanBeMoved) {
    MarkCells();
    for (const int v : {19, 20, 50, 51}) {
        const bool inside = v == 20 || v == 50;
        for (const test::At& at : {test::At{v, 30}, test::At{30, v}}) {
            editor_.PicMain_MouseMove({}, at.x, at.y);
            EXPECT_EQ(views_.cursor == GridCursor::Move, inside) << at.x << "," << at.y;
        }
    }
    // A press tells where the pointer is, too; that of the right button opens the pop-up.
    Stroke(Button::Right, {{35, 35}});
    editor_.PicMain_MouseDown(Button::Right, 35, 35);
    editor_.EndGesture();
    EXPECT_EQ(views_.popups, 1) << "a command by keyboard ended the second one";
    editor_.PicMain_MouseMove({}, 5, 5);
    editor_.PicMain_MouseDown(Button::Left, 35, 35);
    EXPECT_TRUE(Selected().MovingSelection());
    Selected().DropSelection();
    EXPECT_EQ(views_.cursor, GridCursor::Cross);
}

}  // namespace
}  // namespace kestrel::editing
