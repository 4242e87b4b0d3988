#include <gtest/gtest.h>

#include <fstream>

#include "commands/PaletteCommands.h"
#include "tests/support/Recorders.h"

namespace kestrel::commands {
namespace {

using editing::Button;
using editing::Palette;
using editing::PaletteKind;
using editing::PaletteReload;
using namespace std::string_literals;

class ColorPaletteTest : public testing::Test {
  protected:
    // The colours from this cell on.
    std::vector<gdi::COLORREF> Cells(std::size_t first, std::size_t count) const {
        const gdi::COLORREF* const begin = palette_.Colors().data() + first;
        return {begin, begin + count};
    }
    void Keep(const std::string& path, const std::string& text) {
        files_.contents[path].assign(text.begin(), text.end());
    }
    // Every cell shows its colour inside a sunken edge of one pixel.
    bool PictureIsFresh() const {
        for (int cell = 0; cell < 256; ++cell) {
            for (int pixel = 0; pixel < 169; ++pixel) {
                const int x = pixel % 13;
                const int y = pixel / 13;
                gdi::COLORREF expected = palette_.Colors()[static_cast<std::size_t>(cell)];
                if (x == 0 || y == 0) expected = 0x808080;
                if (x == 12 || y == 12) expected = gdi::kWhite;
                if (palette_.PicPal().GetPixel(cell % 16 * 13 + x, cell / 16 * 13 + y) != expected)
                    return false;
            }
        }
        return true;
    }

