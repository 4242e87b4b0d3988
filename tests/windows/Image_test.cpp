#include <QLineEdit>
#include <QTimer>

#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

class ImageMenuTest : public test::WindowTest {
  protected:
    // Opens the menu as a user does, who sees the state of its items then.
    bool IsEnabledIn(const char* menu, const char* item) {
        QMenu* opened = Item(menu)->menu();
        opened->popup({});
        const bool enabled = Item(item)->isEnabled();
        opened->close();
        return enabled;
    }
    // Chooses an item whose dialog is answered by these keys.
    void Choose(const char* item, std::initializer_list<Qt::Key> keys) {
        QTimer::singleShot(0, [keys] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            QApplication::setActiveWindow(dialog);
            for (const Qt::Key key : keys)
                QTest::keyClick(dialog->focusWidget(), key);
            if (QApplication::activeModalWidget() == dialog) dialog->close();
        });
        Item(item)->trigger();
    }
    void Select(QPoint from, QPoint to) {
        Editor().Tools().SelectTool(editing::ToolId::Selection);
        QTest::mousePress(Grid(), Qt::LeftButton, {}, from);
        QTest::mouseMove(Grid(), to);
        QTest::mouseRelease(Grid(), Qt::LeftButton, {}, to);
    }
    gdi::COLORREF Pixel(int x, int y) { return Icon().PicImage().GetPixel(x, y); }
};

TEST_F(ImageMenuTest, MirrorItemsFollowTheSelection) {
    EXPECT_TRUE(IsEnabledIn("mnuImage", "mnuMirrorOpts0"));
    Select({10, 10}, {40, 30});
    for (const auto& [item, enabled] : {std::pair{"mnuMirrorOpts0", false},
                                        {"mnuMirrorOpts1", false},
                                        {"mnuMirrorOpts2", true},
                                        {"mnuMirrorOpts3", true}})
        EXPECT_EQ(IsEnabledIn("mnuImage", item), enabled) << item;
    Editor().Selected().DropSelection();
    EXPECT_TRUE(IsEnabledIn("mnuImage", "mnuMirrorOpts1"));
}

TEST_F(ImageMenuTest, CommandsReachTheIconAndItsHistory) {
    Choose("mnuToolsOpts1", {Qt::Key_Escape});
    EXPECT_FALSE(Icon().Modified);
    Choose("mnuToolsOpts1", {Qt::Key_Return});
    EXPECT_EQ(Pixel(31, 0), 0xF7F7F7U);
    Item("mnuNegative")->trigger();
    EXPECT_EQ(Pixel(31, 0), 0x080808U);
    Choose("mnuGamma", {Qt::Key_2, Qt::Key_0, Qt::Key_0, Qt::Key_Return});
    EXPECT_EQ(Pixel(31, 0), 0x2D2D2DU);
    Choose("mnuImageOpts0", {Qt::Key_Up, Qt::Key_Return});
    EXPECT_EQ(Pixel(31, 0), 0x323232U);
    EXPECT_EQ(Editor().History().UndoCount(), 5U);
    EXPECT_TRUE(Item("mnuEditOpts0")->isEnabled());
    EXPECT_TRUE(ScreenIsFresh());
}

TEST_F(ImageMenuTest, ThePopupTurnsTheSelection) {
    Editor().EditIcon(editing::Leaves::NoEntry).PaintCell(1, 1, 0x0000FF);
    Select({10, 10}, {40, 30});
    window_.Menus().SmartMenuXP2.onClick("mnuRotate2Opts1");
    EXPECT_EQ(Editor().Selected().Marquee(), (editing::Corners{10, 10, 30, 40}));
    EXPECT_EQ(Editor().Composited().image.GetPixel(2, 1), 0x0000FFU);
    window_.Menus().SmartMenuXP2.onClick("mnuFlip2Opts1");
    EXPECT_EQ(Editor().Composited().image.GetPixel(2, 3), 0x0000FFU);
    EXPECT_TRUE(ScreenIsFresh());
}

}  // namespace
}  // namespace kestrel::windows
