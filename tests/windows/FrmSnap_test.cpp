#include "windows/FrmSnap.h"

#include <QTimer>

#include "desktop/Pictures.h"
#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

constexpr gdi::COLORREF kFirstColor = 0x100000;

// A screen that the monitor shows pixel on pixel, each of a colour of its own.
class FrmSnapTest : public test::WindowTest {
  protected:
    FrmSnapTest() {
        const QSize size = window_.screen()->size();
        gdi::Surface& shown = given_.screen.shown = {size.width(), size.height()};
        for (int y = 0; y < shown.Height(); ++y) {
            for (int x = 0; x < shown.Width(); ++x)
                shown.SetPixel(x, y, ColorAt(x, y));
        }
        given_.screen.pointer = {100, 70};
        Editor().EditIcon(editing::Leaves::Entry).PaintCell(1, 1, gdi::kWhite);
        Editor().PopUndoSnapshot();
        Icon().Modified = false;
    }
    // Windows of later tests must not lie under the pointer.
    ~FrmSnapTest() override { QCursor::setPos(0, 0); }
    static gdi::COLORREF ColorAt(int x, int y) {
        return kFirstColor + static_cast<gdi::COLORREF>(x + 1000 * y);
    }
    // Captures and does this while the screen is frozen, which ends it.
    void Capture(const std::function<void()>& act) {
        const auto look = [this, act] {
            for (QWidget* each : QApplication::topLevelWidgets()) {
                if (each->isVisible()) snap_ = each;
            }
            ASSERT_EQ(snap_->windowTitle(), "KestrelIconEditor - Capture Image");
            EXPECT_FALSE(window_.isVisible());
            act();
        };
        // Later than the wait for the window to be gone.
        QTimer timer;
        timer.callOnTimeout([&] {
            if (window_.isVisible() || given_.screen.held == gdi::Rect{}) return;
            timer.stop();
            look();
        });
        timer.start(5);
        window_.Toolbar1().Button("Capture")->click();
        EXPECT_TRUE(window_.isVisible());
    }
    void Press(Qt::Key key) { QTest::keyClick(snap_, key); }
    void ExpectIcon(int x, int y) {
        EXPECT_EQ(Icon().PicImage().GetPixel(3, 31), ColorAt(x + 3, y + 31));
        EXPECT_FALSE(Icon().IsTransparent(0, 0));
        EXPECT_TRUE(Icon().Modified && Editor().CanUndo());
        EXPECT_FALSE(Editor().CanRedo());
        Editor().PopUndoSnapshot();
        EXPECT_TRUE(Icon().IsTransparent(3, 31));
    }

    QWidget* snap_ = nullptr;
};

TEST_F(FrmSnapTest, TakesNothingWhenOneLeaves) {
    Capture([&] { Press(Qt::Key_Escape); });
    EXPECT_EQ(given_.screen.held.height, given_.screen.shown.Height() - 31);
    Capture([&] { snap_->close(); });
    EXPECT_TRUE(Icon().IsTransparent(1, 1) && !Icon().Modified);
    EXPECT_TRUE(Editor().CanRedo());
    given_.screen.seen = false;
    window_.Toolbar1().Button("Capture")->click();
    EXPECT_TRUE(given_.boxes.shown.at(0).text.starts_with("The desktop did not give a picture"));
}

TEST_F(FrmSnapTest, AnyButtonAndReturnTakeTheSquare) {
    Capture([&] {
        QTest::mouseRelease(snap_, Qt::LeftButton, {}, {9, 9});  // of a drag elsewhere
        QTest::mouseClick(snap_, Qt::MiddleButton, {}, {50, 60});
    });
    ExpectIcon(50, 60);
    Capture([&] {
        QTest::mouseMove(snap_, {200, 300});
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down,
                                  Qt::Key_Right, Qt::Key_Right})
            Press(key);
        EXPECT_EQ(given_.screen.pointer, (gdi::Point{202, 299}));
        const QImage shown = snap_->grab().toImage();
        EXPECT_EQ(desktop::ToColorRef(shown.pixelColor(10, 20)), ColorAt(10, 20));
        EXPECT_EQ(desktop::ToColorRef(shown.pixelColor(200, 299)), gdi::kWhite) << "the frame";
        EXPECT_TRUE(ScreenIsFresh(*snap_));
        Press(Qt::Key_Return);
    });
    ExpectIcon(202, 299);
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
