#include <QMimeData>

#include "desktop/Pictures.h"
#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

using editing::StatusPanel;

class FrmIcoEdTest : public test::WindowTest {
  protected:
    // Whether the window takes them.
    bool Drop(const QList<QUrl>& urls) {
        constexpr Qt::DropActions kOffered = Qt::CopyAction | Qt::MoveAction;
        QMimeData files;
        files.setUrls(urls);
        QDragEnterEvent enter({50, 50}, kOffered, &files, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(&window_, &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent drop({50, 50}, kOffered, &files, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(&window_, &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "a moved file would be deleted";
        QApplication::processEvents();
        return true;
    }
};

TEST_F(FrmIcoEdTest, TheMiddleButtonDrawsNothingAndTheBackgroundClearsTheReadouts) {
    EXPECT_EQ(window_.StatusText(StatusPanel::Zoom), "10:1");
    QTest::mouseClick(Grid(), Qt::MiddleButton, {}, QPoint(15, 25));
    QTest::mouseMove(Grid(), QPoint(15, 25));
    EXPECT_EQ(window_.StatusText(StatusPanel::Pixel), "Transparent");
    EXPECT_EQ(window_.StatusText(StatusPanel::Cell), "1 , 2");
    QTest::mouseMove(&window_, QPoint(340, 300));
    for (const StatusPanel panel : {StatusPanel::Hint, StatusPanel::Pixel, StatusPanel::Cell})
        EXPECT_EQ(window_.StatusText(panel), "");
}

TEST_F(FrmIcoEdTest, ClosingEndsTheStrokeAndAsksAboutIt) {
    QTest::mousePress(Grid(), Qt::LeftButton, {}, QPoint(5, 5));
    QTest::keyClick(&window_, Qt::Key_F4, Qt::AltModifier);
    // While it asks, nothing else is opened or closed.
    given_.boxes.whileShown = [this] {
        EXPECT_FALSE(Drop({QUrl("file:///icons/a.ico")}));
        window_.close();
        EXPECT_TRUE(window_.MayEndSession(true));
    };
    QApplication::processEvents();
    EXPECT_EQ(given_.boxes.shown.size(), 1U);
    EXPECT_TRUE(window_.isVisible()) << "Cancel keeps the window";
    EXPECT_TRUE(window_.MayEndSession(false));
    EXPECT_FALSE(window_.MayEndSession(true)) << "and the session";
    given_.boxes.answers = {services::Answer::No};
    window_.close();
    EXPECT_FALSE(window_.isVisible());
}

TEST_F(FrmIcoEdTest, WindowAndPreviewFollowTheDesktopsColours) {
    for (const auto& [desktop, own] :
         {std::pair{0x102030U, 0x102030U}, {0xFFFFFFU, 0xF0F0F0U}}) {  // white pixels would be lost
        QPalette colors;
        colors.setColor(QPalette::Window, desktop::ToColor(desktop));
        QApplication::setPalette(colors);
        QApplication::processEvents();
        EXPECT_EQ(Editor().Views().PicIcon.GetPixel(0, 0), own);
        EXPECT_EQ(Editor().Tools().PicTools().GetPixel(91, 65), own);
        EXPECT_EQ(window_.palette().color(QPalette::Window), desktop::ToColor(own));
    }
    QApplication::setPalette(QPalette());
}

TEST_F(FrmIcoEdTest, ADropOpensTheFirstFileAndGuardsTheGridForAMoment) {
    EXPECT_TRUE(Drop({QUrl("https://example.org/x.ico"), QUrl("file:///icons/a.ico"),
                      QUrl("file:///icons/b.ico")}));
    EXPECT_EQ(window_.windowTitle(), "KestrelIconEditor - a.ico");
    QTest::mouseClick(Grid(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_FALSE(Icon().Modified) << "the grid still ignores the mouse";
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window_.GridWidget().IgnoresMouse(); }, 2000));
}

}  // namespace
}  // namespace kestrel::windows
