#include <QTimer>

#include "commands/ToolbarTable.h"
#include "imaging/filters/FilterTable.h"
#include "tests/support/ListedTexts.h"
#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

using controls::MenuItem;
using controls::SmartMenuXP;
using Keys = std::vector<std::string>;

class MenusTest : public test::WindowTest {
  protected:
    QMenuBar* Bar() { return window_.findChild<QMenuBar*>(); }
    SmartMenuXP& BarMenu() { return window_.Menus().SmartMenuXP1; }
    SmartMenuXP& PopupMenu() { return window_.Menus().SmartMenuXP2; }
    std::string LastMessage() { return given_.boxes.shown.at(given_.boxes.shown.size() - 1).text; }
    QToolButton* Button(std::string_view key) { return window_.Toolbar1().Button(key); }

    // Instead of running commands, notes the items that are clicked; submenus that open are none.
    void NoteClicks() {
        for (SmartMenuXP* menu : {&BarMenu(), &PopupMenu()}) {
            menu->onClick = [this, menu](std::string_view key) {
                if (!menu->IsSubmenu(key)) clicked_.emplace_back(key);
            };
        }
    }
    // What is clicked when everything that can be chosen in a menu and its submenus is.
    Keys ChooseAll(const QWidget* menu) {
        Keys chosen;
        for (QAction* action : menu->actions()) {
            if (!action->isVisible() || !action->isEnabled() || action->isSeparator()) continue;
            clicked_.clear();
            action->trigger();
            const Keys keys = action->menu() != nullptr ? ChooseAll(action->menu()) : clicked_;
            chosen.insert(chosen.end(), keys.begin(), keys.end());
        }
        return chosen;
    }

    Keys clicked_;
};

TEST_F(MenusTest, ItemsThatAreShownAndEnabledAreReached) {
    NoteClicks();
    Keys chosen = ChooseAll(Bar());
    EXPECT_EQ(std::erase_if(chosen, filters::FindFilter), filters::Filters().size());
    EXPECT_EQ(chosen,
              (Keys{"mnuNew",          "mnuOpen",          "mnuSave",          "mnuSaveAs",
                    "mnuExit",         "mnuEditOpts9",     "mnuToolsOpts1",    "mnuPaletteOpts0",
                    "mnuPaletteOpts1", "mnuPaletteOpts3",  "mnuPaletteOpts4",  "mnuToolsOpts6",
                    "mnuToolsOpts7",   "mnuImageOpts0",    "mnuImageOpts1",    "mnuImageOpts2",
                    "mnuImageOpts3",   "mnuMirrorOpts0",   "mnuMirrorOpts1",   "mnuMirrorOpts2",
                    "mnuMirrorOpts3",  "mnuRotateOpts0",   "mnuRotateOpts1",   "mnuRotateOpts3",
                    "mnuRotateOpts4",  "mnuLanguageOpts0", "mnuLanguageOpts1", "mnuHomePage",
                    "mnuHelp2",        "mnuAbout"}));
    EXPECT_EQ(ChooseAll(window_.EditingPopup()),
              (Keys{"mnuPopup2Opts4", "mnuRotate2Opts0", "mnuRotate2Opts1", "mnuFlip2Opts0",
                    "mnuFlip2Opts1"}));
    // A new item without a row would look usable and do nothing.
    for (const auto& [menu, widget, rows] :
         {std::tuple{&BarMenu(), static_cast<QWidget*>(Bar()), commands::MenuBarCommands()},
          {&PopupMenu(), window_.EditingPopup(), commands::PopupCommands()}}) {
        for (const MenuItem& item : menu->Items()) {
            menu->SetEnabled(item.key, true);
            menu->SetVisible(item.key, true);
        }
        Keys commands;
        for (const MenuItem& item : menu->Items()) {
            if (menu->IsSubmenu(item.key) || item.kind == controls::ItemKind::Separator) continue;
            commands.push_back(item.key);
            EXPECT_TRUE(std::ranges::find(rows, item.key, &commands::CommandRow::key) !=
                            rows.end() ||
                        filters::FindFilter(item.key) != nullptr)
                << item.key;
        }
        EXPECT_EQ(ChooseAll(widget), commands);
    }
    for (const MenuItem& item : BarMenu().Items()) {
        EXPECT_EQ(Item(item.key)->icon().isNull(), item.picture == 0) << item.key;
        EXPECT_EQ(Item(item.key)->isCheckable(), item.kind == controls::ItemKind::Option);
        if (item.shortcut.empty()) continue;
        clicked_.clear();
        const QKeyCombination keys = QKeySequence(item.shortcut.c_str())[0];
        QTest::keyClick(&window_, keys.key(), keys.keyboardModifiers());
        EXPECT_EQ(clicked_, Keys{item.key}) << "also where the pop-up names the same keys";
    }
}

