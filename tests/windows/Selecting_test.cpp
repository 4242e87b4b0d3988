#include <QAbstractButton>
#include <QGroupBox>
#include <QMenu>
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
    given_.clipboard.Offer(gdi::Surface(3, 2));
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Enabled(), "+++++");
    for (const auto& [item, enabled] :
         {std::pair{"mnuMirrorOpts1", false}, {"mnuMirrorOpts2", true}})
        EXPECT_EQ(Item(item)->isEnabled(), enabled) << "of 3 x 2 pixels " << item;
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
    const auto press = [&](std::initializer_list<Qt::Key> keys, int times) {
        for (int i = 0; i < times; ++i)
            for (const Qt::Key key : keys)
                Key(key, i % 2 == 0 ? Qt::KeypadModifier : Qt::NoModifier);
    };
    press({Qt::Key_Left, Qt::Key_Up}, 5);
    EXPECT_EQ(Selected().Marquee(), (Corners{-30, -30, -10, -10})) << "also out of the grid";
    press({Qt::Key_Right, Qt::Key_Down}, 7);
    Key(Qt::Key_Tab);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Escape})
        QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_EQ(Selected().Marquee(), (Corners{40, 40, 60, 60})) << "those were for the toolbar";
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Selected().Exists());
    EXPECT_FALSE(Icon().IsTransparent(4, 4));
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
    const auto save = [this](const char* path) {
        Key(Qt::Key_Right);
        given_.desktop.choice = path;
        Key(Qt::Key_S, Qt::ControlModifier);
        return !Selected().Exists();
    };
    EXPECT_FALSE(save("")) << "cancelled";
    given_.files.writeError = {28, "No space left on device"};
    EXPECT_FALSE(save("/icons/new.ico")) << "failed";
    given_.files.writeError = {};
    EXPECT_TRUE(save("/icons/new.ico"));
    EXPECT_FALSE(Icon().Modified);
    Key(Qt::Key_O, Qt::ControlModifier);
    EXPECT_FALSE(Icon().IsTransparent(5, 2));
    EXPECT_TRUE(Icon().IsTransparent(2, 2));
}

TEST_F(SelectingTest, ALargePictureIsAskedAboutInBothLanguages) {
    const struct {
        Qt::Key key{};
        const char* click{};
        std::optional<Corners> pasted;
    } cases[] = {{Qt::Key_Return, nullptr, Corners{0, 0, 320, 320}},
                 {Qt::Key_Down, "cmdOK", Corners{0, 0, 320, 100}},
                 {Qt::Key_Tab, "cmdCancel", {}},
                 {Qt::Key_Escape, nullptr, {}}};
    given_.clipboard.Offer(gdi::Surface(33, 10, gdi::kBlack));
    for (const auto& c : cases) {
        Selected().DropSelection();
        QTimer::singleShot(0, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            QApplication::setActiveWindow(dialog);
            QTest::keyClick(dialog->focusWidget(), c.key);
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
