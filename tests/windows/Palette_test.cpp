#include <QCheckBox>

#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

class PaletteWindowTest : public test::WindowTest {
  protected:
    void Click(Qt::MouseButton button, QPoint at) {
        QTest::mouseClick(&window_.PicPal(), button, {}, at);
    }
    // Which of the two palettes has the mark.
    std::string Marks() {
        Item("mnuToolsOpts2")->menu()->aboutToShow();
        std::string marks;
        for (const char* key : {"mnuPaletteOpts0", "mnuPaletteOpts1"})
            marks += Item(key)->isChecked() ? "x" : "-";
        return marks;
    }
};

TEST_F(PaletteWindowTest, ClicksPickAndDoubleClicksEdit) {
    given_.desktop.color = 0x123456;
    QTest::mouseDClick(&window_.PicPal(), Qt::LeftButton, {}, {33, 20});
    // The release of another button is no double click, and the pair is over with the next press.
    QTest::mouseRelease(&window_.PicPal(), Qt::RightButton, {}, {33, 20});
    Click(Qt::LeftButton, {33, 20});
    EXPECT_TRUE(given_.desktop.colors.empty());
    QTest::mouseDClick(&window_.PicPal(), Qt::LeftButton, {}, {33, 20});
    QTest::mouseRelease(&window_.PicPal(), Qt::LeftButton, {}, {33, 20});
    EXPECT_EQ(Editor().ColorPalette().Colors()[18], 0x123456U);
    EXPECT_TRUE(ScreenIsFresh());
}

TEST_F(PaletteWindowTest, TheMenuTellsWhichPaletteIsShown) {
    auto* chkPal = window_.findChild<QCheckBox*>("ChkPal");
    Item("mnuPaletteOpts1")->trigger();
    EXPECT_EQ(Marks(), "-x");
    QTest::mouseClick(chkPal, Qt::LeftButton);
    given_.desktop.color = 0x123456;
    Click(Qt::LeftButton, {1, 1});
    EXPECT_EQ(Marks(), "--");
    Item("mnuPaletteOpts0")->trigger();
    EXPECT_EQ(Marks(), "x-");
    Item("mnuNew")->trigger();
    EXPECT_FALSE(chkPal->isChecked());
    EXPECT_TRUE(ScreenIsFresh());
}

TEST_F(PaletteWindowTest, ItsButtonsTellFailuresInTheLanguageInForce) {
    given_.desktop.choice = "/none.PAL";
    given_.files.writeError = {28, "No space left on device"};
    i18n::SetUiLanguage(i18n::kChinese);
    for (const auto& [button, text] :
         {std::pair{"ImgLoadPalette", "No such file or directory.\r\n\r\n不能打开调色板文件."},
          {"ImgSavePalette", "No space left on device.\r\n\r\n不能保存调色板文件."}}) {
        QTest::mouseClick(Control(button), Qt::RightButton);
        QTest::mouseClick(Control(button), Qt::LeftButton);
        EXPECT_EQ(given_.boxes.shown.back().text, text);
    }
    EXPECT_EQ(given_.boxes.shown.size(), 2U);
}

}  // namespace
}  // namespace kestrel::windows
