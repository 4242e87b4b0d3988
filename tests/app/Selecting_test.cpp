#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QMenu>
#include <QScreen>
#include <QTimer>
#include <QtTest/QTest>

#include "app/FrmClipData.h"
#include "app/FrmIcoEd.h"
#include "i18n/Messages.h"
#include "platform/qt/Text.h"
#include "tests/support/EditorTest.h"
#include "tests/support/Services.h"

namespace kestrel::app {
namespace {

using editing::Corners;
using editing::PasteFit;
using editing::ToolId;

class SelectingTest : public testing::Test {
  protected:
    SelectingTest() {
        window_.Form_Load("");
        window_.show();
        QApplication::setActiveWindow(&window_);
        QApplication::processEvents();
        QTest::mouseClick(&window_.GridWidget(), Qt::LeftButton, {}, QPoint(25, 25));
        Editor().Tools().SelectTool(ToolId::Selection);
    }
    void TearDown() override { i18n::SetUiLanguage(i18n::kEnglish); }

    editing::Editor& Editor() { return window_.OpenEditor(); }
    editing::Selection& Selected() { return Editor().Selected(); }
    void MarkCells(QPoint first, QPoint last) {
        QTest::mousePress(&window_.GridWidget(), Qt::LeftButton, {}, first * 10);
        QTest::mouseMove(&window_.GridWidget(), last * 10);
        QTest::mouseRelease(&window_.GridWidget(), Qt::LeftButton, {}, last * 10);
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&window_, key, modifiers);
    }
    // Which of Cut, Copy, Paste, Paste Opaque and Delete can be chosen.
    std::string Enabled() {
        const struct {
            const char* item;
            const char* popupItem;
            const char* button;
        } commands[] = {{"mnuEditOpts3", "mnuPopup2Opts0", "Cut"},
                        {"mnuEditOpts4", "mnuPopup2Opts1", "Copy"},
                        {"mnuEditOpts5", "mnuPopup2Opts2", "Paste"},
                        {"mnuEditOpts6", nullptr, nullptr},
                        {"mnuEditOpts7", "mnuPopup2Opts3", "Delete"}};
        std::string state;
        for (const auto& command : commands) {
            const bool enabled = window_.BarAction(command.item)->isEnabled();
            state += enabled ? "+" : "-";
            if (command.button == nullptr) continue;
            EXPECT_EQ(window_.Toolbar1().Button(command.button)->isEnabled(), enabled);
            EXPECT_EQ(window_.Menus().SmartMenuXP2.Find(command.popupItem)->enabled, enabled);
        }
        return state;
    }

    test::FakeServices given_;
    FrmIcoEd window_{given_.Given()};
};

TEST_F(SelectingTest, CommandsAreEnabledWhenTheyCanDoSomething) {
    EXPECT_EQ(Enabled(), "-----");
    MarkCells({2, 2}, {4, 4});
    EXPECT_EQ(Enabled(), "++--+");
    given_.clipboard.Offer(gdi::Surface(2, 2));
    EXPECT_EQ(Enabled(), "+++++");
    Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Enabled(), "--++-");
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Enabled(), "+++++");
    given_.clipboard.Offer({});
    EXPECT_EQ(Enabled(), "++--+");
    QTest::mouseClick(window_.Toolbar1().Button("Undo"), Qt::LeftButton);
    EXPECT_EQ(Enabled(), "-----");
    EXPECT_TRUE(window_.BarAction("mnuEditOpts9")->isEnabled());
    // The clipboard changes while a pencil draws: that is no entry of the history.
    Editor().Tools().SelectTool(ToolId::Pencil);
    const std::size_t entries = Editor().History().UndoCount();
    QTest::mousePress(&window_.GridWidget(), Qt::LeftButton, {}, QPoint(155, 155));
    given_.clipboard.Offer(gdi::Surface(2, 2));
    QTest::mouseRelease(&window_.GridWidget(), Qt::LeftButton, {}, QPoint(155, 155));
    EXPECT_EQ(Editor().History().UndoCount(), entries + 1);
}

