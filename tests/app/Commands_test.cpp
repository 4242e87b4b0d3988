#include <gtest/gtest.h>

#include <map>
#include <string>

#include "app/CommandDispatch.h"
#include "app/MainCommands.h"
#include "document/IcoFile.h"
#include "i18n/Language.h"
#include "i18n/MenuTable.h"
#include "i18n/ToolbarTable.h"
#include "tests/support/Services.h"

namespace kestrel::app {
namespace {

// Writes down the handlers that are called.
struct RecordingHandlers : CommandHandlers {
    void mnuNew_Click() override { calls += "New;"; }
    void mnuOpen_Click() override { calls += "Open;"; }
    void mnuSave_Click() override { calls += "Save;"; }
    void mnuSaveAs_Click() override { calls += "SaveAs;"; }
    void mnuRecent_Click(int slot) override { calls += "Recent " + std::to_string(slot) + ";"; }
    void mnuExit_Click() override { calls += "Exit;"; }
    void mnuEditOpts_Click(int index) override { calls += "Edit " + std::to_string(index) + ";"; }
    void StartSibling(Sibling program) override {
        calls += "Sibling " + std::to_string(static_cast<int>(program)) + ";";
    }
    void mnuLanguageOpts_Click(int index) override {
        calls += "Language " + std::to_string(index) + ";";
    }
    void mnuHomePage_Click() override { calls += "HomePage;"; }
    void mnuHelp_Click() override { calls += "Help;"; }
    void mnuAbout_Click() override { calls += "About;"; }
    std::string calls;
};

using Calls = std::map<std::string, std::string>;

class DispatchTest : public testing::Test {
  protected:
    // What each key calls; keys that call nothing are left out. Every one refreshes the Edit state.
    template <typename Keys, typename Click>
    Calls CallsOf(const Keys& keys, Click click) {
        Calls calls;
        for (const auto& row : keys) {
            handlers_.calls.clear();
            window_.refreshes = 0;
            (dispatch_.*click)(row.key);
            EXPECT_EQ(window_.refreshes, 1) << row.key;
            if (!handlers_.calls.empty()) calls[std::string(row.key)] = handlers_.calls;
        }
        return calls;
    }

