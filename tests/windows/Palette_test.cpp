#include <QCheckBox>

#include "desktop/Pictures.h"
#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

void DoubleClick(QWidget& widget, Qt::MouseButton button, QPoint at) {
    QTest::mouseClick(&widget, button, {}, at);
    QTest::mouseDClick(&widget, button, {}, at);
    QTest::mouseRelease(&widget, button, {}, at);
}

class PaletteWindowTest : public test::WindowTest {
  protected:
    void Click(Qt::MouseButton button, QPoint at) {
        QTest::mouseClick(&window_.PicPal(), button, {}, at);
    }
    gdi::COLORREF Cell(std::size_t cell) { return Editor().ColorPalette().Colors()[cell]; }
    QCheckBox* ChkPal() { return window_.findChild<QCheckBox*>("ChkPal"); }
    // Which of the two palettes has the mark.
    std::string Marks() {
        std::string marks;
        for (const char* key : {"mnuPaletteOpts0", "mnuPaletteOpts1"})
            marks += Item(key)->isChecked() ? "x" : "-";
        return marks;
    }
};

TEST_F(PaletteWindowTest, MouseAndMenuUseIt) {
    EXPECT_EQ(window_.PicPal().geometry(), QRect(344, 184, 208, 208));
    Click(Qt::LeftButton, {20, 5});
    Click(Qt::RightButton, {207, 207});
    Click(Qt::MiddleButton, {40, 40});
    EXPECT_EQ(Editor().Wells().PenColor(editing::Button::Left), 0x80U);
    EXPECT_TRUE(given_.desktop.colors.empty());
    EXPECT_EQ(Marks(), "x-");
    given_.desktop.color = 0x123456;
    DoubleClick(window_.PicPal(), Qt::RightButton, {33, 20});
    EXPECT_EQ(Cell(18), 0x123456U);
    EXPECT_EQ(Marks(), "--");
    EXPECT_TRUE(ScreenIsFresh());
    // The release of another button is no double click.
    QTest::mouseDClick(&window_.PicPal(), Qt::LeftButton, {}, {33, 20});
    QTest::mouseRelease(&window_.PicPal(), Qt::RightButton, {}, {33, 20});
    QTest::mousePress(&window_.PicPal(), Qt::LeftButton, {}, {33, 20});
    QTest::mouseRelease(&window_.PicPal(), Qt::LeftButton, {}, {33, 20});
    EXPECT_EQ(given_.desktop.colors.size(), 1U);

    Item("mnuPaletteOpts1")->trigger();
    EXPECT_EQ(Marks(), "-x");
    EXPECT_TRUE(ScreenIsFresh());
    QTest::mouseClick(ChkPal(), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), &window_);
    Click(Qt::LeftButton, {1, 1});
    EXPECT_EQ(Cell(0), 0x123456U);
    EXPECT_EQ(Marks(), "--");
    Item("mnuPaletteOpts0")->trigger();
    EXPECT_EQ(Cell(0), 0U);
    EXPECT_EQ(Marks(), "x-");
    EXPECT_TRUE(ChkPal()->isChecked());
    Click(Qt::LeftButton, {1, 1});
    Item("mnuNew")->trigger();
    EXPECT_EQ(Cell(0), 0U);
    EXPECT_EQ(Marks(), "x-");
    EXPECT_FALSE(ChkPal()->isChecked());
    EXPECT_TRUE(ScreenIsFresh());
}

TEST_F(PaletteWindowTest, HintsAndFailuresAreInBothLanguages) {
    given_.desktop.choice = "/none.PAL";
    given_.files.writeError = {28, "No space left on device"};
    for (const bool english : {false, true}) {
        i18n::SetUiLanguage(english ? i18n::kEnglish : i18n::kChinese);
        given_.boxes.shown.clear();
        for (const auto& [name, hint] :
             {std::pair{"PicPal", english ? "Self-Define Color" : "双击调色板 自定义颜色"},
              {"ImgLoadPalette", english ? "Load Palette" : "打开调色板"},
              {"ImgSavePalette", english ? "Save Palette" : "保存调色板"}}) {
            QTest::mouseMove(Control(name), QPoint(5, 5));
            EXPECT_EQ(Hint(), hint);
            QTest::mouseClick(Control(name), Qt::RightButton);
            QTest::mouseClick(Control(name), Qt::LeftButton);
        }
        ASSERT_EQ(given_.boxes.shown.size(), 2U);
        EXPECT_EQ(given_.boxes.shown[0].text + "|" + given_.boxes.shown[1].text,
                  english ? "No such file or directory.\r\n\r\nUnable to load the palette file.|"
                            "No space left on device.\r\n\r\nUnable to save the palette file."
                          : "No such file or directory.\r\n\r\n不能打开调色板文件.|"
                            "No space left on device.\r\n\r\n不能保存调色板文件.");
        EXPECT_EQ(given_.boxes.shown[0].title,
                  english ? "KestrelIconEditor - Error" : "KestrelIconEditor - 错误");
    }
    EXPECT_EQ(Marks(), "x-");
}

}  // namespace
}  // namespace kestrel::windows
