#include <gtest/gtest.h>

#include <random>

#include "platform/gdi/Blit.h"
#include "tests/support/EditorTest.h"

namespace kestrel::editing {
namespace {

using test::At;

constexpr gdi::COLORREF kRed = 0x0000FF;
constexpr gdi::COLORREF kBlue = 0xFF0000;
constexpr gdi::COLORREF kGreen = 0x00FF00;
// Stands for a transparent pixel.
constexpr gdi::COLORREF kNoColor = 0x123456;
constexpr test::Inks kInks = {{'R', kRed}, {'B', kBlue}, {'g', kGreen}, {'.', kNoColor}};

class ToolsTest : public test::EditorTest {
  protected:
    gdi::Surface Shown() {
        gdi::Surface picture(32, 32, kNoColor);
        gdi::DrawOver(picture, picture.Bounds(), icon_.Planes());
        return picture;
    }
    void UseTool(ToolId tool) { editor_.Tools().SelectTool(tool); }
    void Click(Button button, At cell) { Drag(button, cell, cell); }
};

TEST_F(ToolsTest, ShapesCoverTheirCellsWhicheverWayTheyAreDragged) {
    // Drawn by hand for cells (1, 1) to (7, 3) with red, the other button blue, over a green pixel
    // in the middle. The ellipse's edge is at sqrt(1 - (2/3)^2) = 0.75 rows two columns from its
    // middle.
    const struct {
        ToolId tool;
        const char* picture;
    } cases[] = {
        {ToolId::Line, "R R . . . . . \n . . R R R . . \n . . . . . R R"},
        {ToolId::Rectangle, "R R R R R R R \n R . . g . . R \n R R R R R R R"},
        {ToolId::SolidRectangle, "R R R R R R R \n R R R R R R R \n R R R R R R R"},
        {ToolId::FilledRectangle, "R R R R R R R \n R B B B B B R \n R R R R R R R"},
        {ToolId::FilledEllipse, ". R R R R R . \n R B B B B B R \n . R R R R R ."},
        {ToolId::SolidEllipse, ". R R R R R . \n R R R R R R R \n . R R R R R ."},
        {ToolId::Ellipse, ". R R R R R . \n R . . g . . R \n . R R R R R ."},
    };
    for (const auto& c : cases) {
        for (int way = 0; way < 8; ++way) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(c.tool) << " way " << way);
            // A line through the other two corners is another line.
            if (c.tool == ToolId::Line && way / 2 % 2 != way % 2) continue;
            const Button button = way < 4 ? Button::Left : Button::Right;
            editor_.ResetDocument();
            editor_.Wells().SetPenColor(button, kRed);
            editor_.Wells().SetPenColor(Other(button), kBlue);
            Paint({4, 2}, kGreen);
            UseTool(c.tool);
            const At from{way % 2 == 0 ? 1 : 7, way / 2 % 2 == 0 ? 1 : 3};
            Drag(button, from, {8 - from.x, 4 - from.y});
            gdi::Surface cells(7, 3);
            gdi::StretchBlt(cells, cells.Bounds(), Shown(), {1, 1, 7, 3}, gdi::RasterOp::Copy);
            EXPECT_PICTURE(cells, kInks, c.picture);
            EXPECT_TRUE(test::ViewsAreFresh(editor_));
            EXPECT_EQ(editor_.History().UndoCount(), 2U);
        }
    }
}

TEST_F(ToolsTest, WithATransparentWellOneCellIsWhiteOrCleared) {
    using enum ToolId;
    for (int id = 2; id <= 12; ++id) {
        const auto tool = static_cast<ToolId>(id);
        if (tool == ColorPicker) continue;
        editor_.ResetDocument();
        editor_.Wells().SetTransparent(Button::Right);
        Paint({1, 1}, kRed);
        UseTool(tool);
        // The eraser clears with either button.
        Click(tool == ColorEraser ? Button::Left : Button::Right, {1, 1});
        const bool clears = tool == Pencil || tool == ColorEraser;
        EXPECT_EQ(Shown().GetPixel(1, 1), clears ? kNoColor : gdi::kWhite) << id;
        EXPECT_EQ(OpaquePixels(), clears ? 0 : 1) << id;
    }
}

void FillSimply(gdi::Surface& picture, At at, gdi::COLORREF from, gdi::COLORREF to) {
    if (from == to || picture.GetPixel(at.x, at.y) != from) return;
    picture.SetPixel(at.x, at.y, to);
    for (const At& beside : {At{-1, 0}, At{1, 0}, At{0, -1}, At{0, 1}})
        FillSimply(picture, {at.x + beside.x, at.y + beside.y}, from, to);
}