    RecordingHandlers handlers_;
    test::RecordingWindow window_;
    CommandDispatch dispatch_{handlers_, window_};
};

TEST_F(DispatchTest, EveryKeyCallsItsHandlerAlone) {
    EXPECT_EQ(CallsOf(i18n::MenuBarRows(), &CommandDispatch::SmartMenuXP1_Click),
              (Calls{{"mnuNew", "New;"},
                     {"mnuOpen", "Open;"},
                     {"mnuRecentFile1", "Recent 1;"},
                     {"mnuRecentFile2", "Recent 2;"},
                     {"mnuRecentFile3", "Recent 3;"},
                     {"mnuRecentFile4", "Recent 4;"},
                     {"mnuSave", "Save;"},
                     {"mnuSaveAs", "SaveAs;"},
                     {"mnuExit", "Exit;"},
                     {"mnuEditOpts0", "Edit 0;"},
                     {"mnuEditOpts1", "Edit 1;"},
                     {"mnuEditOpts3", "Edit 3;"},
                     {"mnuEditOpts4", "Edit 4;"},
                     {"mnuEditOpts5", "Edit 5;"},
                     {"mnuEditOpts6", "Edit 6;"},
                     {"mnuEditOpts7", "Edit 7;"},
                     {"mnuEditOpts9", "Edit 9;"},
                     {"mnuToolsOpts5", "Sibling 0;"},
                     {"mnuToolsOpts6", "Sibling 1;"},
                     {"mnuToolsOpts7", "Sibling 2;"},
                     {"mnuLanguageOpts0", "Language 0;"},
                     {"mnuLanguageOpts1", "Language 1;"},
                     {"mnuHomePage", "HomePage;"},
                     {"mnuHelp2", "Help;"},
                     {"mnuAbout", "About;"}}));
    EXPECT_EQ(CallsOf(i18n::PopupMenuRows(), &CommandDispatch::SmartMenuXP2_Click),
              (Calls{{"mnuPopup2Opts0", "Edit 3;"},
                     {"mnuPopup2Opts1", "Edit 4;"},
                     {"mnuPopup2Opts2", "Edit 5;"},
                     {"mnuPopup2Opts3", "Edit 7;"},
                     {"mnuPopup2Opts4", "Edit 9;"}}));
    EXPECT_EQ(CallsOf(i18n::ToolbarButtons(), &CommandDispatch::Toolbar1_ButtonClick),
              (Calls{{"New", "New;"},
                     {"Open", "Open;"},
                     {"Save", "Save;"},
                     {"Undo", "Edit 0;"},
                     {"Redo", "Edit 1;"},
                     {"Cut", "Edit 3;"},
                     {"Copy", "Edit 4;"},
                     {"Paste", "Edit 5;"},
                     {"Delete", "Edit 7;"},
                     {"Help", "Help;"}}));
}

// A new item without a row would look usable and do nothing.
TEST_F(DispatchTest, EveryCommandOfTheMenusHasARow) {
    MainMenus menus;
    i18n::BuildMenuBar(menus.SmartMenuXP1, menus.SmartMenuXP2);
    for (const auto& [menu, rows] : {std::pair{&menus.SmartMenuXP1, MenuBarCommands()},
                                     std::pair{&menus.SmartMenuXP2, PopupCommands()}}) {
        std::vector<std::string> commands;
        for (const controls::MenuItem& item : menu->Items()) {
            const bool isCommand =
                item.kind != controls::ItemKind::Separator && !menu->IsSubmenu(item.key);
            if (isCommand) commands.push_back(item.key);
        }
        ASSERT_EQ(rows.size(), commands.size());
        for (std::size_t i = 0; i < commands.size(); ++i)
            EXPECT_EQ(rows[i].key, commands[i]);
    }
    ASSERT_EQ(ToolbarCommands().size(), i18n::ToolbarButtons().size());
    for (std::size_t i = 0; i < ToolbarCommands().size(); ++i)
        EXPECT_EQ(ToolbarCommands()[i].key, i18n::ToolbarButtons()[i].key);
}

class MainCommandsTest : public testing::Test {
  protected:
    MainCommandsTest() { i18n::BuildMenuBar(menus_.SmartMenuXP1, menus_.SmartMenuXP2); }
    void TearDown() override { i18n::SetUiLanguage(i18n::kEnglish); }
    std::string LastMessage() { return given_.boxes.shown.back().text; }

