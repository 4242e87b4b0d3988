#include <QAccessible>
#include <QTimer>

#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

using editing::Button;
using editing::ToolId;

class KeyboardTest : public test::WindowTest {
  protected:
    // To whatever has the keyboard.
    static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static void Keys(std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys)
            Key(key);
    }
    ToolId Tool() { return Editor().Tools().CurrentTool(); }
    // What a screen reader speaks when the keyboard is there.
    static std::string Spoken() {
        QAccessibleInterface* control =
            QAccessible::queryAccessibleInterface(QApplication::focusWidget());
        if (QAccessibleInterface* cell = control->focusChild(); cell != nullptr) control = cell;
        return control->text(QAccessible::Name).toStdString();
    }
};

TEST_F(KeyboardTest, LettersTakeToolsAndTurnTheWells) {
    for (const auto& [key, shift, tool] : {std::tuple{Qt::Key_M, false, ToolId::Selection},
                                           {Qt::Key_B, false, ToolId::Pencil},
                                           {Qt::Key_E, false, ToolId::ColorEraser},
                                           {Qt::Key_I, false, ToolId::ColorPicker},
                                           {Qt::Key_G, false, ToolId::FloodFill},
                                           {Qt::Key_L, false, ToolId::Line},
                                           {Qt::Key_U, false, ToolId::Rectangle},
                                           {Qt::Key_U, false, ToolId::SolidRectangle},
                                           {Qt::Key_U, false, ToolId::FilledRectangle},
                                           {Qt::Key_U, true, ToolId::Ellipse},
                                           {Qt::Key_U, true, ToolId::SolidEllipse},
                                           {Qt::Key_U, true, ToolId::FilledEllipse},
                                           {Qt::Key_U, true, ToolId::Ellipse},
                                           {Qt::Key_U, false, ToolId::Rectangle},
                                           {Qt::Key_M, true, ToolId::Rectangle}}) {
        Key(key, shift ? Qt::ShiftModifier : Qt::NoModifier);
        EXPECT_EQ(Tool(), tool);
    }
    Key(Qt::Key_X);
    EXPECT_EQ(Editor().Wells().PenColor(Button::Left), gdi::kWhite);
    Editor().Wells().SetTransparent(Button::Right);
    Key(Qt::Key_D);
    EXPECT_EQ(Editor().Wells().PenColor(Button::Left), gdi::kBlack);
    EXPECT_FALSE(Editor().Wells().IsTransparent(Button::Right));
    // Select All is not taken back, nor a drag disturbed.
    Editor().SelectAll();
    Key(Qt::Key_M);
    EXPECT_TRUE(Editor().Selected().Exists());
    QTest::mousePress(window_.windowHandle(), Qt::LeftButton, {}, QPoint(50, 100));
    Key(Qt::Key_B);
    EXPECT_EQ(Tool(), ToolId::Selection);
    QTest::mouseRelease(window_.windowHandle(), Qt::LeftButton, {}, QPoint(50, 100));
}

TEST_F(KeyboardTest, TabLeadsThroughThePanesAndKeysUseThem) {
    std::string stops;
    do {
        stops += QApplication::focusWidget()->accessibleName().toStdString() + "; ";
        Key(Qt::Key_Tab);
    } while (QApplication::focusWidget() != Grid());
    EXPECT_EQ(stops,
              "Editing grid; Tools; Foreground Color: black; Color palette; ; New Icon; Open; "
              "New icon library; Save; Capture Image; Screen Zoom; Help; ");
    Keys({Qt::Key_Tab, Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up});
    EXPECT_EQ(Tool(), ToolId::Pencil);
    EXPECT_EQ(Spoken() + Hint(), "LineDraws a straight line");
    Key(Qt::Key_Return);
    EXPECT_EQ(Tool(), ToolId::Line);
    Keys({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Left});
    EXPECT_EQ(Spoken(), "cyan") << "in the last row";
    Key(Qt::Key_Space);
    Key(Qt::Key_Left);
    Key(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_TRUE(ScreenIsFresh());
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Spoken(), "Foreground Color: cyan");
    Keys({Qt::Key_Left, Qt::Key_Right});
    EXPECT_EQ(Spoken(), "Background Color: magenta");
    Keys({Qt::Key_Right, Qt::Key_Space, Qt::Key_Left});
    EXPECT_EQ(Spoken() + Hint(), "Background Color: cyanBackground Color") << "exchanged";
    Key(Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), Grid());
}

