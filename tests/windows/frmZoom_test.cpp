#include "windows/frmZoom.h"

#include "desktop/Pictures.h"
#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

class FrmZoomTest : public test::WindowTest {
  protected:
    FrmZoomTest() { given_.screen.shown = gdi::Surface(640, 480, kColor); }
    // The magnifier, opened or brought to the front by the toolbar.
    frmZoom* Open() {
        window_.Toolbar1().Button("ScreenZoom")->click();
        QApplication::processEvents();
        frmZoom* found = nullptr;
        for (QWidget* each : QApplication::topLevelWidgets()) {
            if (auto* zoom = dynamic_cast<frmZoom*>(each)) {
                EXPECT_EQ(found, nullptr) << "there is one";
                found = zoom;
            }
        }
        if (found != nullptr) QApplication::setActiveWindow(found);
        return found;
    }
    std::string Ratio() { return window_.StatusText(editing::StatusPanel::Zoom); }
    std::string Setting(const char* key) {
        return given_.settings.ReadSetting("Settings", key, "none");
    }
    static gdi::COLORREF Middle(const frmZoom& zoom) {
        const QImage picture = zoom.findChild<QWidget*>("picZoom")->grab().toImage();
        return desktop::ToColorRef(picture.pixelColor(picture.rect().center()));
    }
    static bool Shows(const frmZoom& zoom, gdi::COLORREF color) {
        return QTest::qWaitFor([&] { return Middle(zoom) == color; }, 1000);
    }

    static constexpr gdi::COLORREF kColor = 0x604020;
    static constexpr gdi::COLORREF kOther = 0x204060;
};

TEST_F(FrmZoomTest, ShowsTheScreenUntilItRestsOrIsMinimised) {
    EXPECT_EQ(Setting("Zoom"), "none");
    frmZoom* zoom = Open();
    given_.screen.pointer = {320, 240};
    EXPECT_TRUE(Shows(*zoom, kColor));
    EXPECT_EQ(Open(), zoom);
    const auto change = [&](gdi::COLORREF color) {
        given_.screen.shown = gdi::Surface(640, 480, color);
        QTest::qWait(350);
    };
    zoom->Rest(true);
    change(kOther);
    EXPECT_EQ(Middle(*zoom), kColor);
    zoom->Rest(false);
    EXPECT_TRUE(Shows(*zoom, kOther));
    zoom->showMinimized();
    EXPECT_EQ(Ratio(), "10:1");
    change(kColor);
    EXPECT_EQ(Middle(*zoom), kOther);
    EXPECT_EQ(Open(), zoom);
    EXPECT_TRUE(Shows(*zoom, kColor));
    EXPECT_EQ(Ratio(), "200:1");
}

TEST_F(FrmZoomTest, TakesWhatIsTypedAndKeepsItWhenClosed) {
    frmZoom* zoom = Open();
    auto* box = zoom->findChild<QLineEdit*>("txtZoom");
    auto* bar = zoom->findChild<QScrollBar*>("hsbZoom");
    QWidget* picture = zoom->findChild<QWidget*>("picZoom");
    EXPECT_EQ(box->text(), "200%");
    box->setFocus();
    EXPECT_EQ(box->selectedText(), "200");
    QTest::keyClicks(box, "7a0 ");
    EXPECT_EQ(box->text(), "70");
    EXPECT_EQ(given_.application.beeps, 2);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(box->selectedText(), "70") << "taken and selected again";
    EXPECT_TRUE(box->hasFocus());
    EXPECT_EQ(Ratio(), "70:1");
    QTest::keyClicks(box, "5000");
    picture->setFocus();
    EXPECT_EQ(std::pair(box->text(), bar->value()), std::pair(QString("1000%"), 1000));
    bar->setFocus();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_PageDown})
        QTest::keyClick(zoom->focusWidget(), key);
    EXPECT_EQ(std::pair(box->text(), bar->value()), std::pair(QString("989%"), 989));
    EXPECT_TRUE(picture->hasFocus());
    zoom->findChild<QToolButton*>("chkGrid")->click();

    // Its end is not the program's, also while no other window is seen.
    window_.hide();
    bool ended = false;
    QObject::connect(qApp, &QGuiApplication::lastWindowClosed, zoom, [&] { ended = true; });
    QTest::keyClicks(box, "55");
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_FALSE(zoom->isVisible() || ended);
    EXPECT_EQ(Ratio(), "10:1");
    EXPECT_EQ(Setting("Zoom") + Setting("Grid") + Setting("OnTop"), "989TrueFalse");
    EXPECT_EQ(Open()->findChild<QScrollBar*>("hsbZoom")->value(), 989);
    given_.settings.WriteSetting("Settings", "Zoom", "1");
    window_.close();
    EXPECT_EQ(Setting("Zoom"), "989") << "the main window takes it along";
}

TEST_F(FrmZoomTest, SpeaksTheLanguageInForceAndSaysWhereItSeesNothing) {
    const auto texts = [](const frmZoom& zoom) {
        QStringList all(zoom.windowTitle());
        for (const char* name : {"chkGrid", "chkOnTop"})
            all << zoom.findChild<QWidget*>(name)->toolTip();
        for (const char* name : {"chkGrid", "chkOnTop", "txtZoom", "hsbZoom", "picZoom"})
            EXPECT_FALSE(zoom.findChild<QWidget*>(name)->accessibleName().isEmpty()) << name;
        return all.join('|');
    };
    Item("mnuLanguageOpts0")->trigger();
    frmZoom* zoom = Open();
    EXPECT_EQ(texts(*zoom), "KestrelIconEditor - 屏幕放大器|网格|置顶");
    Item("mnuLanguageOpts1")->trigger();
    EXPECT_EQ(texts(*zoom), "KestrelIconEditor - Screen Zoom|GridOrNot|OnTopOrNot");
    zoom->ShowCaptions("XYZ");
    EXPECT_EQ(texts(*zoom), "KestrelIconEditor - Screen Zoom|GridOrNot|OnTopOrNot");
    zoom->close();
    QCoreApplication::sendPostedEvents(zoom, QEvent::DeferredDelete);
    given_.screen.seen = false;
    EXPECT_EQ(Open(), nullptr);
    ASSERT_EQ(given_.boxes.shown.size(), 1U);
    EXPECT_TRUE(given_.boxes.shown[0].text.ends_with("Unable to magnify the screen."));
}

TEST_F(FrmZoomTest, APlaceThatNoMonitorShowsIsLeft) {
    const QRect screen = window_.screen()->availableGeometry();
    for (const char* stored : {"0,999999,3000,3000,False", "999999,0,3000,3000,False"}) {
        given_.settings.WriteSetting("Positions", "frmZoom", stored);
        frmZoom* zoom = Open();
        EXPECT_TRUE(screen.contains(zoom->geometry())) << stored;
        zoom->close();
        QCoreApplication::sendPostedEvents(zoom, QEvent::DeferredDelete);
    }
}

}  // namespace
}  // namespace kestrel::windows
