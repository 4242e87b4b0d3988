#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMenuBar>
#include <QTimer>
#include <QtTest/QTest>

#include "app/FrmIcoEd.h"
#include "document/IcoFile.h"
#include "i18n/Language.h"
#include "i18n/ToolbarTable.h"
#include "tests/support/Services.h"

namespace kestrel::app {
namespace {

using controls::MenuItem;
using controls::SmartMenuXP;
using editing::StatusPanel;
using Keys = std::vector<std::string>;

class MenusTest : public testing::Test {
  protected:
    MenusTest() {
        window_.Form_Load("");
        window_.show();
        QApplication::setActiveWindow(&window_);
        QApplication::processEvents();
    }
    void TearDown() override { i18n::SetUiLanguage(i18n::kEnglish); }

    QMenuBar* Bar() { return window_.findChild<QMenuBar*>(); }
    SmartMenuXP& BarMenu() { return window_.Menus().SmartMenuXP1; }
    SmartMenuXP& PopupMenu() { return window_.Menus().SmartMenuXP2; }

    // Instead of running commands, notes the items that are clicked; submenus that open are none.
    void NoteClicks(SmartMenuXP& menu) {
        menu.onClick = [this, &menu](std::string_view key) {
            if (!menu.IsSubmenu(key)) clicked_.emplace_back(key);
        };
    }
    static void EnableAll(SmartMenuXP& menu, bool enabled) {
        for (const std::string& key : Commands(menu))
            menu.SetEnabled(key, enabled);
    }
    // The items that a user can see and that are no submenus, in order.
    static Keys Commands(const SmartMenuXP& menu) {
        Keys keys;
        for (const MenuItem& item : menu.Items()) {
            if (item.kind == controls::ItemKind::Separator || menu.IsSubmenu(item.key)) continue;
            bool visible = item.visible;
            for (const MenuItem* above = menu.Find(item.parent); above != nullptr;
                 above = menu.Find(above->parent)) {
                visible = visible && above->visible;
            }
            if (visible) keys.push_back(item.key);
        }
        return keys;
    }
    static Keys EnabledCommands(const SmartMenuXP& menu) {
        Keys keys = Commands(menu);
        std::erase_if(keys, [&](const std::string& key) { return !menu.Find(key)->enabled; });
        return keys;
    }

    // Clicks an item of an open menu, whose submenu opens a moment later if it has one.
    static void ClickIn(QMenu& menu, QAction* action) {
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
        if (action->menu() == nullptr) return;
        EXPECT_TRUE(QTest::qWaitFor([&] { return action->menu()->isVisible(); }, 2000));
    }
    // Goes through the submenus to an item and clicks it.
    void ClickInBar(const std::string& key) {
        std::vector<QAction*> way;
        for (const MenuItem* item = BarMenu().Find(key); item != nullptr;
             item = BarMenu().Find(item->parent)) {
            way.insert(way.begin(), window_.BarAction(item->key));
        }
        QTest::mouseClick(Bar(), Qt::LeftButton, {}, Bar()->actionGeometry(way[0]).center());
        for (std::size_t i = 1; i < way.size(); ++i)
            ClickIn(*way[i - 1]->menu(), way[i]);
        while (QWidget* open = QApplication::activePopupWidget())
            open->close();
    }
    void ClickInPopup(const std::string& key) {
        QMenu* menu = window_.EditingPopup();
        menu->popup(window_.mapToGlobal(QPoint(20, 80)));
        const auto actionOf = [](QMenu& in, const std::string& caption) {
            for (QAction* action : in.actions())
                if (action->text().toStdString() == caption) return action;
            return static_cast<QAction*>(nullptr);
        };
        const MenuItem* item = PopupMenu().Find(key);
        if (item->parent != "mnuEdit") {
            QAction* above = actionOf(*menu, PopupMenu().Find(item->parent)->caption);
            ClickIn(*menu, above);
            menu = above->menu();
        }
        ClickIn(*menu, actionOf(*menu, item->caption));
        while (QWidget* open = QApplication::activePopupWidget())
            open->close();
    }
    void HoverToolbar(int x) {
        QToolButton* button =
            window_.Toolbar1().Button(i18n::ToolbarButtons()[static_cast<std::size_t>(x / 28)].key);
        QTest::mouseMove(button, QPoint(x % 28, 10));
    }

