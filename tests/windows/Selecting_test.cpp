#include <QMenu>
#include <QTimer>

#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

using editing::Corners;

// A black cell at (2, 2), and the Selection tool in hand.
class SelectingTest : public test::WindowTest {
  protected:
    SelectingTest() {
        QTest::mouseClick(Grid(), Qt::LeftButton, {}, QPoint(25, 25));
        Editor().Tools().SelectTool(editing::ToolId::Selection);
    }

    editing::Selection& Selected() { return Editor().Selected(); }
    void MarkCells() {
        QTest::mousePress(Grid(), Qt::LeftButton, {}, QPoint(20, 20));
        QTest::mouseMove(Grid(), QPoint(40, 40));
        QTest::mouseRelease(Grid(), Qt::LeftButton, {}, QPoint(40, 40));
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&window_, key, modifiers);
    }
    // Which of Undo, Redo, Cut, Copy, Paste, Paste Opaque and Delete can be chosen, the same in the
    // menu bar, on the toolbar and in the pop-up where they have them.
    std::string Enabled() {
        std::string state;
        for (const auto& [item, button, popupItem] :
             {std::array{"mnuEditOpts0", "Undo", ""},
              {"mnuEditOpts1", "Redo", ""},
              {"mnuEditOpts3", "Cut", "mnuPopup2Opts0"},
              {"mnuEditOpts4", "Copy", "mnuPopup2Opts1"},
              {"mnuEditOpts5", "Paste", "mnuPopup2Opts2"},
              {"mnuEditOpts6", "Paste", "mnuPopup2Opts2"},
              {"mnuEditOpts7", "Delete", "mnuPopup2Opts3"}}) {
            const bool enabled = Item(item)->isEnabled();
            state += enabled ? "+" : "-";
            EXPECT_EQ(window_.Toolbar1().Button(button)->isEnabled(), enabled) << button;
            const controls::MenuItem* const inPopup = window_.Menus().SmartMenuXP2.Find(popupItem);
            EXPECT_TRUE(inPopup == nullptr || inPopup->enabled == enabled) << popupItem;
        }
        return state;
    }
};

TEST_F(SelectingTest, CommandsAreEnabledWhenTheyCanDoSomething) {
    EXPECT_EQ(Enabled(), "+------");
    MarkCells();
    EXPECT_EQ(Enabled(), "+-++--+");
    given_.clipboard.Offer(gdi::Surface(2, 2));
    EXPECT_EQ(Enabled(), "+-+++++");
    Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Enabled(), "+---++-");
    Item("mnuEditOpts6")->trigger();
    EXPECT_EQ(Selected().PicSelMask().GetPixel(0, 0), gdi::kBlack) << "the white is opaque";
    EXPECT_EQ(Enabled(), "+-+++++");
    given_.clipboard.Offer({});
    QTest::mouseClick(window_.Toolbar1().Button("Undo"), Qt::LeftButton);
    EXPECT_EQ(Enabled(), "++-----");
}

TEST_F(SelectingTest, ArrowKeysMoveItAndEscapeDropsIt) {
    MarkCells();
    Key(Qt::Key_Left, Qt::ControlModifier);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up})
        Key(key, key == Qt::Key_Down ? Qt::NoModifier : Qt::KeypadModifier);
    Key(Qt::Key_Tab);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Escape})
        QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_EQ(Selected().Marquee(), (Corners{30, 20, 50, 40})) << "those were for the toolbar";
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Selected().Exists());
    EXPECT_TRUE(ScreenIsFresh());
}

TEST_F(SelectingTest, TheWindowsBackgroundDropsIt) {
    // In a pane and beside it; a label, the status bar and the preview.
    const QPoint kDropping(450, 152), kBeside(10, 200);
    for (const QPoint& at : {kDropping, kBeside, QPoint(400, 75), {20, 420}, {360, 80}}) {
        Editor().SelectAll();
        QTest::mouseClick(window_.windowHandle(), Qt::LeftButton, {}, at);
        EXPECT_EQ(Selected().Exists(), at != kDropping && at != kBeside) << at.x();
    }
    QTest::mousePress(&window_, Qt::LeftButton, {}, QPoint(3, 200));
    QTest::mouseRelease(&window_, Qt::LeftButton, {}, QPoint(-30, 200));
    EXPECT_TRUE(Selected().Exists()) << "let go outside the window";
}

TEST_F(SelectingTest, ACancelledPasteIsSilent) {
    given_.clipboard.Offer(gdi::Surface(33, 10));
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(given_.boxes.shown.empty());
    EXPECT_FALSE(Selected().Exists());
}

TEST_F(SelectingTest, ARightClickOpensThePopupAndItsItemsWork) {
    Editor().SelectAll();
    QTest::mouseClick(Grid(), Qt::RightButton, {}, QPoint(35, 35));
    QMenu* popup = window_.EditingPopup();
    ASSERT_TRUE(popup->isVisible());
    QTest::keyClick(popup, Qt::Key_D);
    EXPECT_TRUE(Icon().IsTransparent(2, 2));
}

}  // namespace
}  // namespace kestrel::windows