    test::FakeServices given_;
    test::RecordingWindow window_;
    MainMenus menus_;
    editing::Editor editor_{window_, 0xF0F0F0};
    MainCommands commands_{editor_, window_, menus_, given_.Given()};
};

TEST_F(MainCommandsTest, SwitchingLanguageChangesEverythingAndIsKept) {
    commands_.mnuLanguageOpts_Click(2);
    EXPECT_EQ(ReadSavedLanguage(given_.settings), "");
    for (const auto& [index, code, label, file, tip] :
         {std::tuple{0, "CHS", "32 * 32 真彩色", "(F) 文件  ", "保存(Ctrl+S)"},
          std::tuple{1, "ENG", "32 * 32 True Color", "&File ", "Save (Ctrl+s)"}}) {
        window_.languageChanged = false;
        commands_.mnuLanguageOpts_Click(index);
        EXPECT_EQ(i18n::UiLanguage(), code);
        EXPECT_EQ(window_.captions["Label1"], label);
        EXPECT_EQ(window_.captions["Save"], tip);
        EXPECT_EQ(menus_.SmartMenuXP1.Find("mnuFile")->caption, file);
        EXPECT_TRUE(window_.languageChanged);
        EXPECT_EQ(ReadSavedLanguage(given_.settings), code);
    }
}

TEST_F(MainCommandsTest, RecentFilesAreThoseOpenedAndSaved) {
    const document::IcoBytes icon = document::EncodeIco({});
    for (const char* path : {"/a.ico", "/b.ico"})
        given_.files.contents[path] = {icon.begin(), icon.end()};
    given_.files.contents["/no.ico"] = {1, 2, 3};
    const auto slot1 = [this] { return menus_.SmartMenuXP1.Find("mnuRecentFile1")->caption; };
    commands_.Documents().OpenNamed("/a.ico");
    EXPECT_EQ(slot1(), "/a.ico");
    commands_.Documents().OpenNamed("/no.ico");
    EXPECT_EQ(slot1(), "/a.ico") << "a refused file is not remembered";
    given_.cdb.choice = "/b.ico";
    commands_.mnuSaveAs_Click();
    EXPECT_EQ(slot1(), "/b.ico");
    commands_.mnuRecent_Click(2);
    EXPECT_EQ(editor_.Document().FilePath, "/a.ico");
    EXPECT_EQ(slot1(), "/a.ico");
    given_.files.contents.erase("/b.ico");
    commands_.mnuRecent_Click(2);
    EXPECT_EQ(LastMessage(), "Unable to locate /b.ico");
    EXPECT_EQ(editor_.Document().FilePath, "/a.ico");
}

TEST_F(MainCommandsTest, HelpSpeaksTheLanguageAndLiesInEitherPlace) {
    commands_.mnuHelp_Click();
    EXPECT_EQ(LastMessage(), "Unable to open the help file /program/help/ENG/index.html");
    const std::string installed = "/program/../share/KestrelIconEditor/help/CHS/index.html";
    given_.files.contents[installed] = {};
    given_.help.known.insert(installed);
    i18n::SetUiLanguage(i18n::kChinese);
    commands_.mnuHelp_Click();
    EXPECT_EQ(given_.help.shown, installed);
    EXPECT_EQ(given_.help.shownTitle, "KestrelIconEditor - 帮助");
    const std::string beside = "/program/help/CHS/index.html";
    given_.files.contents[beside] = {};
    given_.help.known.insert(beside);
    commands_.mnuHelp_Click();
    EXPECT_EQ(given_.help.shown, beside);
    commands_.mnuLanguageOpts_Click(1);
    EXPECT_EQ(given_.help.changedTo, "/program/help/ENG/index.html");
    EXPECT_EQ(given_.help.shownTitle, "KestrelIconEditor - Help");
    EXPECT_EQ(given_.boxes.shown.size(), 1U);
}

TEST_F(MainCommandsTest, WhatCannotBeStartedIsSaid) {
    const struct {
        Sibling program;
        const char* file;
    } cases[] = {{Sibling::ScreenCapture, "/program/Quillet.exe"},
                 {Sibling::IconBrowser, "/windows/Varnel.exe"},
                 {Sibling::ClipboardViewer, "/windows/Ormsby Extender.exe"}};
    for (const auto& c : cases) {
        given_.shell.failure.clear();
        commands_.StartSibling(c.program);
        EXPECT_EQ(given_.shell.started.back(), c.file);
        given_.shell.failure = "No such file or directory";
        commands_.StartSibling(c.program);
        EXPECT_EQ(LastMessage(),
                  std::string("The program is not installed or cannot be run.\r\n\r\n"
                              "Unable to start ") +
                      c.file);
    }
    EXPECT_EQ(given_.boxes.shown.size(), 3U);
    commands_.mnuHomePage_Click();
    EXPECT_EQ(given_.boxes.shown.size(), 4U);
    given_.shell.failure.clear();
    commands_.mnuHomePage_Click();
    EXPECT_EQ(given_.boxes.shown.size(), 4U);
    EXPECT_EQ(given_.shell.opened.size(), 2U);
    EXPECT_EQ(window_.hourglasses, "on off on off ");
}

}  // namespace
}  // namespace kestrel::app