    test::FakeServices given_;
    FrmIcoEd window_{given_.Given()};
    Keys clicked_;
};

TEST_F(MenusTest, ExactlyTheCommandsThatExistAreEnabled) {
    EXPECT_EQ(EnabledCommands(BarMenu()),
              (Keys{"mnuNew", "mnuOpen", "mnuSave", "mnuSaveAs", "mnuExit", "mnuEditOpts9",
                    "mnuToolsOpts6", "mnuToolsOpts7", "mnuLanguageOpts0", "mnuLanguageOpts1",
                    "mnuHomePage", "mnuHelp2", "mnuAbout"}));
    EXPECT_EQ(EnabledCommands(PopupMenu()), Keys{"mnuPopup2Opts4"});
}

TEST_F(MenusTest, ItemsLookAsTheyAre) {
    for (const MenuItem& item : BarMenu().Items()) {
        const QAction* action = window_.BarAction(item.key);
        EXPECT_EQ(action->icon().isNull(), item.picture == 0) << item.key;
        EXPECT_EQ(action->isSeparator(), item.kind == controls::ItemKind::Separator) << item.key;
        EXPECT_EQ(action->isCheckable(), item.kind == controls::ItemKind::Option) << item.key;
    }
}

TEST_F(MenusTest, EveryItemOfTheBarIsReachedByMouseUnlessDisabled) {
    NoteClicks(BarMenu());
    const Keys all = Commands(BarMenu());
    ASSERT_EQ(all.size(), 82U);
    EnableAll(BarMenu(), false);
    for (const std::string& key : {all.front(), std::string("mnuEmboss"), all.back()})
        ClickInBar(key);
    EXPECT_EQ(clicked_, Keys{});
    EnableAll(BarMenu(), true);
    for (const std::string& key : all)
        ClickInBar(key);
    EXPECT_EQ(clicked_, all);
}

TEST_F(MenusTest, EveryItemOfThePopupIsReachedByMouseUnlessDisabled) {
    NoteClicks(PopupMenu());
    const Keys all = Commands(PopupMenu());
    ASSERT_EQ(all.size(), 9U);
    EnableAll(PopupMenu(), false);
    for (const std::string& key : all)
        ClickInPopup(key);
    EXPECT_EQ(clicked_, Keys{});
    EnableAll(PopupMenu(), true);
    for (const std::string& key : all)
        ClickInPopup(key);
    EXPECT_EQ(clicked_, all);
}

TEST_F(MenusTest, EveryShortcutReachesItsItemAloneUnlessDisabled) {
    // The pop-up names the same keys: they must still belong to the bar alone.
    static_cast<void>(window_.EditingPopup());
    EnableAll(PopupMenu(), true);
    NoteClicks(BarMenu());
    NoteClicks(PopupMenu());
    for (const bool enabled : {true, false}) {
        EnableAll(BarMenu(), enabled);
        clicked_.clear();
        Keys expected;
        for (const MenuItem& item : BarMenu().Items()) {
            if (item.shortcut.empty()) continue;
            if (enabled) expected.push_back(item.key);
            const QKeyCombination keys = QKeySequence(QString::fromStdString(item.shortcut))[0];
            QTest::keyClick(&window_, keys.key(), keys.keyboardModifiers());
        }
        EXPECT_EQ(clicked_, expected);
        EXPECT_EQ(expected.size(), enabled ? 15U : 0U);
    }
}

TEST_F(MenusTest, LettersAndF10OpenTheMenusInBothLanguages) {
    const struct {
        const char* code;
        Qt::Key letter;
        const char* menu;
    } cases[] = {{"ENG", Qt::Key_F, "mnuFile"},  {"ENG", Qt::Key_I, "mnuImage"},
                 {"CHS", Qt::Key_F, "mnuFile"},  {"CHS", Qt::Key_L, "mnuFilters"},
                 {"CHS", Qt::Key_H, "mnuHelp"},  {"ENG", Qt::Key_T, "mnuTools"},
                 {"CHS", Qt::Key_T, "mnuTools"}, {"ENG", Qt::Key_H, "mnuHelp"}};
    for (const auto& c : cases) {
        i18n::ApplyMenuCaptions(c.code, BarMenu(), PopupMenu());
        QTest::keyClick(&window_, c.letter, Qt::AltModifier);
        QMenu* opened = window_.BarAction(c.menu)->menu();
        EXPECT_TRUE(opened->isVisible()) << c.code << " Alt+" << static_cast<char>(c.letter);
        QTest::keyClick(opened, Qt::Key_Escape);
        QTest::keyClick(Bar(), Qt::Key_Escape);
    }
    QTest::keyClick(&window_, Qt::Key_F1);
    EXPECT_EQ(given_.help.shown, "/program/help/ENG/index.html");
    QTest::keyClick(&window_, Qt::Key_F10);
    EXPECT_TRUE(window_.BarAction("mnuFile")->menu()->isVisible());
    window_.BarAction("mnuFile")->menu()->close();
    QTest::keyClick(&window_, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(window_.EditingPopup()->isVisible());
    window_.EditingPopup()->close();
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&window_, &menuKey);
    EXPECT_TRUE(window_.EditingPopup()->isVisible());
    window_.EditingPopup()->close();
    QContextMenuEvent rightButton(QContextMenuEvent::Mouse, QPoint(), QPoint());
    QApplication::sendEvent(window_.findChild<QWidget*>("Label1"), &rightButton);
    EXPECT_FALSE(window_.EditingPopup()->isVisible());
}

TEST_F(MenusTest, TheMenuShowsTheModelsStateAndNotTheClicks) {
    QAction* defaultPalette = window_.BarAction("mnuPaletteOpts0");
    EXPECT_TRUE(defaultPalette->isChecked());
    NoteClicks(BarMenu());
    BarMenu().SetEnabled("mnuPaletteOpts1", true);
    ClickInBar("mnuPaletteOpts1");
    EXPECT_TRUE(defaultPalette->isChecked()) << "the model was not told to change";
    EXPECT_FALSE(window_.BarAction("mnuPaletteOpts1")->isChecked());
    BarMenu().SetChecked("mnuPaletteOpts0", false);
    EXPECT_FALSE(defaultPalette->isChecked()) << "no mark at all is a state, too";

    EXPECT_FALSE(window_.BarAction("mnuRecentFile0")->isVisible());
    BarMenu().SetVisible("mnuRecentFile0", true);
    EXPECT_TRUE(window_.BarAction("mnuRecentFile0")->isVisible());
    BarMenu().SetCaption("mnuRecentFile2", "/a\tb\u202Eoci.png\u202C");
    EXPECT_EQ(window_.BarAction("mnuRecentFile2")->text(),
              QStringLiteral("/a\u2409b\uFFFDoci.png\uFFFD"));
    BarMenu().SetCaption("mnuRecentFile1", "/" + std::string(250, 'w') + "/&&.ico");
    EXPECT_TRUE(window_.BarAction("mnuRecentFile1")->text().endsWith("w/&&.ico"));
    EXPECT_LT(window_.BarAction("mnuRecentFile1")->text().size(), 120);
}

TEST_F(MenusTest, SwitchingLanguageByMenuChangesWhatIsShown) {
    const auto* label = window_.findChild<QLabel*>("Label1");
    const QToolButton* save = window_.Toolbar1().Button("Save");
    HoverToolbar(0);
    ClickInBar("mnuLanguageOpts0");
    EXPECT_EQ(window_.windowTitle(), QStringLiteral("KestrelIconEditor - 未命名"));
    EXPECT_EQ(label->text(), QStringLiteral("32 * 32\n真彩色"));
    EXPECT_EQ(save->toolTip(), QStringLiteral("保存(Ctrl+S)"));
    EXPECT_EQ(window_.BarAction("mnuFile")->text(), QStringLiteral("(&F) 文件  "));
    EXPECT_EQ(window_.EditingPopup()->actions().constFirst()->text(), QStringLiteral("剪切  "));
    EXPECT_EQ(window_.StatusText(StatusPanel::Hint), "") << "a hint in the old language";
    EXPECT_TRUE(window_.BarAction("mnuLanguageOpts0")->isChecked());
    ClickInBar("mnuLanguageOpts1");
    EXPECT_EQ(window_.windowTitle(), QStringLiteral("KestrelIconEditor - Untitled"));
    EXPECT_EQ(label->text(), QStringLiteral("32 * 32\nTrue Color"));
    EXPECT_EQ(save->toolTip(), QStringLiteral("Save (Ctrl+s)"));
    EXPECT_EQ(window_.BarAction("mnuFile")->text(), QStringLiteral("&File "));
    EXPECT_FALSE(window_.BarAction("mnuLanguageOpts0")->isChecked());
}

TEST_F(MenusTest, TheToolbarRunsItsCommandsAndHintsAtThem) {
    const auto buttons = i18n::ToolbarButtons();
    for (const std::string_view language : {"CHS", "ENG"}) {
        i18n::SetUiLanguage(language);
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            HoverToolbar(static_cast<int>(i) * 28 + 27);
            EXPECT_EQ(window_.StatusText(StatusPanel::Hint), buttons[i].status.In(language));
        }
    }
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&window_.Toolbar1(), &leave);
    EXPECT_EQ(window_.StatusText(StatusPanel::Hint), "");

