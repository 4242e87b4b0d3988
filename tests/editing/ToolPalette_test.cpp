#include "editing/ToolPalette.h"

#include <gtest/gtest.h>

#include "editing/ToolTable.h"
#include "editing/WellCommands.h"
#include "i18n/Language.h"
#include "tests/support/EditorTest.h"
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
    ToolPalette palette_{window_, kGround};
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
    EXPECT_EQ(window_.cursor, GridCursor::FloodFill);
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

TEST_F(PaletteTest, HintsSpeakTheLanguageInForce) {
    for (const ToolRow& row : ToolTable()) {
        const int slot = static_cast<int>(row.id) - 1;
        for (const auto code : {i18n::kChinese, i18n::kEnglish}) {
            i18n::SetUiLanguage(code);
            palette_.PicTools_MouseMove({}, slot % 4 * 23 + 10, slot / 4 * 22 + 10);
            EXPECT_EQ(window_.toolTip, row.toolTip.In(code));
            EXPECT_EQ(window_.panels[1], row.status.In(code));
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
    commands_.PicForeColor_MouseUp(Button::Left);
    EXPECT_EQ(Wells(), "FFFFFF FFFFFF");
    wells_.SetTransparent(Button::Left);
    wells_.ResetDefaultColors();
    EXPECT_EQ(Wells(), "FFFFFFT FFFFFF");
}

}  // namespace
}  // namespace kestrel::editing
