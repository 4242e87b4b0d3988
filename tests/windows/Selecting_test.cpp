#include <QAbstractButton>
#include <QGroupBox>
#include <QMenu>
#include <QScreen>
#include <QTimer>

#include "desktop/Text.h"
#include "tests/support/EditorTest.h"
#include "tests/windows/WindowTest.h"
#include "windows/FrmClipData.h"

namespace kestrel::windows {
namespace {

using editing::Corners;
using editing::ToolId;

class SelectingTest : public test::WindowTest {
  protected:
    SelectingTest() {
        QTest::mouseClick(Grid(), Qt::LeftButton, {}, QPoint(25, 25));
        Editor().Tools().SelectTool(ToolId::Selection);
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
    // Which of Cut, Copy, Paste, Paste Opaque and Delete can be chosen; the last but one stands in
    // the menu bar alone.
    std::string Enabled() {
        std::string state;
        for (const auto& [item, popupItem, button] :
             {std::array{"mnuEditOpts3", "mnuPopup2Opts0", "Cut"},
              {"mnuEditOpts4", "mnuPopup2Opts1", "Copy"},
              {"mnuEditOpts5", "mnuPopup2Opts2", "Paste"},
              {"mnuEditOpts6", "mnuPopup2Opts2", "Paste"},
              {"mnuEditOpts7", "mnuPopup2Opts3", "Delete"}}) {
            const bool enabled = Item(item)->isEnabled();
            state += enabled ? "+" : "-";
            EXPECT_EQ(window_.Toolbar1().Button(button)->isEnabled(), enabled);
            EXPECT_EQ(window_.Menus().SmartMenuXP2.Find(popupItem)->enabled, enabled);
        }
        return state;
    }
};

TEST_F(SelectingTest, CommandsAreEnabledWhenTheyCanDoSomething) {
    EXPECT_EQ(Enabled(), "-----");
    MarkCells();
    EXPECT_EQ(Enabled(), "++--+");
    given_.clipboard.Offer(gdi::Surface(2, 2));
    EXPECT_EQ(Enabled(), "+++++");
    Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Enabled(), "--++-");
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Enabled(), "+++++");
    window_.Menus().SmartMenuXP1.onClick("mnuEditOpts6");
    EXPECT_EQ(Selected().PicSelMask().GetPixel(0, 0), gdi::kBlack) << "the white is opaque";
    given_.clipboard.Offer({});
    QTest::mouseClick(window_.Toolbar1().Button("Undo"), Qt::LeftButton);
    EXPECT_EQ(Enabled(), "-----");
    // The clipboard changes while a pencil draws: that is no entry of the history.
    Editor().Tools().SelectTool(ToolId::Pencil);
    const std::size_t entries = Editor().History().UndoCount();
    QTest::mousePress(Grid(), Qt::LeftButton, {}, QPoint(155, 155));
    given_.clipboard.Offer(gdi::Surface(2, 2));
    QTest::mouseRelease(Grid(), Qt::LeftButton, {}, QPoint(155, 155));
    EXPECT_EQ(Editor().History().UndoCount(), entries + 1);
}

TEST_F(SelectingTest, ArrowKeysMoveItAndEscapeDropsIt) {
    MarkCells();
    Key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_TRUE(Selected().SelectionMarked());
    Key(Qt::Key_Right);
    EXPECT_TRUE(Item("mnuEditOpts0")->isEnabled());
    for (int i = 0; i < 6; ++i) {
        Key(Qt::Key_Left, i % 2 == 0 ? Qt::KeypadModifier : Qt::NoModifier);
        Key(Qt::Key_Up);
    }
    EXPECT_EQ(Selected().Marquee(), (Corners{-30, -40, -10, -20})) << "also out of the grid";
    for (int i = 0; i < 7; ++i) {
        Key(Qt::Key_Right);
        Key(Qt::Key_Down);
    }
    Key(Qt::Key_Tab);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Escape})
        QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_EQ(Selected().Marquee(), (Corners{40, 30, 60, 50})) << "those were for the toolbar";
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Selected().Exists());
    EXPECT_FALSE(Icon().IsTransparent(4, 3));
    EXPECT_EQ(Enabled(), "-----");
    EXPECT_TRUE(ScreenIsFresh());
}

TEST_F(SelectingTest, TheWindowsBackgroundDropsIt) {
    // Left of the grid and under the tools; a label, the status bar and the preview.
    for (const auto& [at, drops] : {std::pair{QPoint(3, 200), true},
                                    {QPoint(450, 145), true},
                                    {QPoint(400, 75), false},
                                    {QPoint(20, 420), false},
                                    {QPoint(360, 80), false}}) {
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            Editor().SelectAll();
            QTest::mouseClick(window_.windowHandle(), button, {}, at);
            EXPECT_EQ(Selected().Exists(), !drops) << at.x() << "," << at.y();
        }
    }
    // Let go outside the window.
    QTest::mousePress(&window_, Qt::LeftButton, {}, QPoint(3, 200));
    QTest::mouseRelease(&window_, Qt::LeftButton, {}, QPoint(-30, 200));
    EXPECT_TRUE(Selected().Exists());
}

