#include "windows/FrmSnap.h"

#include <QTimer>

#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

class FrmSnapTest : public test::WindowTest {
  protected:
    FrmSnapTest() {
        given_.screen.shown = test::Numbered(500, 400);
        Editor().EditIcon(editing::Leaves::Entry).PaintCell(1, 1, gdi::kWhite);
        Editor().PopUndoSnapshot();
        Icon().Modified = false;
    }
    // Windows of later tests must not lie under the pointer.
    ~FrmSnapTest() override { QCursor::setPos(0, 0); }
    // Captures and does this while the screen is frozen, which ends it.
    void Capture(const std::function<void()>& act) {
        QTimer timer;
        timer.callOnTimeout([&] {
            for (QWidget* each : QApplication::topLevelWidgets()) {
                if (each->isVisible()) snap_ = each;
            }
            // The window takes a while to be gone.
            if (snap_ == nullptr || snap_ == &window_) return;
            timer.stop();
            act();
        });
        timer.start(5);
        window_.Toolbar1().Button("Capture")->click();
        EXPECT_TRUE(window_.isVisible());
    }
    void Press(Qt::Key key) { QTest::keyClick(snap_, key); }

    QWidget* snap_ = nullptr;
};

TEST_F(FrmSnapTest, TakesNothingWhenOneLeaves) {
    Capture([&] { Press(Qt::Key_Escape); });
    EXPECT_EQ(given_.screen.held, (gdi::Rect{0, 0, 469, 369}));
    Capture([&] { snap_->close(); });
    given_.screen.seen = false;
    window_.Toolbar1().Button("Capture")->click();
    EXPECT_TRUE(given_.boxes.shown.at(0).text.starts_with("The desktop did not give a picture"));
    EXPECT_TRUE(Icon().IsTransparent(1, 1) && !Icon().Modified && Editor().CanRedo());
}

TEST_F(FrmSnapTest, AnyButtonAndReturnTakeTheSquare) {
    Capture([&] {
        QTest::mouseRelease(snap_, Qt::LeftButton, {}, {9, 9});  // of a drag elsewhere
        QTest::mouseClick(snap_, Qt::MiddleButton, {}, {50, 60});
    });
    EXPECT_EQ(Icon().PicImage().GetPixel(3, 31), 91U * 500 + 53);
    EXPECT_TRUE(Icon().Modified && !Editor().CanRedo());
    Editor().PopUndoSnapshot();
    EXPECT_TRUE(Icon().IsTransparent(3, 31));
    Capture([&] {
        QTest::mouseMove(snap_, {200, 300});
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down,
                                  Qt::Key_Right, Qt::Key_Right})
            Press(key);
        EXPECT_EQ(given_.screen.pointer, (gdi::Point{202, 299}));
        EXPECT_TRUE(ScreenIsFresh(*snap_));
        Press(Qt::Key_Return);
    });
    EXPECT_EQ(Icon().PicImage().GetPixel(3, 31), 330U * 500 + 205);
}

// A line with the button held, which ends in the grid's corner.
TEST_F(FrmSnapTest, ADragEndsBefore) {
    Editor().Tools().SelectTool(editing::ToolId::Line);
    QTest::mousePress(Grid(), Qt::LeftButton, {}, {95, 5});
    Capture([&] { Press(Qt::Key_Escape); });
    EXPECT_FALSE(Icon().IsTransparent(0, 0));
    EXPECT_EQ(Editor().History().UndoCount(), 2U);
}

}  // namespace
}  // namespace kestrel::windows