TEST_F(ToolsTest, FloodFillsLikeASimpleOne) {
    // The window's colour makes opaque pixels look like transparent ones.
    const std::array colors = {kRed, kWindowColor, kBlue};
    std::mt19937 random(20261123);
    for (unsigned turn = 0; turn < 300; ++turn) {
        editor_.ResetDocument();
        for (int i = 0; i < 1024; ++i) {
            const std::size_t kind = random() % (turn % 5 + 2);
            if (kind < colors.size()) {
                Paint({i % 32, i / 32}, colors[kind]);
            } else if (random() % 40 == 0) {
                // As files have them: pixels that invert the screen.
                icon_.ChangePlanes().image.SetPixel(i % 32, i / 32, kRed);
            }
        }
        editor_.Views().RedrawAll();
        const At seed{static_cast<int>(random() % 32), static_cast<int>(random() % 32)};
        const gdi::COLORREF fill = turn % 3 == 0 ? kWindowColor : kGreen;
        gdi::Surface expected = Shown();
        FillSimply(expected, seed, expected.GetPixel(seed.x, seed.y), fill);
        editor_.Wells().SetPenColor(Button::Left, fill);
        UseTool(ToolId::FloodFill);
        Click(Button::Left, seed);
        ASSERT_TRUE(test::ComparePicture(Shown(), expected)) << "turn " << turn;
        ASSERT_TRUE(test::ViewsAreFresh(editor_));
    }
}

TEST_F(ToolsTest, ThePickerTakesColourOrTransparencyAndHandsBack) {
    Paint({1, 1}, kRed);
    icon_.Modified = false;
    UseTool(ToolId::Ellipse);
    const struct {
        Button button{};
        At cell;
        gdi::COLORREF color{};
        bool transparent{};
    } cases[] = {{Button::Right, {1, 1}, kRed, false},
                 {Button::Left, {2, 1}, gdi::kWhite, true},
                 {Button::Left, {1, 1}, kRed, false},
                 {Button::Left, {-1, 1}, kRed, false},
                 {Button::Left, {1, 32}, kRed, false}};
    for (const auto& c : cases) {
        UseTool(ToolId::Selection);
        UseTool(ToolId::ColorPicker);
        Drag(c.button, {5, 5}, c.cell);
        EXPECT_EQ(editor_.Wells().PenColor(c.button), c.color);
        EXPECT_EQ(editor_.Wells().IsTransparent(c.button), c.transparent);
        EXPECT_EQ(views_.application.beeps, c.button == Button::Right ? 0 : 1);
        EXPECT_EQ(editor_.Tools().CurrentTool(), ToolId::Ellipse);
        EXPECT_EQ(views_.cursor, GridCursor::Cross);
    }
    EXPECT_EQ(editor_.History().UndoCount(), 1U);
    EXPECT_FALSE(icon_.Modified);
}

TEST_F(ToolsTest, NothingIsFilledOutsideTheCells) {
    UseTool(ToolId::FloodFill);
    for (const At& at : {At{-1, 5}, At{5, -1}, At{320, 5}, At{5, 320}})
        Stroke(Button::Left, {at});
    EXPECT_EQ(OpaquePixels(), 0);
    EXPECT_FALSE(icon_.Modified || editor_.CanUndo());
}

// That of a marquee begins at the nearest line; what is moved keeps the size it had.
TEST_F(ToolsTest, TheSizeOfADragIsShownWhereItIsPrinted) {
    using enum ToolId;
    const struct {
        ToolId tool{};
        At from, to;
        const char* size{};
    } cases[] = {
        {Line, {95, 95}, {25, 85}, "8 , 2"},        {Pencil, {25, 35}, {95, 35}, ""},
        {Rectangle, {25, 35}, {-9, 900}, "3 , 29"}, {Selection, {28, 41}, {87, 65}, "5 , 2"},
        {Selection, {45, 45}, {95, 95}, "5 , 2"},   {Selection, {25, 35}, {-1, 320}, "3 , 28"},
    };
    for (const auto& c : cases) {
        if (editor_.Tools().CurrentTool() != c.tool) UseTool(c.tool);
        Stroke(Button::Left, {c.from, c.to});
        EXPECT_EQ(views_.panels[4], c.size) << static_cast<int>(c.tool);
        EXPECT_EQ(views_.printed[4], c.size);
    }
    UseTool(Selection);
    Stroke(Button::Right, {{58, 58}, {157, 157}});
    EXPECT_EQ(views_.panels[4], "10 , 10") << "it marks nothing: the cells passed";
}

}  // namespace
}  // namespace kestrel::editing
