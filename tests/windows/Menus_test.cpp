#include "tests/support/ListedTexts.h"
#include "tests/windows/WindowTest.h"

namespace kestrel::windows {
namespace {

class MenusTest : public test::WindowTest {
  protected:
    controls::SmartMenuXP& BarMenu() { return window_.Menus().SmartMenuXP1; }
    std::string LastMessage() { return given_.boxes.shown.at(given_.boxes.shown.size() - 1).text; }
    static bool WasOpen(QMenu* menu) { return menu->isVisible() && menu->close(); }
};

TEST_F(MenusTest, MenusOpenByKey) {
    commands::ApplyMenuCaptions("CHS", window_.Menus());
    QTest::keyClick(&window_, Qt::Key_L, Qt::AltModifier);
    EXPECT_TRUE(WasOpen(Item("mnuFilters")->menu())) << "(L) stands in front";
    QTest::keyClick(window_.findChild<QMenuBar*>(), Qt::Key_Escape);
    QTest::keyClick(&window_, Qt::Key_F10);
    EXPECT_TRUE(WasOpen(Item("mnuFile")->menu()));
    QTest::keyClick(&window_, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(WasOpen(window_.EditingPopup()));
    for (const auto& [reason, opens] :
         {std::pair{QContextMenuEvent::Keyboard, true}, {QContextMenuEvent::Mouse, false}}) {
        QContextMenuEvent event(reason, QPoint(), QPoint());
        QApplication::sendEvent(&window_, &event);
        EXPECT_EQ(WasOpen(window_.EditingPopup()), opens);
    }
}

TEST_F(MenusTest, TheMenuShowsTheModelsStateAndNotTheClicks) {
    BarMenu().onClick = nullptr;
    Item("mnuPaletteOpts1")->trigger();
    EXPECT_TRUE(Item("mnuPaletteOpts0")->isChecked()) << "the model was not told to change";
    EXPECT_FALSE(Item("mnuPaletteOpts1")->isChecked());
    BarMenu().SetChecked("mnuPaletteOpts0", false);
    EXPECT_FALSE(Item("mnuPaletteOpts0")->isChecked()) << "no mark at all is a state, too";

    for (const controls::MenuItem& item : BarMenu().Items())
        EXPECT_EQ(Item(item.key)->icon().isNull(), item.picture == 0) << item.key;
    BarMenu().SetCaption("mnuRecentFile2", "/a\tb\u202Eoci.png\u202C");
    EXPECT_EQ(Item("mnuRecentFile2")->text(), QStringLiteral("/a\u2409b\uFFFDoci.png\uFFFD"));
    BarMenu().SetCaption("mnuRecentFile1", "/" + std::string(250, 'w') + "/&&.ico");
    EXPECT_TRUE(Item("mnuRecentFile1")->text().endsWith("w/&&.ico"));
    EXPECT_LT(Item("mnuRecentFile1")->text().size(), 120);
}

TEST_F(MenusTest, SwitchingLanguageChangesWhatIsShownAndIsKept) {
    const auto switched = [this](const char* item, test::Column column) {
        QTest::mouseMove(window_.Toolbar1().Button("New"));
        Item(item)->trigger();
        EXPECT_EQ(Hint(), "") << "a hint in the old language";
        EXPECT_TRUE(Item(item)->isChecked());
        for (const test::Row& row : test::ListedTexts("control")) {
            QString shown = row[test::Kind] == "caption"
                                ? Control(row[test::Key])->property("text").toString()
                                : Control(row[test::Key])->toolTip();
            EXPECT_EQ(shown.replace("\n", " ").toStdString(), row[column]);
        }
        for (const test::Row& row : test::ListedTexts("well")) {
            QTest::mouseMove(Control(row[test::Key]));
            EXPECT_EQ(Hint(), row[column]) << row[test::Key];
        }
        QTest::mouseMove(window_.Toolbar1().Button("Help"), QPoint(26, 10));  // in the gap
        return QStringList{settings::ReadSavedLanguage(given_.settings).c_str(),
                           window_.windowTitle(),
                           window_.Toolbar1().Button("Save")->toolTip(),
                           Hint().c_str(),
                           Item("mnuFile")->text(),
                           window_.EditingPopup()->actions().constFirst()->text()};
    };
    EXPECT_EQ(switched("mnuLanguageOpts0", test::Chinese),
              (QStringList{"CHS", "KestrelIconEditor - 未命名", "保存(Ctrl+S)", "显示帮助主题",
                           "(&F) 文件  ", "剪切  "}));
    EXPECT_EQ(switched("mnuLanguageOpts1", test::English),
              (QStringList{"ENG", "KestrelIconEditor - Untitled", "Save (Ctrl+s)",
                           "Display the help  contents", "&File ", "Cu&t"}));
}

TEST_F(MenusTest, HelpSpeaksTheLanguageAndLiesInEitherPlace) {
    QTest::keyClick(&window_, Qt::Key_F1);
    EXPECT_EQ(LastMessage(), "Unable to open the help file /program/help/ENG/index.html");
    i18n::SetUiLanguage(i18n::kChinese);
    // What lies beside the program goes first.
    for (const std::string file : {"/program/../share/KestrelIconEditor/help/CHS/index.html",
                                   "/program/help/CHS/index.html"}) {
        given_.files.contents[file] = {};
        given_.help.known = file;
        Item("mnuHelp2")->trigger();
        EXPECT_EQ(given_.help.shown + given_.help.shownTitle, file + "KestrelIconEditor - 帮助");
    }
    Item("mnuLanguageOpts1")->trigger();
    EXPECT_EQ(given_.help.shown, "/program/help/ENG/index.html");
    window_.close();
    EXPECT_EQ(given_.help.shown, "") << "the help would keep the program running";
}

TEST_F(MenusTest, WhatCannotBeStartedIsSaid) {
    Item("mnuHomePage")->trigger();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the hourglass stays";
    for (const auto& [key, folder, program] :
         {std::tuple{"mnuToolsOpts5", "/program/", std::string("Quillet")},
          {"mnuToolsOpts6", "/windows/", "Varnel"},
          {"mnuToolsOpts7", "/windows/", "Ormsby Extender"}}) {
        BarMenu().onClick(key);  // also of the hidden item
        EXPECT_TRUE(LastMessage().starts_with("Unable to start " + program + ": "));
        EXPECT_TRUE(LastMessage().ends_with(folder + program + ".exe"));
    }
}

TEST_F(MenusTest, TheToolbarIsUsedByKeyboardToo) {
    std::string pressed;
    window_.Toolbar1().onClick = [&](std::string_view key) { pressed.append(key) += ' '; };
    QTest::mouseClick(window_.Toolbar1().Button("Save"), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), Grid()) << "a click leaves the keyboard alone";
    window_.Toolbar1().Button("New")->setFocus();
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Space, Qt::Key_Left, Qt::Key_Return})
        QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pressed == "Save Open New "; }, 2000)) << pressed;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), Grid());
}

}  // namespace
}  // namespace kestrel::windows
