#include "app/FrmIcoEd.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenuBar>
#include <QMimeData>
#include <QtTest/QTest>

#include "document/IcoFile.h"
#include "i18n/Language.h"
#include "platform/qt/Pictures.h"
#include "tests/support/Services.h"

namespace kestrel::app {
namespace {

using dialogs::Answer;
using editing::StatusPanel;

class FrmIcoEdTest : public testing::Test {
  protected:
    FrmIcoEdTest() {
        const document::IcoBytes empty = document::EncodeIco({});
        files_.contents["/icons/a.ico"] = {empty.begin(), empty.end()};
        window_.Form_Load("");
        window_.show();
        QApplication::processEvents();
    }
    document::IconDocument& Icon() { return window_.OpenEditor().Document(); }
    qt::SurfaceWidget* Grid() { return &window_.GridWidget(); }
    void Drop(const QList<QUrl>& urls) {
        QMimeData files;
        files.setUrls(urls);
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction | Qt::MoveAction, &files,
                              Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(&window_, &enter);
        ASSERT_TRUE(enter.isAccepted());
        ASSERT_EQ(enter.proposedAction(), Qt::MoveAction);
        QDropEvent drop(QPointF(50, 50), Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton,
                        Qt::ShiftModifier);
        QApplication::sendEvent(&window_, &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "a moved file would be deleted";
        QApplication::processEvents();
    }

    test::FakeServices services_;
    test::ScriptedBoxes& boxes_ = services_.boxes;
    test::ScriptedDialogs& cdb_ = services_.cdb;
    test::MemoryFiles& files_ = services_.files;
    FrmIcoEd window_{services_.Given()};
};

TEST_F(FrmIcoEdTest, StandsWhereAndAsItWasDesigned) {
    EXPECT_EQ(window_.size(), QSize(565, 432));
    EXPECT_EQ(window_.windowTitle(), "KestrelIconEditor - Untitled");
    const QRect screen = window_.screen()->geometry();
    EXPECT_EQ(window_.pos(), QPoint((screen.width() - 571) / 2, (screen.height() - 457) / 3));
    EXPECT_EQ(Grid()->geometry(), QRect(12, 69, 321, 321));
    EXPECT_EQ(window_.childAt(350, 69)->geometry(), QRect(350, 69, 32, 32));
    EXPECT_EQ(window_.childAt(393, 72)->pos(), QPoint(392, 70));
    EXPECT_EQ(window_.StatusText(StatusPanel::Zoom), "10:1");
    EXPECT_FALSE(Icon().Modified);
}

TEST_F(FrmIcoEdTest, PencilPaintsByRealMouseEventsAndTheWidgetShowsIt) {
    QTest::mousePress(Grid(), Qt::LeftButton, {}, QPoint(25, 35));
    QTest::mouseMove(Grid(), QPoint(35, 35));
    QTest::mouseRelease(Grid(), Qt::LeftButton, {}, QPoint(35, 35));
    QTest::mouseClick(Grid(), Qt::RightButton, {}, QPoint(105, 5));
    QTest::mouseClick(Grid(), Qt::MiddleButton, {}, QPoint(205, 5));
    EXPECT_FALSE(Icon().IsTransparent(2, 3));
    EXPECT_EQ(Icon().PicImage.GetPixel(10, 0), gdi::kWhite);
    EXPECT_TRUE(Icon().IsTransparent(20, 0));
    EXPECT_TRUE(Icon().Modified);
    const QImage shown = Grid()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const gdi::Surface& grid = window_.OpenEditor().Views().PicMain;
    EXPECT_EQ(shown, qt::ToImage(grid, grid.Bounds()));
    EXPECT_EQ(shown.pixelColor(25, 35), QColor(Qt::black));
    EXPECT_EQ(shown.pixelColor(105, 5), QColor(Qt::white));
}

TEST_F(FrmIcoEdTest, TheBackgroundClearsTheReadouts) {
    QTest::mouseMove(Grid(), QPoint(15, 25));
    EXPECT_EQ(window_.StatusText(StatusPanel::Pixel), "Transparent");
    EXPECT_EQ(window_.StatusText(StatusPanel::Cell), "1 , 2");
    QTest::mouseMove(&window_, QPoint(340, 300));
    for (const StatusPanel panel : {StatusPanel::Hint, StatusPanel::Pixel, StatusPanel::Cell}) {
        EXPECT_EQ(window_.StatusText(panel), "");
    }
    EXPECT_EQ(window_.StatusText(StatusPanel::Zoom), "10:1");
}

TEST_F(FrmIcoEdTest, ShortcutsReachTheirCommands) {
    QApplication::setActiveWindow(&window_);
    QTest::keyClick(&window_, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(cdb_.opens.size(), 1U);
    QTest::keyClick(&window_, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(cdb_.saves.size(), 1U) << "an untitled icon asks for its name";
    cdb_.choice = "/icons/b.ico";
    QTest::keyClick(&window_, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(files_.contents.count("/icons/b.ico"), 1U);
    QTest::keyClick(&window_, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(cdb_.saves.size(), 2U) << "no dialog for an icon with a file";
    QTest::keyClick(&window_, Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(Icon().IsUntitled());
    QTest::keyClick(&window_, Qt::Key_F4, Qt::AltModifier);
    QApplication::processEvents();
    EXPECT_FALSE(window_.isVisible());
}

TEST_F(FrmIcoEdTest, ClosingAsksAboutUnsavedChanges) {
    QTest::mouseClick(Grid(), Qt::LeftButton, {}, QPoint(5, 5));
    window_.close();
    EXPECT_TRUE(window_.isVisible()) << "Cancel keeps the window";
    boxes_.answers = {Answer::No};
    window_.close();
    EXPECT_FALSE(window_.isVisible());
}

TEST_F(FrmIcoEdTest, ACommandEndsTheStrokeThatItInterrupts) {
    QTest::mousePress(Grid(), Qt::LeftButton, {}, QPoint(25, 35));
    QTest::keyClick(&window_, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(boxes_.shown.size(), 1U) << "the stroke is a change to be saved";
    EXPECT_FALSE(Icon().IsTransparent(2, 3)) << "the question was answered Cancel";
    EXPECT_EQ(window_.OpenEditor().History().UndoCount(), 2U);
}

TEST_F(FrmIcoEdTest, CommandsWaitUntilADialogIsAnswered) {
    QTest::mouseClick(Grid(), Qt::LeftButton, {}, QPoint(5, 5));
    boxes_.whileShown = [this] {
        Drop({QUrl::fromLocalFile(QStringLiteral("/icons/a.ico"))});
        window_.close();
    };
    window_.close();
    EXPECT_EQ(boxes_.shown.size(), 1U);
    EXPECT_TRUE(Icon().IsUntitled());
    EXPECT_TRUE(window_.isVisible());
}

TEST_F(FrmIcoEdTest, ThePreviewFollowsTheDesktopsColours) {
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x30, 0x20, 0x10));
    QApplication::setPalette(dark);
    QApplication::processEvents();
    EXPECT_EQ(window_.OpenEditor().Views().PicIcon.GetPixel(0, 0), 0x102030U);
    dark.setColor(QPalette::Window, Qt::white);
    QApplication::setPalette(dark);
    QApplication::processEvents();
    EXPECT_EQ(window_.OpenEditor().Views().PicIcon.GetPixel(0, 0), 0xF0F0F0U);
    EXPECT_EQ(window_.palette().color(QPalette::Window), QColor(0xF0, 0xF0, 0xF0));
    dark.setColor(QPalette::Window, QColor(0x30, 0x20, 0x10));
    QApplication::setPalette(dark);
    QApplication::processEvents();
    EXPECT_EQ(window_.palette().color(QPalette::Window), QColor(0x30, 0x20, 0x10));
    EXPECT_EQ(window_.OpenEditor().Tools().PicTools().GetPixel(91, 65), 0x102030U);
    QApplication::setPalette(QPalette());
}

TEST_F(FrmIcoEdTest, ADropOpensTheFirstFileAndGuardsTheGridForAMoment) {
    Drop({QUrl(QStringLiteral("https://example.org/x.ico")),
          QUrl::fromLocalFile(QStringLiteral("/icons/a.ico")),
          QUrl::fromLocalFile(QStringLiteral("/icons/b.ico"))});
    EXPECT_EQ(window_.windowTitle(), "KestrelIconEditor - a.ico");
    QTest::mouseClick(Grid(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_FALSE(Icon().Modified) << "the grid still ignores the mouse";
    EXPECT_TRUE(QTest::qWaitFor([this] { return Grid()->isEnabled(); }, 2000));
    QTest::mouseClick(Grid(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_TRUE(Icon().Modified);
    EXPECT_TRUE(window_.BarAction("mnuEditOpts0")->isEnabled());
    boxes_.answers = {Answer::No};
    Drop({QUrl::fromLocalFile(QStringLiteral("/icons/a.ico"))});
    EXPECT_FALSE(window_.BarAction("mnuEditOpts0")->isEnabled()) << "nothing to undo in a new file";
}

}  // namespace
}  // namespace kestrel::app