TEST_F(SelectingTest, ArrowKeysMoveItAndEscapeDropsIt) {
    Key(Qt::Key_Left);
    EXPECT_FALSE(Selected().Exists());
    MarkCells({2, 2}, {4, 4});
    Key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_TRUE(Selected().SelectionMarked());
    Key(Qt::Key_Right);
    EXPECT_TRUE(Selected().SelectionFloating());
    EXPECT_TRUE(window_.BarAction("mnuEditOpts0")->isEnabled());
    Key(Qt::Key_Right);
    Key(Qt::Key_Down);
    EXPECT_EQ(Selected().Marquee(), (Corners{40, 30, 60, 50}));
    for (int i = 0; i < 6; ++i) {
        Key(Qt::Key_Left, i % 2 == 0 ? Qt::KeyboardModifier::KeypadModifier : Qt::NoModifier);
        Key(Qt::Key_Up);
    }
    EXPECT_EQ(Selected().Marquee(), (Corners{-20, -30, 0, -10})) << "also out of the grid";
    for (int i = 0; i < 6; ++i) {
        Key(Qt::Key_Right);
        Key(Qt::Key_Down);
    }
    EXPECT_TRUE(test::ViewsAreFresh(Editor()));
    const std::size_t entries = Editor().History().UndoCount();
    Key(Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(Selected().Marquee(), (Corners{40, 30, 60, 50})) << "those were for the toolbar";
    Key(Qt::Key_Escape);
    EXPECT_FALSE(Selected().Exists());
    EXPECT_FALSE(Editor().Document().IsTransparent(4, 3));
    EXPECT_EQ(Editor().History().UndoCount(), entries + 1);
    EXPECT_EQ(Enabled(), "-----");
}

TEST_F(SelectingTest, TheWindowsBackgroundDropsIt) {
    const struct {
        const char* what{};
        QPoint at;
        bool drops = false;
    } cases[] = {{"left of the grid", {3, 200}, true},
                 {"the place of the palette", {450, 300}, true},
                 {"a label", {400, 75}, false},
                 {"the status bar", {20, 420}, false},
                 {"the preview", {360, 80}, false}};
    for (const auto& c : cases) {
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            Editor().SelectAll();
            QWidget* hit = window_.childAt(c.at);
            QTest::mouseClick(hit != nullptr ? hit : &window_, button, {},
                              hit != nullptr ? hit->mapFrom(&window_, c.at) : c.at);
            EXPECT_EQ(Selected().Exists(), !c.drops) << c.what;
        }
    }
    // Let go outside the window.
    QTest::mousePress(&window_, Qt::LeftButton, {}, QPoint(3, 200));
    QTest::mouseRelease(&window_, Qt::LeftButton, {}, QPoint(-30, 200));
    EXPECT_TRUE(Selected().Exists());
}

TEST_F(SelectingTest, ARightClickOpensThePopupAndItsItemsWork) {
    MarkCells({2, 2}, {4, 4});
    QTest::mouseClick(&window_.GridWidget(), Qt::RightButton, {}, QPoint(35, 35));
    QMenu* popup = window_.EditingPopup();
    ASSERT_TRUE(popup->isVisible());
    QTest::keyClick(popup, Qt::Key_D);
    EXPECT_FALSE(popup->isVisible());
    EXPECT_TRUE(Editor().Document().IsTransparent(2, 2));
    EXPECT_EQ(window_.GridWidget().cursor().shape(), Qt::CrossCursor);
    Editor().SelectAll();
    QTest::mouseMove(&window_.GridWidget(), QPoint(55, 55));
    EXPECT_EQ(window_.GridWidget().cursor().shape(), Qt::SizeAllCursor);
    Editor().Tools().SelectTool(ToolId::Pencil);
    QTest::mouseClick(&window_.GridWidget(), Qt::RightButton, {}, QPoint(35, 35));
    EXPECT_FALSE(popup->isVisible());
}

TEST_F(SelectingTest, WhatFloatsIsSaved) {
    MarkCells({2, 2}, {4, 4});
    Key(Qt::Key_Right);
    given_.cdb.choice = "";
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(Selected().SelectionFloating()) << "the dialog was cancelled";
    given_.cdb.choice = "/icons/new.ico";
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(Selected().Exists());
    EXPECT_FALSE(Editor().Document().Modified);
    MarkCells({2, 2}, {4, 4});
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(Selected().SelectionMarked());
    Key(Qt::Key_Right);
    given_.files.writeError = {28, "No space left on device"};
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(Selected().SelectionFloating()) << "nothing was saved";
    Key(Qt::Key_Z, Qt::ControlModifier);
    Editor().Document().Modified = false;
    Key(Qt::Key_O, Qt::ControlModifier);
    EXPECT_FALSE(Editor().Document().IsTransparent(3, 2));
    EXPECT_TRUE(Editor().Document().IsTransparent(2, 2));
}