TEST_F(KeyboardTest, TheCellCursorDrawsAndSpeaks) {
    Keys({Qt::Key_Right, Qt::Key_Down});
    EXPECT_EQ(Spoken(), "1, 1: Transparent");
    EXPECT_EQ(window_.StatusText(editing::StatusPanel::Cell), "1 , 1");
    QTest::keyPress(Grid(), Qt::Key_Space);
    QTest::mouseMove(Grid(), QPoint(200, 200));
    Key(Qt::Key_Right);
    QTest::keyRelease(Grid(), Qt::Key_Space);
    Item("mnuLanguageOpts0")->trigger();
    EXPECT_EQ(Spoken(), "2, 1: 黑色") << "no pushed mouse ends the stroke";
    EXPECT_EQ(Control("PicBackColor")->accessibleName(), "设置背景色: 白色");
    Key(Qt::Key_U);
    EXPECT_EQ(Spoken(), "矩形工具; 2, 1: 黑色");
    EXPECT_TRUE(Icon().IsTransparent(20, 20));
    EXPECT_TRUE(ScreenIsFresh()) << "the cursor";
    // A selection has the arrow keys.
    Editor().SelectAll();
    Key(Qt::Key_Right);
    EXPECT_EQ(Editor().Selected().Marquee().x1, 10);
    EXPECT_EQ(Spoken(), "2, 1: 黑色") << "what floats there";
    Keys({Qt::Key_Escape, Qt::Key_Down});
    EXPECT_EQ(Spoken(), "2, 2: 透明");
    // The mouse takes over where it is, and hands back there.
    QTest::mouseClick(Grid(), Qt::LeftButton, {}, QPoint(105, 115));
    Key(Qt::Key_Left);
    EXPECT_EQ(Spoken(), "9, 11: 透明");
}

// All that a screen reader finds below a control without a name, but mere containers and labels
// that are empty just now.
QStringList Nameless(QAccessibleInterface* control) {
    static const QSet<int> kSilent{QAccessible::Client, QAccessible::StaticText,
                                   QAccessible::Grouping, QAccessible::Border,
                                   QAccessible::Separator};
    QStringList nameless;
    if (control == nullptr || control->state().invisible) return nameless;
    if (control->text(QAccessible::Name).trimmed().isEmpty() && !kSilent.contains(control->role()))
        nameless << QStringLiteral("%1 %2")
                        .arg(control->role())
                        .arg(control->object() == nullptr ? QString()
                                                          : control->object()->objectName());
    for (int i = 0; i < control->childCount(); ++i)
        nameless << Nameless(control->child(i));
    return nameless;
}

TEST_F(KeyboardTest, NoControlOfAnyWindowLacksAName) {
    given_.clipboard.Offer(gdi::Surface(33, 10));
    for (const char* language : {"mnuLanguageOpts1", "mnuLanguageOpts0"}) {
        Item(language)->trigger();
        for (const char* command :
             {"mnuAbout", "mnuExtract", "mnuEditOpts5", "mnuImageOpts0", "mnuToolsOpts1",
              "mnuGamma", "mnuToolsOpts4", "mnuToolsOpts3"}) {
            QStringList nameless;
            const auto look = [&nameless] {
                for (QWidget* window : QApplication::topLevelWidgets())
                    nameless << Nameless(QAccessible::queryAccessibleInterface(window));
                if (QWidget* dialog = QApplication::activeModalWidget()) dialog->close();
            };
            QTimer::singleShot(0, look);
            Item(command)->trigger();
            QApplication::processEvents();
            EXPECT_EQ(nameless.join(", ").toStdString(), "") << command;
        }
    }
}

}  // namespace
}  // namespace kestrel::windows
