#include <gtest/gtest.h>

#include <functional>
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
                const std::string rows = std::string(c.picture);
                EXPECT_TRUE(test::ComparePicture(Part({1, 1, 7, 3}), kInks, rows))
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

// One value a pixel, row by row.
using Values = std::vector<gdi::COLORREF>;

// The pixels of the seed's value that hang together with it, found by looking again and again.
std::vector<bool> Connected(const Values& values, int seed) {
    std::vector<bool> found(values.size());
    found[static_cast<std::size_t>(seed)] = true;
    for (bool grown = true; grown;) {
        grown = false;
        for (int i = 0; i < 1024; ++i) {
            const auto at = [&](int j) { return found[static_cast<std::size_t>(j)]; };
            const bool beside = (i % 32 > 0 && at(i - 1)) || (i % 32 < 31 && at(i + 1)) ||
                                (i >= 32 && at(i - 32)) || (i < 992 && at(i + 32));
            const auto index = static_cast<std::size_t>(i);
            if (!beside || found[index] || values[index] != values[static_cast<std::size_t>(seed)])
                continue;
            found[index] = grown = true;
        }
    }
    return found;
}

// What the fill must leave: with `exact`, the connected pixels of the seed's mask and colour, which
// holds where no opaque pixel has a colour of the grounds or of the fill; else those that the fill
// colour covers over both grounds.
Values Filled(const document::IconDocument& icon, int seed, gdi::COLORREF fill, bool exact) {
    constexpr gdi::COLORREF kWindow = 0xC8D0D4;
    constexpr gdi::COLORREF kSeeThrough = 0x1000000;
    Values onWindow, onWhite, planes;
    for (int i = 0; i < 1024; ++i) {
        const gdi::COLORREF color = icon.PicImage.GetPixel(i % 32, i / 32);
        const bool clear = icon.IsTransparent(i % 32, i / 32);
        onWindow.push_back(clear ? kWindow ^ color : color);
        onWhite.push_back(clear ? gdi::kWhite ^ color : color);
        planes.push_back(clear ? kSeeThrough | color : color);
    }
    const auto inWindow = Connected(onWindow, seed);
    const auto inWhite = Connected(onWhite, seed);
    const auto inPlanes = Connected(planes, seed);
    const Values before = planes;
    for (std::size_t i = 0; i < 1024; ++i) {
        const bool sameMask =
            (before[i] < kSeeThrough) == (before[static_cast<std::size_t>(seed)] < kSeeThrough);
        const bool covered =
            (inWindow[i] || onWindow[i] == fill) && (inWhite[i] || onWhite[i] == fill) && sameMask;
        if (exact ? inPlanes[i] : covered) planes[i] = fill;
    }
    return planes;
}

TEST_F(ToolsTest, FloodFillsLikeASimpleOne) {
    std::mt19937 random(20261123);
    const auto pick = [&](int count) {
        return static_cast<int>(random() % static_cast<unsigned>(count));
    };
    const Values plain = {kRed, kBlue};
    const Values tricky = {kRed, kWindowColor, gdi::kWhite, kGreen};
    for (int turn = 0; turn < 300; ++turn) {
        const bool exact = turn % 2 == 0;
        const Values& colors = exact ? plain : tricky;
        editor_.ResetDocument();
        for (int i = 0; i < 1024; ++i) {
            const int kind = pick(static_cast<int>(colors.size()) + 2);
            if (kind < static_cast<int>(colors.size()))
                Paint({i % 32, i / 32}, colors[static_cast<std::size_t>(kind)]);
            // A pixel that inverts the screen, as files have them.
            if (!exact && pick(40) == 0) {
                icon_.PicMask.SetPixel(i % 32, i / 32, gdi::kWhite);
                icon_.PicImage.SetPixel(i % 32, i / 32, gdi::kWhite);
            }
        }
        editor_.Views().RedrawAll();
        const gdi::COLORREF fill = exact ? kGreen : tricky[static_cast<std::size_t>(pick(4))];
        editor_.Wells().SetPenColor(Button::Left, fill);
        const int seed = pick(1024);
        const Values expected = Filled(icon_, seed, fill, exact);
        UseTool(ToolId::FloodFill);
        Drag(Button::Left, {seed % 32, seed / 32}, {seed % 32, seed / 32});
        for (int i = 0; i < 1024; ++i) {
            const gdi::COLORREF actual = icon_.PicImage.GetPixel(i % 32, i / 32) |
                                         (icon_.IsTransparent(i % 32, i / 32) ? 0x1000000 : 0);
            ASSERT_EQ(actual, expected[static_cast<std::size_t>(i)])
                << "turn " << turn << " pixel " << i;
        }
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
        ToolId tool;
        At from, to;
        const char* size;
    } cases[] = {
        {ToolId::Line, {25, 35}, {95, 35}, "8 , 1"},
        {ToolId::Ellipse, {95, 95}, {25, 85}, "8 , 2"},
        {ToolId::Rectangle, {25, 35}, {-400, 900}, "3 , 29"},
        {ToolId::Pencil, {25, 35}, {95, 35}, ""},
        {ToolId::Selection, {25, 35}, {95, 35}, "7 , 0"},
        {ToolId::Selection, {25, 35}, {-1, 320}, "2 , 29"},
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
