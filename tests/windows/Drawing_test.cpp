#include "desktop/Pictures.h"
#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

using editing::ToolId;

class DrawingTest : public test::WindowTest {
  protected:
    void ClickTool(ToolId tool) {
        const int slot = static_cast<int>(tool) - 1;
        QTest::mouseClick(&window_.PicTools(), Qt::LeftButton, {},
                          QPoint(slot % 4 * 23 + 11, slot / 4 * 22 + 11));
    }
};

TEST_F(DrawingTest, AToolIsChosenAndItsStrokeShownWhileItIsDrawn) {
    ClickTool(ToolId::FloodFill);
    EXPECT_EQ(Grid()->cursor().shape(), Qt::BitmapCursor);
    ClickTool(ToolId::Rectangle);
    EXPECT_EQ(Grid()->cursor().shape(), Qt::CrossCursor);
    QTest::mouseMove(&window_.PicTools(), QPoint(30, 30));
    EXPECT_EQ(window_.PicTools().toolTip(), "Line");
    EXPECT_EQ(Hint(), "Draws a straight line");
    QTest::mousePress(Grid(), Qt::LeftButton, {}, QPoint(12, 18));
    QTest::mouseMove(Grid(), QPoint(94, 61));
    EXPECT_TRUE(ScreenIsFresh()) << "tool, rubber band and readouts";
    QTest::mouseRelease(Grid(), Qt::LeftButton, {}, QPoint(94, 61));
    EXPECT_TRUE(ScreenIsFresh()) << "grid and preview";
    EXPECT_FALSE(Icon().IsTransparent(9, 6));
}

TEST_F(DrawingTest, WellsFollowTheirControls) {
    const auto shown = [this](int x) {
        EXPECT_TRUE(ScreenIsFresh());
        return desktop::ToColorRef(window_.grab().toImage().pixelColor(x, 166));
    };
    const int kFore = 394, kBack = 419;
    given_.desktop.color = 0x102030;
    QTest::mouseClick(Control("PicForeColor"), Qt::LeftButton);
    EXPECT_EQ(shown(kFore), 0x102030U);
    QTest::mouseClick(Control("ImgInterchangeColor"), Qt::LeftButton);
    EXPECT_EQ(shown(kBack), 0x102030U);
    QTest::mouseClick(Control("ImgTransparent"), Qt::RightButton);
    EXPECT_NE(shown(kBack), gdi::kWhite) << "the marker of a transparent well";
    // Let go beside the control: nothing.
    QTest::mousePress(Control("ImgDefaultColor"), Qt::LeftButton);
    QTest::mouseRelease(Control("ImgDefaultColor"), Qt::LeftButton, {}, QPoint(40, 5));
    EXPECT_EQ(shown(kFore), gdi::kWhite);
    QTest::mouseClick(Control("ImgDefaultColor"), Qt::LeftButton);
    EXPECT_EQ(shown(kFore), gdi::kBlack);
}

}  // namespace
}  // namespace kestrel::windows