TEST_F(SelectingTest, ARightClickOpensThePopupAndItsItemsWork) {
    Editor().SelectAll();
    QTest::mouseMove(Grid(), QPoint(55, 55));
    EXPECT_EQ(Grid()->cursor().shape(), Qt::SizeAllCursor);
    QTest::mouseClick(Grid(), Qt::RightButton, {}, QPoint(35, 35));
    QMenu* popup = window_.EditingPopup();
    ASSERT_TRUE(popup->isVisible());
    QTest::keyClick(popup, Qt::Key_D);
    EXPECT_FALSE(popup->isVisible());
    EXPECT_TRUE(Icon().IsTransparent(2, 2));
    EXPECT_EQ(Grid()->cursor().shape(), Qt::CrossCursor);
}

TEST_F(SelectingTest, WhatFloatsIsSaved) {
    MarkCells();
    Key(Qt::Key_Right);
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(Selected().SelectionFloating()) << "the dialog was cancelled";
    given_.desktop.choice = "/icons/new.ico";
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(Selected().Exists());
    EXPECT_FALSE(Icon().Modified);
    MarkCells();
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(Selected().SelectionMarked());
    Key(Qt::Key_Right);
    given_.files.writeError = {28, "No space left on device"};
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(Selected().SelectionFloating()) << "nothing was saved";
    Key(Qt::Key_Z, Qt::ControlModifier);
    Icon().Modified = false;
    Key(Qt::Key_O, Qt::ControlModifier);
    EXPECT_FALSE(Icon().IsTransparent(3, 2));
    EXPECT_TRUE(Icon().IsTransparent(2, 2));
}

TEST_F(SelectingTest, ALargePictureIsAskedAboutInBothLanguages) {
    const struct {
        Qt::KeyboardModifiers modifiers;
        Qt::Key key{};
        const char* click{};
        std::optional<Corners> pasted;
    } cases[] = {
        {{}, Qt::Key_Return, nullptr, Corners{0, 0, 320, 320}},
        {{}, Qt::Key_Down, "cmdOK", Corners{0, 0, 320, 100}},
        {{}, Qt::Key_Tab, "cmdCancel", {}},
        {{}, Qt::Key_Escape, nullptr, {}},
        {Qt::AltModifier, Qt::Key_F4, nullptr, {}},
    };
    given_.clipboard.Offer(gdi::Surface(33, 10, gdi::kBlack));
    for (const auto& c : cases) {
        Selected().DropSelection();
        QTimer::singleShot(0, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->parentWidget(), &window_);
            QApplication::setActiveWindow(dialog);
            QTest::keyClick(dialog->focusWidget(), c.key, c.modifiers);
            if (c.click != nullptr)
                QTest::mouseClick(dialog->findChild<QWidget*>(c.click), Qt::LeftButton);
        });
        QApplication::setActiveWindow(&window_);
        Key(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Selected().Exists() ? std::optional(Selected().Marquee()) : std::nullopt,
                  c.pasted);
    }
    EXPECT_TRUE(given_.boxes.shown.empty());
    for (const auto& [code, texts] :
         {std::pair{i18n::kEnglish,
                    QStringList{"KestrelIconEditor - Paste", "What would you like to do?",
                                "Shrink to fit.", "Shrink to fit keeping aspect.", "OK", "Cancel"}},
          {i18n::kChinese, QStringList{"KestrelIconEditor - 粘贴", "选择方式", "收缩尺寸",
                                       "保持原比例", "确定", "取消"}}}) {
        i18n::SetUiLanguage(code);
        FrmClipData dialog(&window_, {48, 48});
        const QRect screen = window_.screen()->geometry();
        EXPECT_EQ(dialog.pos(), QPoint((screen.width() - dialog.width()) / 2,
                                       (screen.height() - dialog.height()) / 3));
        QStringList shown{dialog.windowTitle(), dialog.findChild<QGroupBox*>("Frame1")->title()};
        for (const char* name : {"Opt0", "Opt1", "cmdOK", "cmdCancel"})
            shown << dialog.findChild<QAbstractButton*>(name)->text();
        EXPECT_EQ(shown, texts);
        // Two lines are printed above the frame.
        for (const int top : {8, 21}) {
            const QImage line = dialog.grab(QRect(8, top + 2, 200, 9)).toImage();
            QImage blank = line;
            blank.fill(dialog.palette().color(QPalette::Window));
            EXPECT_NE(line, blank) << code << top;
        }
    }
}

}  // namespace
}  // namespace kestrel::windows