    QTest::mouseClick(window_.Toolbar1().Button("Open"), Qt::LeftButton);
    EXPECT_EQ(given_.cdb.opens.size(), 1U);
    QTest::mouseClick(window_.Toolbar1().Button("Help"), Qt::LeftButton);
    EXPECT_EQ(given_.help.shown, "/program/help/ENG/index.html");

    Keys pressed;
    window_.Toolbar1().onClick = [&](std::string_view key) { pressed.emplace_back(key); };
    for (const auto& button : buttons)
        QTest::mouseClick(window_.Toolbar1().Button(button.key), Qt::LeftButton);
    EXPECT_EQ(pressed, (Keys{"New", "Open", "Save", "Help"}));
    EXPECT_EQ(QApplication::focusWidget(), &window_) << "clicks leave the keyboard alone";

    QTest::keyClick(&window_, Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(pressed.back(), "Open");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pressed.back() == "New"; }, 2000));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &window_);
}

TEST_F(MenusTest, RecentFilesLeadBackToTheFileAndOutliveTheWindow) {
    const document::IcoBytes icon = document::EncodeIco({});
    given_.files.contents["/icons/a.ico"] = {icon.begin(), icon.end()};
    given_.cdb.choice = "/icons/a.ico";
    QTest::keyClick(&window_, Qt::Key_O, Qt::ControlModifier);
    QTest::keyClick(&window_, Qt::Key_N, Qt::ControlModifier);
    ClickInBar("mnuRecentFile1");
    EXPECT_EQ(window_.windowTitle(), QStringLiteral("KestrelIconEditor - a.ico"));
    given_.help.shown = "help";
    window_.close();
    EXPECT_EQ(given_.help.shown, "") << "the help would keep the program running";
    FrmIcoEd next(given_.Given());
    next.Form_Load("");
    EXPECT_EQ(next.BarAction("mnuRecentFile1")->text(), QStringLiteral("/icons/a.ico"));
}

TEST_F(MenusTest, AboutIsModalAndClosesByKeyboard) {
    const QKeyCombination keys[] = {Qt::Key_Return, Qt::Key_Escape, Qt::ALT | Qt::Key_F4};
    int seen = 0;
    for (const QKeyCombination key : keys) {
        QTimer::singleShot(0, [&] {
            auto* about = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(about, nullptr);
            if (about->windowTitle() == QStringLiteral("About KestrelIconEditor")) ++seen;
            EXPECT_FALSE(about->findChild<QWidget*>("cmdSysInfo")->isEnabled());
            QApplication::setActiveWindow(about);
            QTest::keyClick(about, key.key(), key.keyboardModifiers());
        });
        ClickInBar("mnuAbout");
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
    EXPECT_EQ(seen, 3);
}

}  // namespace
}  // namespace kestrel::app