    test::EditorRecorder views_;
    test::OwnerOfDialogs owner_;
    test::MemoryFiles files_;
    test::ScriptedDialogs desktop_;
    test::ScriptedBoxes boxes_;
    system::RandomNumbers random_{std::mt19937::default_seed};
    services::Cdb cdb_{desktop_, owner_};
    editing::ColorWells wells_{views_};
    Palette palette_{views_};
    PaletteCommands commands_{palette_, {wells_, cdb_, desktop_, owner_, boxes_, files_, random_}};
};

TEST_F(ColorPaletteTest, PicturesOfTheDefaultAndARandomPalette) {
    EXPECT_TRUE(PictureIsFresh());
    std::ifstream table(TEST_DATA "/default_palette.txt");
    table >> std::hex;
    for (const gdi::COLORREF color : palette_.Colors()) {
        gdi::COLORREF listed = 0;
        ASSERT_TRUE(table >> listed);
        EXPECT_EQ(color, listed);
    }
    const gdi::PaletteColors first = palette_.Colors();
    wells_.SetPenColor(Button::Right, 0x123456);
    wells_.SetTransparent(Button::Left);
    commands_.UseRandomPalette();
    // The generator's numbers as another program computes them.
    EXPECT_EQ(Cells(0, 3), (std::vector<gdi::COLORREF>{0x000000, 0xD091BB, 0x22AE9F}));
    EXPECT_EQ(Cells(254, 2), (std::vector<gdi::COLORREF>{0x58A2C0, 0xFFFFFF}));
    EXPECT_TRUE(PictureIsFresh());
    EXPECT_EQ(palette_.Kind(), PaletteKind::Random);
    EXPECT_EQ(views_.Wells(), "FFFFFFT FFFFFF ");
    wells_.SetPenColor(Button::Right, 0x123456);
    commands_.UseDefaultPalette();
    EXPECT_EQ(palette_.Colors(), first);
    EXPECT_EQ(views_.Wells(), "FFFFFFT FFFFFF ");
    EXPECT_EQ(palette_.Kind(), PaletteKind::Default);
}

TEST_F(ColorPaletteTest, ClicksPickColours) {
    const struct {
        Button button;
        int x, y;
        const char* wells;
    } cases[] = {{Button::Left, 12, 25, "222222 FFFFFFT "},
                 {Button::Left, 207, 0, "1C1C1C FFFFFFT "},
                 {Button::None, 0, 0, "1C1C1C FFFFFFT "},
                 {Button::Right, 208, 5, "1C1C1C FFFFFF "},  // opaque, with its old colour
                 {Button::Right, 13, 207, "1C1C1C DDDDDD "},
                 {Button::Right, 0, 208, "1C1C1C DDDDDD "},
                 {Button::Left, -1, 5, "1C1C1C DDDDDD "}};
    wells_.SetTransparent(Button::Left);
    wells_.SetTransparent(Button::Right);
    for (const auto& [button, x, y, wells] : cases) {
        commands_.PicPal_MouseUp(button, x, y);
        EXPECT_EQ(views_.Wells(), wells) << x << ", " << y;
    }
    EXPECT_TRUE(desktop_.colors.empty());
}

TEST_F(ColorPaletteTest, CellsAreEdited) {
    commands_.PicPal_MouseUp(Button::Right, 20, 5);
    commands_.PicPal_DblClick();
    EXPECT_EQ(palette_.Kind(), PaletteKind::Default) << "cancelled";
    EXPECT_EQ(desktop_.colors.at(0).color, 0x80U);
    desktop_.color = 0x123456;
    commands_.PicPal_DblClick();
    EXPECT_EQ(Cells(0, 3), (std::vector<gdi::COLORREF>{0, 0x123456, 0x8000}));
    EXPECT_EQ(palette_.Kind(), PaletteKind::Own);
    EXPECT_EQ(views_.Wells(), "0 123456 ");
    palette_.SetChkPal(true);
    for (const auto& [button, x] : {std::pair{Button::None, 5}, {Button::Left, 208}}) {
        commands_.PicPal_MouseUp(button, x, 5);
        commands_.PicPal_DblClick();
    }
    EXPECT_EQ(desktop_.colors.size(), 2U) << "no cell there";
    commands_.PicPal_MouseUp(Button::Right, 0, 0);
    EXPECT_EQ(palette_.Colors()[0], 0x123456U) << "one click is enough";
}

TEST_F(ColorPaletteTest, FilesAreReadLineByLine) {
    const auto line = [](const std::string& text) { return "JASC\r\n\r\n" + text; };
    const struct {
        std::string text;
        std::vector<gdi::COLORREF> cells;  // the first three, 0 0x80 0x8000 at first
        bool fails = false;
    } cases[] = {
        {"", {0, 0x80, 0x8000}},
        {line("7."), {7, 0x80, 0x8000}},
        {line("7\r\n"), {7, 0, 0x8000}},
        {"x\r\n1\r\n2\r\n3\r\n4", {2, 3, 4}},
        {line("1\n2\n3"), {1, 0x80, 0x8000}},
        {"JASC\n\n1\n2\n3", {0, 0x80, 0x8000}},
        {line("1\r2\r\n\n3\r\n4"), {1, 0, 4}},
        {line("  \t12 34\r\nred\r\n+5x"), {12, 0, 5}},
        {line("12.5\r\n13.5\r\n12.500001"), {12, 14, 13}},
        {line(".75\r\n16777215\r\n1e3"), {1, 0xFFFFFF, 1}},
        {line("-1\r\n-1.5\r\n- 4"), {0xFFFFFF, 0xFFFFFE, 0}},
        {line("16777216\r\n2147483647\r\n-2147483648"), {0, 0xFFFFFF, 0}},
        {line("1\r\n2147483648\r\n3"), {1, 0x80, 0x8000}, true},
        {line("1\r\n2147483647.5\r\n3"), {1, 0x80, 0x8000}, true},
        {line("-2147483649"), {0, 0x80, 0x8000}, true},
        {line(std::string(400, '9')), {0, 0x80, 0x8000}, true},
        {line("1\r\n\0002\r\n\xFF\x80"s), {1, 0, 0}},
    };
    for (const auto& c : cases) {
        palette_.DrawPalette(PaletteReload::Yes);
        Keep("/a.pal", c.text);
        desktop_.choice = "/a.pal";
        boxes_.shown.clear();
        commands_.ImgLoadPalette_Click();
        EXPECT_EQ(Cells(0, 3), c.cells) << c.text;
        EXPECT_EQ(boxes_.shown.size(), c.fails ? 1U : 0U) << c.text;
        EXPECT_TRUE(PictureIsFresh());
        const bool unread = c.fails && c.cells[0] == 0;
        EXPECT_EQ(palette_.Kind(), unread ? PaletteKind::Default : PaletteKind::Own) << c.text;
        EXPECT_TRUE(!c.fails ||
                    boxes_.shown[0].text.starts_with("Value too large for defined data"));
    }
    std::string many = "\r\n";
    for (int i = 0; i < 300; ++i)
        many += "\r\n" + std::to_string(i);
    Keep("/a.pal", many);
    commands_.ImgLoadPalette_Click();
    EXPECT_EQ(Cells(254, 2), (std::vector<gdi::COLORREF>{254, 255}));
}

TEST_F(ColorPaletteTest, AreLoadedAndSavedThroughTheDialogs) {
    desktop_.choice = "/mine.PAL";
    commands_.UseRandomPalette();
    const gdi::PaletteColors random = palette_.Colors();
    commands_.ImgSavePalette_Click();
    commands_.UseDefaultPalette();
    commands_.ImgLoadPalette_Click();
    EXPECT_EQ(palette_.Colors(), random);

    const services::FileRecord& save = desktop_.saves.at(0);
    const services::FileRecord& load = desktop_.opens.at(0);
    EXPECT_EQ(save.filter, "Palette Files (*.PAL)\0*.PAL\0All FIles (*.*)\0*.*\0\0"s);
    EXPECT_EQ(load.filter, "Palette Files (*.PAL)\0*.PAL\0All Files (*.*)\0*.*\0\0"s);
    EXPECT_EQ(save.flags, 0x806U);
    EXPECT_EQ(load.flags, 0x1004U);
    for (const services::FileRecord* asked : {&save, &load}) {
        EXPECT_EQ(asked->owner, test::OwnerOfDialogs::kHandle);
        EXPECT_EQ(asked->filterIndex, 1);
        EXPECT_EQ(asked->file + asked->defaultExtension + asked->title, "PAL");
    }

    desktop_.choice.clear();
    commands_.ImgSavePalette_Click();
    commands_.ImgLoadPalette_Click();
    EXPECT_TRUE(boxes_.shown.empty()) << "cancelled";
}

}  // namespace
}  // namespace kestrel::commands
