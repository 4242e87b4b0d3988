#include "editing/ToolPalette.h"

#include <gtest/gtest.h>

#include "editing/WellCommands.h"
#include "i18n/Language.h"
#include "tests/support/EditorTest.h"
#include "tests/support/ListedTexts.h"
#include "tests/support/Recorders.h"

namespace kestrel::editing {
namespace {

class PaletteTest : public testing::Test {
  protected:
    // The tool whose cell has a sunken edge: grey along its left and top.
    std::vector<int> Highlighted() const {
        std::vector<int> tools;
        for (int id = 1; id <= 12; ++id) {
            const int x = (id - 1) % 4 * 23;
            const int y = (id - 1) / 4 * 22;
            const auto& picture = palette_.PicTools();
            if (picture.GetPixel(x, y) != kGround && picture.GetPixel(x, y + 20) != kGround)
                tools.push_back(id);
        }
        return tools;
    }
    int Current() const { return static_cast<int>(palette_.CurrentTool()); }

    static constexpr gdi::COLORREF kGround = 0xC8D0D4;
    test::RecordingEditorWindow window_;
    Editor editor_{window_, kGround};
    ToolPalette& palette_ = editor_.Tools();
};

TEST_F(PaletteTest, EveryCellSelectsItsTool) {
    for (int id = 1; id <= 12; ++id) {
        const Button button = id % 2 == 0 ? Button::Left : Button::Right;
        const int x = (id - 1) % 4 * 23;
        const int y = (id - 1) / 4 * 22;
        palette_.PicTools_MouseDown(button, x, y);
        palette_.PicTools_MouseUp(button, x + 22, y + 21);
        EXPECT_EQ(Current(), id);
        EXPECT_EQ(Highlighted(), std::vector{id});
        const ToolId drawing = palette_.LastDrawingTool();
        EXPECT_EQ(static_cast<int>(drawing), id == 1 ? 2 : id == 4 ? 3 : id);
    }
    palette_.SelectTool(ToolId::Selection);
    palette_.RestoreLastDrawingTool();
    EXPECT_EQ(Current(), 12);
    EXPECT_EQ(Highlighted(), std::vector{12});
}

TEST_F(PaletteTest, APressCountsWhereItBegan) {
    const int repaints = window_.toolRepaints;
    palette_.PicTools_MouseDown(Button::Left, 30, 5);
    palette_.PicTools_MouseUp(Button::Left, 30, 5);
    EXPECT_EQ(window_.toolRepaints, repaints) << "the current tool";
    palette_.PicTools_MouseDown(Button::None, 5, 30);
    palette_.PicTools_MouseUp(Button::None, 5, 30);
    EXPECT_EQ(Current(), 2);

    palette_.PicTools_MouseDown(Button::Left, 5, 30);
    EXPECT_EQ(Highlighted(), (std::vector{2, 5}));
    palette_.PicTools_MouseMove({true, false}, 5, 70);
    EXPECT_EQ(Highlighted(), std::vector{2});
    // Another button has no part in it.
    palette_.PicTools_MouseDown(Button::Right, 60, 30);
    palette_.PicTools_MouseUp(Button::Right, 60, 30);
    palette_.PicTools_MouseUp(Button::Left, 95, 30);
    EXPECT_EQ(Current(), 2);
    EXPECT_EQ(Highlighted(), std::vector{2});

    palette_.PicTools_MouseDown(Button::Left, 5, 30);
    palette_.PicTools_MouseMove({true, false}, -5, 30);
    palette_.PicTools_MouseMove({true, false}, 10, 40);
    EXPECT_EQ(Highlighted(), (std::vector{2, 5})) << "back on the cell";
    palette_.PicTools_MouseUp(Button::Left, 10, 40);
    EXPECT_EQ(Current(), 5);

    // Only the left button shows where it is.
    palette_.PicTools_MouseDown(Button::Right, 5, 5);
    palette_.PicTools_MouseMove({false, true}, 60, 60);
    EXPECT_EQ(Highlighted(), (std::vector{1, 5}));
    // A press whose end nobody saw ends with the next one.
    palette_.PicTools_MouseDown(Button::Right, 30, 30);
    palette_.PicTools_MouseUp(Button::Right, 30, 30);
    EXPECT_EQ(Highlighted(), std::vector{6});
}

TEST_F(PaletteTest, GlyphsStandOnTheWindowsColour) {
    gdi::Surface before = palette_.PicTools();
    palette_.SetWindowColor(0x302010);
    int changed = 0;
    for (int y = 0; y < 66; ++y) {
        for (int x = 0; x < 92; ++x) {
            const gdi::COLORREF now = palette_.PicTools().GetPixel(x, y);
            if (now == before.GetPixel(x, y)) continue;
            ++changed;
            ASSERT_EQ(before.GetPixel(x, y), kGround);
            ASSERT_EQ(now, 0x302010U);
        }
    }
    EXPECT_GT(changed, 92 * 66 / 2);
}

TEST_F(PaletteTest, EveryGlyphStandsInItsCell) {
    // The first pixel of each glyph's first row, read from its picture, with the glyph at (4, 3).
    const struct {
        int tool, x, y;
        gdi::COLORREF color;
    } cases[] = {
        {1, 5, 4, 0x000000},   {2, 15, 4, 0x000080}, {3, 13, 4, 0x800000},   {4, 14, 4, 0x000080},
        {5, 8, 4, 0x808080},   {6, 17, 4, 0x808000}, {7, 5, 6, 0x808000},    {8, 11, 11, 0x808000},
        {9, 11, 11, 0x00FFFF}, {10, 9, 6, 0x808000}, {11, 11, 11, 0x808000}, {12, 11, 11, 0x00FFFF},
    };
    for (const auto& c : cases) {
        const int left = (c.tool - 1) % 4 * 23;
        const int top = (c.tool - 1) / 4 * 22;
        EXPECT_EQ(palette_.PicTools().GetPixel(left + c.x, top + c.y), c.color) << c.tool;
        EXPECT_EQ(palette_.PicTools().GetPixel(left + 3, top + 11), kGround) << c.tool;
    }
    EXPECT_EQ(palette_.PicTools().GetPixel(11, 52), 0x00FFFFU);
}

TEST_F(PaletteTest, ToolsSpeakTheLanguageInForce) {
    constexpr std::array kCursors{GridCursor::Cross, GridCursor::Pencil, GridCursor::Eraser,
                                  GridCursor::Picker, GridCursor::FloodFill};
    Editor editor(window_, kGround);
    for (const test::Row& row : test::ListedTexts("tool")) {
        const std::size_t slot = std::stoul(row[test::Key]) - 1;
        const auto x = static_cast<int>(slot % 4 * 23 + 10);
        const auto y = static_cast<int>(slot / 4 * 22 + 10);
        editor.Tools().SelectTool(static_cast<ToolId>(slot + 1));
        EXPECT_EQ(window_.cursor, slot < 5 ? kCursors[slot] : GridCursor::Cross);
        for (const auto& [code, column] :
             {std::pair{i18n::kChinese, test::Chinese}, {i18n::kEnglish, test::English}}) {
            i18n::SetUiLanguage(code);
            if (row[test::Kind] == "grid") {
                editor.PicMain_MouseMove({}, 5, 5);
            } else {
                palette_.PicTools_MouseMove({}, x, y);
            }
            const bool isTip = row[test::Kind] == "tooltip";
            EXPECT_EQ(isTip ? window_.toolTip : window_.panels[1], row[column]);
        }
    }
    palette_.PicTools_MouseMove({}, 5, 66);
    EXPECT_EQ(window_.toolTip, "Filled Ellipse");
    palette_.PicTools_MouseMove({true, false}, 5, 5);
    EXPECT_EQ(window_.toolTip, "Filled Ellipse") << "only without a button";
}

class WellsTest : public testing::Test {
  protected:
    // Both wells as hexadecimal colours, T for a transparent one.
    std::string Wells() const {
        const auto text = [this](Button button) {
            char digits[16];
            std::snprintf(digits, sizeof digits, "%X%s", wells_.PenColor(button),
                          wells_.IsTransparent(button) ? "T" : "");
            return std::string(digits);
        };
        return text(Button::Left) + " " + text(Button::Right);
    }

