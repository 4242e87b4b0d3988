#include "desktop/Pictures.h"
#include "platform/gdi/Draw.h"
#include "tests/support/EditorTest.h"
#include "tests/support/ListedTexts.h"
#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

using editing::ToolId;

class DrawingTest : public test::WindowTest {
  protected:
    void ClickTool(ToolId tool, Qt::MouseButton button = Qt::LeftButton) {
        const int slot = static_cast<int>(tool) - 1;
        QTest::mouseClick(&window_.PicTools(), button, {},
                          QPoint(slot % 4 * 23 + 11, slot / 4 * 22 + 11));
    }
};

TEST_F(DrawingTest, ARubberBandAndItsSizeFollowThePointer) {
    const auto printed = [this](int y) { return window_.grab(QRect(371, y, 60, 16)).toImage(); };
    ClickTool(ToolId::Rectangle);
    gdi::Surface band = Editor().Views().PicMain;
    band.state.drawMode = gdi::DrawMode::Invert;
    gdi::DrawBox(band, 15, 15, 95, 65, gdi::kBlack);
    QTest::mousePress(Grid(), Qt::LeftButton, {}, QPoint(12, 18));
    QTest::mouseMove(Grid(), QPoint(94, 61));
    EXPECT_TRUE(test::ComparePicture(Editor().Views().PicMain, band));
    EXPECT_TRUE(ScreenIsFresh());
    // The cell under the pointer has the same numbers, and is printed above the size.
    EXPECT_EQ(printed(133), printed(111));
    QTest::mouseRelease(Grid(), Qt::LeftButton, {}, QPoint(94, 61));
    EXPECT_FALSE(Icon().IsTransparent(9, 6));
}

TEST_F(DrawingTest, UndoAndRedoAreEnabledWhenTheyCanDoSomething) {
    const auto enabled = [this] {
        std::string state;
        for (const auto& [item, button] :
             {std::pair{"mnuEditOpts0", "Undo"}, {"mnuEditOpts1", "Redo"}}) {
            state += Item(item)->isEnabled() ? "+" : "-";
            EXPECT_EQ(window_.Toolbar1().Button(button)->isEnabled(), state.back() == '+');
        }
        return state;
    };
    EXPECT_EQ(enabled(), "--");
    QTest::mouseClick(Grid(), Qt::LeftButton, {}, QPoint(55, 55));
    EXPECT_EQ(enabled(), "+-");
    QTest::keyClick(&window_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(Icon().IsTransparent(5, 5));
    EXPECT_EQ(enabled(), "-+");
    QTest::mouseClick(window_.Toolbar1().Button("Redo"), Qt::LeftButton);
    EXPECT_FALSE(Icon().IsTransparent(5, 5));
    QTest::mouseClick(window_.Toolbar1().Button("Undo"), Qt::LeftButton);
    QTest::mouseClick(Grid(), Qt::RightButton, {}, QPoint(55, 55));
    EXPECT_EQ(enabled(), "+-") << "a new stroke ends the other branch";
}

TEST_F(DrawingTest, ToolsAreChosenByMouse) {
    std::vector<QImage> pointers;
    for (const ToolId tool :
         {ToolId::Pencil, ToolId::ColorEraser, ToolId::ColorPicker, ToolId::FloodFill}) {
        ClickTool(tool, Qt::RightButton);
        EXPECT_TRUE(ScreenIsFresh());
        const QCursor cursor = Grid()->cursor();
        const QImage picture = cursor.pixmap().toImage();
        EXPECT_EQ(picture.pixelColor(cursor.hotSpot()), QColor(Qt::black)) << "the tip draws";
        EXPECT_EQ(std::count(pointers.begin(), pointers.end(), picture), 0);
        pointers.push_back(picture);
    }
    ClickTool(ToolId::Line);
    EXPECT_EQ(Grid()->cursor().shape(), Qt::CrossCursor);
    QTest::mouseMove(&window_.PicTools(), QPoint(30, 30));
    EXPECT_EQ(window_.PicTools().toolTip(), "Line");
    EXPECT_EQ(Hint(), "Draws a straight line");
}

TEST_F(DrawingTest, WellsAreUsedByMouse) {
    const auto shown = [this](QPoint at) {
        EXPECT_TRUE(ScreenIsFresh());
        return desktop::ToColorRef(window_.grab().toImage().pixelColor(at));
    };
    const QPoint fore = Control("PicForeColor")->geometry().center();
    const QPoint back = Control("PicBackColor")->geometry().center();
    given_.desktop.color = 0x102030;
    QTest::mouseClick(Control("PicForeColor"), Qt::LeftButton);
    EXPECT_EQ(given_.desktop.colors.at(0).color, gdi::kBlack);
    for (const QPoint& at : {QPoint(347, 160), QPoint(357, 170), fore})
        EXPECT_EQ(shown(at), 0x102030U);
    QTest::mouseClick(Control("ImgInterchangeColor"), Qt::LeftButton);
    for (const QPoint& at : {QPoint(365, 160), QPoint(375, 170), back})
        EXPECT_EQ(shown(at), 0x102030U);
    QTest::mouseClick(Control("ImgTransparent"), Qt::RightButton);
    EXPECT_NE(shown(back), 0x102030U) << "the marker of a transparent well";
    EXPECT_NE(shown(back), gdi::kWhite);
    EXPECT_EQ(shown({365, 160}), gdi::kWhite);
    // Let go beside the control: nothing.
    QTest::mousePress(Control("ImgDefaultColor"), Qt::LeftButton);
    QTest::mouseRelease(Control("ImgDefaultColor"), Qt::LeftButton, {}, QPoint(40, 5));
    EXPECT_EQ(shown({347, 160}), gdi::kWhite);
    QTest::mouseClick(Control("ImgDefaultColor"), Qt::LeftButton);
    EXPECT_EQ(shown({347, 160}), gdi::kBlack);

    for (const auto& [code, column] :
         {std::pair{i18n::kChinese, test::Chinese}, {i18n::kEnglish, test::English}}) {
        i18n::SetUiLanguage(code);
        for (const test::Row& row : test::ListedTexts("well")) {
            const bool isPreview = row[test::Key] == "PicIcon";
            QTest::mouseMove(isPreview ? window_.childAt(355, 75) : Control(row[test::Key]));
            EXPECT_EQ(Hint(), row[column]);
        }
    }
}

}  // namespace
}  // namespace kestrel::windows
