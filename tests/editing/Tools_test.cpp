#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "editing/WellCommands.h"
#include "tests/support/EditorTest.h"

namespace kestrel::editing {
namespace {

using test::At;

constexpr gdi::COLORREF kRed = 0x0000FF;
constexpr gdi::COLORREF kBlue = 0xFF0000;
constexpr gdi::COLORREF kGreen = 0x00FF00;
constexpr gdi::COLORREF kNoColor = 0x123456;
constexpr test::Inks kInks = {{'R', kRed}, {'B', kBlue}, {'g', kGreen}, {'.', kNoColor}};

class ToolsTest : public test::EditorTest {
  protected:
    // A part of the icon, kNoColor where it is transparent.
    gdi::Surface Part(gdi::Rect area) {
        gdi::Surface part(area.width, area.height);
        for (int y = 0; y < area.height; ++y) {
            for (int x = 0; x < area.width; ++x) {
                const At at{area.left + x, area.top + y};
                part.SetPixel(x, y,
                              icon_.IsTransparent(at.x, at.y)
                                  ? kNoColor
                                  : icon_.PicImage.GetPixel(at.x, at.y));
            }
        }
        return part;
    }
    void UseTool(ToolId tool) { editor_.Tools().SelectTool(tool); }
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
        {ToolId::Ellipse, ". R R R R R . \n R . . g . . R \n . R R R R R ."},
        {ToolId::SolidEllipse, ". R R R R R . \n R R R R R R R \n . R R R R R ."},
        {ToolId::FilledEllipse, ". R R R R R . \n R B B B B B R \n . R R R R R ."},
    };
    for (const auto& c : cases) {
        for (const Button button : {Button::Left, Button::Right}) {
            for (int way = 0; way < 4; ++way) {
                // A line through the other two corners is another line.
                if (c.tool == ToolId::Line && (way == 1 || way == 2)) continue;
                editor_.ResetDocument();
                editor_.Wells().SetPenColor(button, kRed);
                editor_.Wells().SetPenColor(Other(button), kBlue);
                Paint({4, 2}, kGreen);
                UseTool(c.tool);
                const At from{way % 2 == 0 ? 1 : 7, way / 2 == 0 ? 1 : 3};
                Drag(button, from, {8 - from.x, 4 - from.y});
                EXPECT_TRUE(test::ComparePicture(Part({1, 1, 7, 3}), kInks, c.picture))
                    << "tool " << static_cast<int>(c.tool) << " way " << way;
                EXPECT_TRUE(test::ViewsAreFresh(editor_));
                EXPECT_EQ(editor_.History().UndoCount(), 2U);
            }
        }
    }
    // No style of a filled figure is left over.
    editor_.Wells().SetPenColor(Button::Left, kRed);
    UseTool(ToolId::Ellipse);
    Drag(Button::Left, {11, 1}, {17, 3});
    EXPECT_PICTURE(Part({11, 2, 7, 1}), kInks, "R . . . . . R");
}

TEST_F(ToolsTest, ShapesAreClippedAndASingleCellIsAShape) {
    for (int id = 6; id <= 12; ++id) {
        editor_.ResetDocument();
        UseTool(static_cast<ToolId>(id));
        Drag(Button::Left, {3, 4}, {3, 4});
        EXPECT_EQ(OpaquePixels(), 1) << id;
        EXPECT_FALSE(icon_.IsTransparent(3, 4)) << id;
        EXPECT_EQ(editor_.History().UndoCount(), 2U);
        // Far out and back, then out of the window for good.
        Stroke(Button::Left, {{305, 305}, {32767, -32768}, {155, 155}, {9999, 305}});
        EXPECT_FALSE(icon_.IsTransparent(31, 30)) << id;
        EXPECT_TRUE(icon_.IsTransparent(15, 15)) << id;
        EXPECT_TRUE(test::ViewsAreFresh(editor_)) << id;
    }
}

TEST_F(ToolsTest, WithATransparentWellShapesAndFillAreWhiteAndThePencilClears) {
    for (const ToolId tool : {ToolId::SolidRectangle, ToolId::FloodFill}) {
        editor_.ResetDocument();
        editor_.Wells().SetTransparent(Button::Right);
        UseTool(tool);
        Drag(Button::Right, {0, 0}, {2, 2});
        EXPECT_FALSE(icon_.IsTransparent(1, 1));
        EXPECT_EQ(icon_.PicImage.GetPixel(1, 1), gdi::kWhite);
    }
    for (const auto& [tool, button] :
         {std::pair{ToolId::Pencil, Button::Right}, std::pair{ToolId::ColorEraser, Button::Left},
          std::pair{ToolId::ColorEraser, Button::Right}}) {
        Paint({1, 1}, kRed);
        UseTool(tool);
        Drag(button, {1, 1}, {1, 1});
        EXPECT_TRUE(icon_.IsTransparent(1, 1));
        EXPECT_EQ(icon_.PicImage.GetPixel(1, 1), gdi::kBlack);
        EXPECT_TRUE(test::ViewsAreFresh(editor_));
    }
}

// The pixels that have the seed's value and hang together with it, found by looking again and
// again.
std::vector<bool> Connected(const std::vector<gdi::COLORREF>& values, std::size_t seed) {
    std::vector<bool> found(values.size());
    found[seed] = true;
    for (bool grown = true; grown;) {
        grown = false;
        for (std::size_t i = 0; i < values.size(); ++i) {
            const bool beside = (i % 32 > 0 && found[i - 1]) || (i % 32 < 31 && found[i + 1]) ||
                                (i >= 32 && found[i - 32]) || (i < 992 && found[i + 32]);
            if (!beside || found[i] || values[i] != values[seed]) continue;
            found[i] = grown = true;
        }
    }
    return found;
}

TEST_F(ToolsTest, FloodFillsLikeASimpleOne) {
    // The window's colour makes opaque pixels look like transparent ones.
    const std::vector<gdi::COLORREF> colors = {kRed, kWindowColor, kBlue};
    std::mt19937 random(20261123);
    for (unsigned turn = 0; turn < 300; ++turn) {
        const unsigned kinds = turn % 2 == 0 ? 1 : 3;
        editor_.ResetDocument();
        for (int i = 0; i < 1024; ++i) {
            const std::size_t kind = random() % (kinds + 2);
            if (kind < kinds) Paint({i % 32, i / 32}, colors[kind]);
            // As files have them: pixels that invert the screen.
            if (random() % 40 == 0 && icon_.IsTransparent(i % 32, i / 32))
                icon_.PicImage.SetPixel(i % 32, i / 32, kRed);
        }
        editor_.Views().RedrawAll();
        const auto planes = [this] {
            std::vector<gdi::COLORREF> values(1024);
            for (int i = 0; i < 1024; ++i)
                values[static_cast<std::size_t>(i)] =
                    icon_.PicImage.GetPixel(i % 32, i / 32) |
                    (icon_.IsTransparent(i % 32, i / 32) ? 0x1000000U : 0U);
            return values;
        };
        std::vector<gdi::COLORREF> expected = planes();
        const auto seed = static_cast<int>(random() % 1024);
        const auto area = Connected(expected, static_cast<std::size_t>(seed));
        const gdi::COLORREF fill = turn % 3 == 0 ? kWindowColor : kGreen;
        for (std::size_t i = 0; i < 1024; ++i)
            expected[i] = area[i] ? fill : expected[i];
        editor_.Wells().SetPenColor(Button::Left, fill);
        UseTool(ToolId::FloodFill);
        Drag(Button::Left, {seed % 32, seed / 32}, {seed % 32, seed / 32});
        ASSERT_EQ(planes(), expected) << "turn " << turn;
        ASSERT_TRUE(test::ViewsAreFresh(editor_));
    }
}

TEST_F(ToolsTest, ClicksOutsideTheCellsDoNothing) {
    Drag(Button::Left, {1, 1}, {1, 1});
    editor_.PopUndoSnapshot();
    icon_.Modified = false;
    for (const ToolId tool : {ToolId::FloodFill, ToolId::ColorPicker}) {
        for (const At& at : {At{-1, 5}, At{5, -1}, At{320, 5}, At{5, 320}}) {
            UseTool(tool);
            Stroke(Button::Left, {at});
        }
    }
    EXPECT_EQ(OpaquePixels(), 0);
    EXPECT_FALSE(icon_.Modified);
    EXPECT_EQ(editor_.History().RedoCount(), 1U);
    EXPECT_EQ(editor_.Tools().CurrentTool(), ToolId::FloodFill) << "as before the picker";
}

TEST_F(ToolsTest, ThePickerTakesColourOrTransparencyAndHandsBack) {
    Paint({1, 1}, kRed);
    UseTool(ToolId::Ellipse);
    UseTool(ToolId::Selection);
    UseTool(ToolId::ColorPicker);
    Drag(Button::Right, {5, 5}, {1, 1});
    EXPECT_EQ(editor_.Wells().PenColor(Button::Right), kRed);
    EXPECT_EQ(editor_.Tools().CurrentTool(), ToolId::Ellipse);
    UseTool(ToolId::ColorPicker);
    EXPECT_EQ(window_.cursor, GridCursor::Picker);
    EXPECT_EQ(window_.beeps, 0);
    Drag(Button::Left, {2, 1}, {2, 1});
    EXPECT_EQ(window_.beeps, 1);
    EXPECT_TRUE(editor_.Wells().IsTransparent(Button::Left));
    EXPECT_EQ(editor_.Wells().PenColor(Button::Left), gdi::kWhite);
    EXPECT_EQ(window_.cursor, GridCursor::Cross);
    UseTool(ToolId::ColorPicker);
    Drag(Button::Left, {1, 1}, {1, 1});
    EXPECT_FALSE(editor_.Wells().IsTransparent(Button::Left));
    EXPECT_EQ(editor_.History().UndoCount(), 1U);
    EXPECT_FALSE(icon_.Modified);
}

TEST_F(ToolsTest, TheSizeOfADragIsShownWhereItIsPrinted) {
    const struct {
        ToolId tool{};
        At from, to;
        const char* size{};
    } cases[] = {
        {ToolId::Line, {25, 35}, {95, 35}, "8 , 1"},
        {ToolId::Ellipse, {95, 95}, {25, 85}, "8 , 2"},
        {ToolId::Rectangle, {25, 35}, {-400, 900}, "3 , 29"},
        {ToolId::Pencil, {25, 35}, {95, 35}, ""},
        {ToolId::Selection, {25, 35}, {95, 35}, "6 , 1"},
        {ToolId::Selection, {25, 35}, {-1, 320}, "3 , 28"},
        {ToolId::FloodFill, {25, 35}, {95, 35}, ""},
    };
    for (const auto& c : cases) {
        UseTool(c.tool);
        editor_.PicMain_MouseMove({}, c.from.x, c.from.y);
        editor_.PicMain_MouseDown(Button::Left, c.from.x, c.from.y);
        editor_.PicMain_MouseMove({true, false}, c.to.x, c.to.y);
        EXPECT_EQ(window_.panels[4], c.size) << static_cast<int>(c.tool);
        EXPECT_EQ(window_.printed[4], c.size);
        editor_.EndGesture();
    }
}

}  // namespace
}  // namespace kestrel::editing