    test::RecordingEditorWindow window_;
    test::ScriptedColors cdb_;
    ColorWells wells_{window_};
    WellCommands commands_{wells_, window_, cdb_};
};

TEST_F(WellsTest, ButtonsDoWhatTheySay) {
    using Event = void (WellCommands::*)(Button);
    constexpr Event kTransparent = &WellCommands::ImgTransparent_MouseUp;
    constexpr Event kExchange = &WellCommands::ImgInterchangeColor_MouseUp;
    constexpr Event kDefault = &WellCommands::ImgDefaultColor_MouseUp;
    constexpr Event kFore = &WellCommands::PicForeColor_MouseUp;
    constexpr Event kBack = &WellCommands::PicBackColor_MouseUp;
    cdb_.choice = 0x123456;
    const struct {
        Event event;
        Button button;
        const char* wells;
    } steps[] = {
        {kTransparent, Button::None, "0 FFFFFF"},
        {kExchange, Button::Left, "FFFFFF 0"},
        {kExchange, Button::Right, "FFFFFF 0"},
        {kFore, Button::Right, "FFFFFF 0"},
        {kFore, Button::Left, "123456 0"},
        {kTransparent, Button::Right, "123456 FFFFFFT"},
        {kExchange, Button::Left, "FFFFFFT 123456"},
        {kExchange, Button::Right, "FFFFFF FFFFFFT"},
        {kTransparent, Button::Left, "FFFFFFT FFFFFFT"},
        {kExchange, Button::Left, "FFFFFFT FFFFFFT"},
        {kExchange, Button::Right, "FFFFFFT FFFFFFT"},
        {kDefault, Button::Right, "FFFFFFT FFFFFFT"},
        {kBack, Button::Left, "FFFFFFT 123456"},
        {kDefault, Button::Left, "0 FFFFFF"},
    };
    int step = 0;
    for (const auto& s : steps) {
        const int repaints = window_.wellRepaints;
        const std::string before = Wells();
        (commands_.*s.event)(s.button);
        EXPECT_EQ(Wells(), s.wells) << "step " << step++;
        EXPECT_TRUE(before == Wells() || window_.wellRepaints > repaints);
    }
    EXPECT_EQ(window_.beeps, 3);
    // A cancelled dialog leaves the colour, but no transparency.
    cdb_.choice.reset();
    commands_.ImgTransparent_MouseUp(Button::Left);
    window_.wellRepaints = 0;
    commands_.PicForeColor_MouseUp(Button::Left);
    EXPECT_EQ(Wells(), "FFFFFF FFFFFF");
    EXPECT_GT(window_.wellRepaints, 0);
    wells_.SetTransparent(Button::Left);
    wells_.ResetDefaultColors();
    EXPECT_EQ(Wells(), "FFFFFFT FFFFFF");
}

}  // namespace
}  // namespace kestrel::editing
