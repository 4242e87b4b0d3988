#include "editing/ToolPalette.h"

#include <gtest/gtest.h>

#include "commands/WellCommands.h"
#include "i18n/Language.h"
#include "tests/support/EditorTest.h"
#include "tests/support/ListedTexts.h"
#include "tests/support/Recorders.h"

namespace kestrel::editing {
namespace {

class PaletteTest : public testing::Test {
  protected:
    static test::At CellOf(int id) { return {(id - 1) % 4 * 23, (id - 1) / 4 * 22}; }
    // The tools whose cells have a sunken edge: grey along left and top.
    std::vector<int> Highlighted() const {
        std::vector<int> tools;
        for (int id = 1; id <= 12; ++id) {
            const auto [x, y] = CellOf(id);
            const auto& picture = palette_.PicTools();
            if (picture.GetPixel(x, y) != kGround && picture.GetPixel(x, y + 20) != kGround)
                tools.push_back(id);
        }
        return tools;
    }

    static constexpr gdi::COLORREF kGround = 0xC8D0D4;
    test::EditorRecorder views_;
    Editor editor_{views_.Views(), kGround};
    ToolPalette& palette_ = editor_.Tools();
};

// The pressed tool is chosen where the same button comes up over it, and is shown while the pointer
// is there; only the left button shows where it is. A press on the tool in use is none, and the
// last one ends unseen.
TEST_F(PaletteTest, APressCountsWhereItBegan) {
    using enum Button;
    const struct {
        char event;
        Button button;
        int x, y;
        std::vector<int> highlighted;
    } steps[] = {
        {'d', None, 5, 30, {2}},    {'u', None, 5, 30, {2}},      {'d', Left, 5, 30, {2, 5}},
        {'m', Left, 5, 70, {2}},    {'d', Right, 60, 30, {2}},    {'u', Right, 60, 30, {2}},
        {'u', Left, 95, 5, {2}},    {'d', Left, 5, 30, {2, 5}},   {'m', Left, -5, 30, {2}},
        {'m', Left, 9, 40, {2, 5}}, {'u', Left, 9, 40, {5}},      {'d', Left, 5, 30, {5}},
        {'d', Right, 5, 5, {1, 5}}, {'m', Right, 60, 60, {1, 5}}, {'m', None, 60, 60, {5}},
    };
    for (const auto& s : steps) {
        if (s.event == 'd') palette_.PicTools_MouseDown(s.button, s.x, s.y);
        if (s.event == 'm')
            palette_.PicTools_MouseMove({s.button == Left, s.button == Right}, s.x, s.y);
        if (s.event == 'u') palette_.PicTools_MouseUp(s.button, s.x, s.y);
        EXPECT_EQ(Highlighted(), s.highlighted) << s.event << s.x << "," << s.y;
    }
}

TEST_F(PaletteTest, EveryCellSelectsItsToolWhichSpeaksTheLanguageInForce) {
    using enum GridCursor;
    constexpr std::array kCursors{Cross, Pencil, Eraser, Picker, FloodFill, Cross,
                                  Cross, Cross,  Cross,  Cross,  Cross,     Cross};
    for (const test::Row& row : test::ListedTexts("tool")) {
        const int id = std::stoi(row[test::Key]);
        const auto [x, y] = CellOf(id);
        const Button button = id % 2 == 0 ? Button::Left : Button::Right;
        palette_.PicTools_MouseDown(button, x, y);
        palette_.PicTools_MouseUp(button, x + 22, y + 21);
        EXPECT_EQ(palette_.CurrentTool(), static_cast<ToolId>(id));
        EXPECT_EQ(Highlighted(), std::vector{id});
        EXPECT_EQ(views_.cursor, kCursors.at(std::stoul(row[test::Key]) - 1));
        for (const auto& [code, column] :
             {std::pair{i18n::kChinese, test::Chinese}, {i18n::kEnglish, test::English}}) {
            i18n::SetUiLanguage(code);
            if (row[test::Kind] == "grid") {
                editor_.PicMain_MouseMove({}, 5, 5);
            } else {
                palette_.PicTools_MouseMove({}, x + 10, y + 10);
            }
            const bool isTip = row[test::Kind] == "tooltip";
            EXPECT_EQ(isTip ? views_.toolTip : views_.panels[1], row[column]);
        }
    }
}

class WellsTest : public testing::Test {
  protected:
    test::EditorRecorder views_;
    test::OwnerOfDialogs owner_;
    test::ScriptedDialogs desktop_;
    services::Cdb cdb_{desktop_, owner_};
    ColorWells wells_{views_};
    commands::WellCommands commands_{wells_, views_.application, cdb_};
};

TEST_F(WellsTest, ButtonsDoWhatTheySay) {
    using enum Button;
    using Event = void (commands::WellCommands::*)(Button);
    constexpr Event kClear = &commands::WellCommands::ImgTransparent_MouseUp;
    constexpr Event kSwap = &commands::WellCommands::ImgInterchangeColor_MouseUp;
    constexpr Event kReset = &commands::WellCommands::ImgDefaultColor_MouseUp;
    constexpr Event kFore = &commands::WellCommands::PicForeColor_MouseUp;
    constexpr Event kBack = &commands::WellCommands::PicBackColor_MouseUp;
    const struct {
        Event event{};
        Button button{};
        // Chosen in the dialog; a cancelled one leaves the colour, but no transparency.
        std::optional<gdi::COLORREF> choice;
        const char* wells{};
    } steps[] = {
        {kClear, None, {}, "0 FFFFFF "},         {kSwap, Left, {}, "FFFFFF 0 "},
        {kSwap, Right, {}, "FFFFFF 0 "},         {kFore, Right, 0x123456, "FFFFFF 0 "},
        {kFore, Left, 0x123456, "123456 0 "},    {kClear, Right, {}, "123456 FFFFFFT "},
        {kSwap, Left, {}, "FFFFFFT 123456 "},    {kSwap, Right, {}, "FFFFFF FFFFFFT "},
        {kClear, Left, {}, "FFFFFFT FFFFFFT "},  {kSwap, Right, {}, "FFFFFFT FFFFFFT "},
        {kReset, Right, {}, "FFFFFFT FFFFFFT "}, {kBack, Left, 0x123456, "FFFFFFT 123456 "},
        {kFore, Left, {}, "FFFFFF 123456 "},     {kClear, Right, {}, "FFFFFF FFFFFFT "},
        {kReset, Left, {}, "0 FFFFFF "},
    };
    for (const auto& s : steps) {
        SCOPED_TRACE(s.wells);
        desktop_.color = s.choice;
        (commands_.*s.event)(s.button);
        EXPECT_EQ(views_.Wells(), s.wells);
    }
    EXPECT_EQ(views_.application.beeps, 4);
}

}  // namespace
}  // namespace kestrel::editing
