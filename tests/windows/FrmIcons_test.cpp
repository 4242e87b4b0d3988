#include "windows/FrmIcons.h"

#include <QTimer>

#include "desktop/Pictures.h"
#include "tests/support/IconFiles.h"
#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

using services::Answer;

class FrmIconsTest : public test::WindowTest {
  protected:
    FrmIconsTest() {
        given_.files.contents["/program/system/Shell32.dll"] = test::LibraryOf(51);
        given_.files.contents["/50.dll"] = test::LibraryOf(50);
        given_.files.contents["/damaged.png"] = test::WidePng();
        given_.files.contents["/damaged.png"].resize(60);
        given_.files.contents["/text.dll"] = {'h', 'e', 'l', 'l', 'o'};
    }
    // Chooses the command and does this in its dialog, which is closed if it is still open.
    void Extract(const std::function<void()>& act) {
        QTimer::singleShot(0, &window_, [&] {
            dialog_ = QApplication::activeModalWidget();
            if (dialog_ == nullptr) return;
            grid_ = dialog_->findChild<QWidget*>("PicIcons");
            act();
            dialog_->close();
        });
        window_.Toolbar1().Button("Extract")->click();
        QApplication::processEvents();
    }
    void Press(Qt::Key key) { QTest::keyClick(dialog_->focusWidget(), key); }
    void Browse(const char* choice) {
        given_.desktop.choice = choice;
        auto* button = dialog_->findChild<QPushButton*>("CmdBrowse");
        button->setFocus();
        button->click();
    }
    std::string Info() { return dialog_->findChild<QLabel*>("lblInfo")->text().toStdString(); }
    // Of the part of the grid that is seen.
    gdi::COLORREF At(int x, int y) {
        return desktop::ToColorRef(grid_->parentWidget()->grab().toImage().pixelColor(x, y));
    }

    QWidget* dialog_ = nullptr;
    QWidget* grid_ = nullptr;
};

TEST_F(FrmIconsTest, MouseWheelAndKeysMoveGridAndBox) {
    Extract([&] {
        auto* bar = dialog_->findChild<QScrollBar*>("Vsb");
        EXPECT_EQ(bar->maximum(), 38);
        EXPECT_TRUE(At(1, 1) == gdi::kBlack && At(10, 10) == test::ColorOf(0));
        QWheelEvent turned({5, 5}, {5, 5}, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(bar, &turned);
        EXPECT_EQ(At(5, 157), test::ColorOf(50));
        QTest::mouseClick(grid_, Qt::LeftButton, {}, {20, 30});
        EXPECT_EQ(Info(), "Icon No 1 Selected.") << "out of view";
        QTest::mouseClick(grid_, Qt::LeftButton, {}, {20, 40});
        EXPECT_EQ(Info(), "Icon No. 11 Selected.");
        EXPECT_EQ(grid_->accessibleName(), "Icon 11 of 51");
        Press(Qt::Key_Up);
        EXPECT_EQ(bar->value(), 0);
        EXPECT_TRUE(At(1, 1) == gdi::kBlack && At(1, 39) == gdi::kWhite);
        EXPECT_TRUE(ScreenIsFresh(*dialog_));
        Press(Qt::Key_Right);
        EXPECT_TRUE(ScreenIsFresh(*dialog_));
        Browse("/50.dll");
        EXPECT_EQ(dialog_->windowTitle(), "KestrelIconEditor - 50.dll - 50 Icons");
        EXPECT_EQ(Info(), "Icon No. 1 Selected.");
        EXPECT_FALSE(bar->isEnabled());
    });
    EXPECT_FALSE(Icon().Modified) << "cancelled";
}

TEST_F(FrmIconsTest, TheIconTakenIsANewDocument) {
    Editor().EditIcon(editing::Leaves::Entry).PaintCell(31, 31, gdi::kWhite);
    given_.boxes.answers = {Answer::Cancel, Answer::Yes};  // and no file is chosen to save in
    for (int i = 0; i < 2; ++i)
        Extract([] { ADD_FAILURE() << "the icon was not saved"; });
    const auto take = [&](gdi::COLORREF color, const std::function<void()>& act) {
        given_.boxes.answers = {Answer::No};
        Extract(act);
        EXPECT_EQ(Icon().PicImage().GetPixel(31, 31), color);
        EXPECT_TRUE(Icon().IsTransparent(0, 0) && Icon().IsUntitled() && Icon().Modified);
        EXPECT_FALSE(Editor().CanUndo());
        EXPECT_EQ(window_.windowTitle(), "KestrelIconEditor - Untitled");
    };
    take(test::ColorOf(11), [&] {
        for (const int x : {385, 50}) {  // the margin, and an icon
            QTest::mouseDClick(grid_, Qt::LeftButton, {}, {x, 50});
            QTest::mouseRelease(grid_, Qt::LeftButton, {}, {x, 50});
        }
    });
    take(test::ColorOf(1),
         [&] { Browse("/text.dll"), Press(Qt::Key_Right), Press(Qt::Key_Return); });
    take(gdi::kBlack, [&] { Browse("/damaged.png"), Press(Qt::Key_Return); });
    EXPECT_TRUE(Icon().IsTransparent(31, 31)) << "nothing could be decoded";
    given_.files.contents.erase("/program/system/Shell32.dll");
    take(test::ColorOf(10), [&] {
        Press(Qt::Key_Return);
        EXPECT_TRUE(dialog_->isVisible() && At(1, 1) == gdi::kWhite) << "there is nothing to take";
        Browse("/50.dll"), Press(Qt::Key_Down), Press(Qt::Key_Return);
    });
}

}  // namespace
}  // namespace kestrel::windows