TEST_F(SelectingTest, APictureThatCannotBeReadIsToldInBothLanguages) {
    given_.clipboard.Offer(gdi::Surface(2, 2));
    given_.clipboard.image.reset();
    for (const auto& [code, text] :
         {std::pair{i18n::kEnglish,
                    "The image on the clipboard is gone, damaged or too large.\r\n\r\n"
                    "Unable to paste."},
          {i18n::kChinese, "剪切板中的图像已不存在, 已损坏或过大.\r\n\r\n不能粘贴."}}) {
        i18n::SetUiLanguage(code);
        window_.Menus().SmartMenuXP1.onClick("mnuEditOpts6");
        EXPECT_EQ(given_.boxes.shown.back().text, text);
        EXPECT_EQ(given_.boxes.shown.back().title, i18n::kErrorTitle.In(code));
    }
    EXPECT_FALSE(Selected().Exists());
}

TEST_F(SelectingTest, ALargePictureIsAskedAboutOverTheWindow) {
    given_.clipboard.Offer(gdi::Surface(33, 10, gdi::kBlack));
    for (const bool accepted : {false, true}) {
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->parentWidget(), &window_);
            dialog->done(accepted ? QDialog::Accepted : QDialog::Rejected);
        });
        QApplication::setActiveWindow(&window_);
        Key(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Selected().SelectionFloating(), accepted);
    }
    EXPECT_TRUE(given_.boxes.shown.empty());
}

TEST_F(SelectingTest, ThePasteDialogAsksInBothLanguages) {
    const auto textOf = [](QWidget* dialog, const char* name) {
        return dialog->findChild<QAbstractButton*>(name)->text();
    };
    using Act = std::function<void(QWidget*)>;
    const auto click = [](const char* name) {
        return [name](QWidget* dialog) {
            QTest::mouseClick(dialog->findChild<QWidget*>(name), Qt::LeftButton);
        };
    };
    const auto key = [](Qt::Key pressed) {
        return [pressed](QWidget* dialog) { QTest::keyClick(dialog, pressed); };
    };
    const struct {
        Act first, then;
        std::optional<PasteFit> answer;
    } cases[] = {
        {nullptr, click("cmdOK"), PasteFit::Shrink},
        {nullptr, key(Qt::Key_Return), PasteFit::Shrink},
        {[](QWidget* dialog) { dialog->findChild<QAbstractButton*>("Opt1")->click(); },
         click("cmdOK"), PasteFit::KeepAspect},
        {nullptr, click("cmdCancel"), std::nullopt},
        {nullptr, key(Qt::Key_Escape), std::nullopt},
        {nullptr, [](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_F4, Qt::AltModifier); },
         std::nullopt},
    };
    for (const auto& c : cases) {
        FrmClipData dialog(&window_, {200, 100});
        QTimer::singleShot(0, [&] {
            EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
            QApplication::setActiveWindow(&dialog);
            if (c.first) c.first(&dialog);
            c.then(&dialog);
        });
        EXPECT_EQ(dialog.Ask(), c.answer);
    }
    for (const auto& [code, texts] :
         {std::pair{i18n::kEnglish,
                    std::array{"KestrelIconEditor - Paste", "What would you like to do?",
                               "Shrink to fit.", "Shrink to fit keeping aspect.", "OK", "Cancel"}},
          {i18n::kChinese, std::array{"KestrelIconEditor - 粘贴", "选择方式", "收缩尺寸",
                                      "保持原比例", "确定", "取消"}}}) {
        i18n::SetUiLanguage(code);
        FrmClipData dialog(&window_, {48, 48});
        const QRect screen = window_.screen()->geometry();
        EXPECT_EQ(dialog.pos(), QPoint((screen.width() - dialog.width()) / 2,
                                       (screen.height() - dialog.height()) / 3));
        EXPECT_EQ(dialog.windowTitle(), qt::ToText(texts[0]));
        EXPECT_EQ(dialog.findChild<QGroupBox*>("Frame1")->title(), qt::ToText(texts[1]));
        EXPECT_EQ(textOf(&dialog, "Opt0"), qt::ToText(texts[2]));
        EXPECT_EQ(textOf(&dialog, "Opt1"), qt::ToText(texts[3]));
        EXPECT_EQ(textOf(&dialog, "cmdOK"), qt::ToText(texts[4]));
        EXPECT_EQ(textOf(&dialog, "cmdCancel"), qt::ToText(texts[5]));
        // Two lines are printed above the frame.
        const QImage picture = dialog.grab().toImage();
        for (const int top : {8, 21}) {
            int ink = 0;
            for (int i = 0; i < 200 * 13; ++i)
                ink += picture.pixelColor(8 + i % 200, top + i / 200).lightness() < 100 ? 1 : 0;
            EXPECT_GT(ink, 100) << code << top;
        }
    }
}

}  // namespace
}  // namespace kestrel::app