TEST_F(MenusTest, MenusOpenByKey) {
    const auto opens = [](QMenu* menu) {
        const bool visible = menu->isVisible();
        menu->close();
        return visible;
    };
    for (const auto& [code, letter, menu] : {std::tuple{"ENG", Qt::Key_I, "mnuImage"},
                                             {"CHS", Qt::Key_F, "mnuFile"},
                                             {"CHS", Qt::Key_L, "mnuFilters"}}) {
        commands::ApplyMenuCaptions(code, BarMenu(), PopupMenu());
        QTest::keyClick(&window_, letter, Qt::AltModifier);
        EXPECT_TRUE(opens(Item(menu)->menu())) << code << " " << menu;
        QTest::keyClick(Bar(), Qt::Key_Escape);
    }
    QTest::keyClick(&window_, Qt::Key_F10);
    EXPECT_TRUE(opens(Item("mnuFile")->menu()));
    QTest::keyClick(&window_, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(opens(window_.EditingPopup()));
    for (const auto& [reason, does] :
         {std::pair{QContextMenuEvent::Keyboard, true}, {QContextMenuEvent::Mouse, false}}) {
        QContextMenuEvent event(reason, QPoint(), QPoint());
        QApplication::sendEvent(&window_, &event);
        EXPECT_EQ(opens(window_.EditingPopup()), does);
    }
}

TEST_F(MenusTest, TheMenuShowsTheModelsStateAndNotTheClicks) {
    NoteClicks();
    Item("mnuPaletteOpts1")->trigger();
    EXPECT_TRUE(Item("mnuPaletteOpts0")->isChecked()) << "the model was not told to change";
    EXPECT_FALSE(Item("mnuPaletteOpts1")->isChecked());
    BarMenu().SetChecked("mnuPaletteOpts0", false);
    EXPECT_FALSE(Item("mnuPaletteOpts0")->isChecked()) << "no mark at all is a state, too";

    BarMenu().SetCaption("mnuRecentFile2", "/a\tb\u202Eoci.png\u202C");
    EXPECT_EQ(Item("mnuRecentFile2")->text(), QStringLiteral("/a\u2409b\uFFFDoci.png\uFFFD"));
    BarMenu().SetCaption("mnuRecentFile1", "/" + std::string(250, 'w') + "/&&.ico");
    EXPECT_TRUE(Item("mnuRecentFile1")->text().endsWith("w/&&.ico"));
    EXPECT_LT(Item("mnuRecentFile1")->text().size(), 120);
}

TEST_F(MenusTest, SwitchingLanguageChangesWhatIsShownAndIsKept) {
    const auto switched = [this](const char* item) {
        QTest::mouseMove(Button("New"));
        Item(item)->trigger();
        EXPECT_EQ(Hint(), "") << "a hint in the old language";
        return QStringList{settings::ReadSavedLanguage(given_.settings).c_str(),
                           window_.windowTitle(),
                           Control("Label1")->property("text").toString(),
                           Button("Save")->toolTip(),
                           Item("mnuFile")->text(),
                           window_.EditingPopup()->actions().constFirst()->text()};
    };
    EXPECT_EQ(switched("mnuLanguageOpts0"),
              (QStringList{"CHS", "KestrelIconEditor - 未命名", "32 * 32\n真彩色", "保存(Ctrl+S)",
                           "(&F) 文件  ", "剪切  "}));
    EXPECT_EQ(switched("mnuLanguageOpts1"),
              (QStringList{"ENG", "KestrelIconEditor - Untitled", "32 * 32\nTrue Color",
                           "Save (Ctrl+s)", "&File ", "Cu&t"}));
}

TEST_F(MenusTest, HelpSpeaksTheLanguageAndLiesInEitherPlace) {
    QTest::keyClick(&window_, Qt::Key_F1);
    EXPECT_EQ(LastMessage(), "Unable to open the help file /program/help/ENG/index.html");
    i18n::SetUiLanguage(i18n::kChinese);
    // What lies beside the program goes first.
    for (const std::string file : {"/program/../share/KestrelIconEditor/help/CHS/index.html",
                                   "/program/help/CHS/index.html"}) {
        given_.files.contents[file] = {};
        given_.help.known.insert(file);
        Item("mnuHelp2")->trigger();
        EXPECT_EQ(given_.help.shown, file);
        EXPECT_EQ(given_.help.shownTitle, "KestrelIconEditor - 帮助");
    }
    Item("mnuLanguageOpts1")->trigger();
    EXPECT_EQ(given_.help.changedTo, "/program/help/ENG/index.html");
    EXPECT_EQ(given_.help.shownTitle, "KestrelIconEditor - Help");
    EXPECT_EQ(given_.boxes.shown.size(), 1U);
    window_.close();
    EXPECT_EQ(given_.help.shown, "") << "the help would keep the program running";
}

TEST_F(MenusTest, WhatCannotBeStartedIsSaid) {
    for (const char* item : {"mnuToolsOpts5", "mnuToolsOpts6", "mnuToolsOpts7", "mnuHomePage"})
        BarMenu().onClick(item);
    EXPECT_EQ(given_.shell.started, (Keys{"/program/Quillet.exe", "/windows/Varnel.exe",
                                          "/windows/Ormsby Extender.exe"}));
    EXPECT_EQ(given_.shell.opened.size(), 1U);
    given_.shell.failure = "No such file or directory";
    BarMenu().onClick("mnuHomePage");
    EXPECT_EQ(given_.boxes.shown.size(), 1U);
    EXPECT_EQ(given_.application.hourglasses, "on off on off ");
    BarMenu().onClick("mnuToolsOpts6");
    EXPECT_EQ(LastMessage(),
              "The program is not installed or cannot be run.\r\n\r\n"
              "Unable to start /windows/Varnel.exe");
}

TEST_F(MenusTest, TheToolbarRunsItsCommandsAndHintsAtThem) {
    for (const auto& [code, column] :
         {std::pair{i18n::kChinese, test::Chinese}, {i18n::kEnglish, test::English}}) {
        i18n::SetUiLanguage(code);
        for (const test::Row& row : test::ListedTexts("toolbar")) {
            QTest::mouseMove(Button(row[test::Key]), QPoint(27, 10));
            EXPECT_TRUE(row[test::Kind] != "status" || Hint() == row[column]) << row[test::Key];
        }
    }
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&window_.Toolbar1(), &leave);
    EXPECT_EQ(Hint(), "");
    Keys pressed;
    window_.Toolbar1().onClick = [&](std::string_view key) { pressed.emplace_back(key); };
    for (const auto& button : commands::ToolbarButtons())
        QTest::mouseClick(Button(button.key), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), &window_) << "clicks leave the keyboard alone";
    for (const Qt::Key key :
         {Qt::Key_Tab, Qt::Key_Right, Qt::Key_Space, Qt::Key_Left, Qt::Key_Return}) {
        QTest::keyClick(QApplication::focusWidget(), key);
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return pressed.size() == 6; }, 2000));
    EXPECT_EQ(pressed, (Keys{"New", "Open", "Save", "Help", "Open", "New"}));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &window_);
}

TEST_F(MenusTest, AboutIsModalAndClosesByKeyboard) {
    const auto click = [](auto* in, QAction* action) {
        QTest::mouseClick(in, Qt::LeftButton, {}, in->actionGeometry(action).center());
    };
    QString seen;
    QTimer::singleShot(0, [&] {
        QWidget* about = QApplication::activeModalWidget();
        ASSERT_NE(about, nullptr);
        seen = about->windowTitle();
        QApplication::setActiveWindow(about);
        QTest::keyClick(about, Qt::Key_Return);
    });
    click(Bar(), Item("mnuHelp"));
    click(Item("mnuHelp")->menu(), Item("mnuAbout"));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(seen, "About KestrelIconEditor");
}

}  // namespace
}  // namespace kestrel::windows
