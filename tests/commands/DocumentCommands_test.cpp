#include "commands/DocumentCommands.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "formats/IcoFile.h"
#include "i18n/Language.h"
#include "platform/system/DiskFiles.h"
#include "tests/support/Services.h"

namespace kestrel::commands {
namespace {

using services::Answer;
using services::BoxButtons;
using services::BoxIcon;

// Notes what it was told last.
struct RecordingGuard : GridGuard {
    void EnableGrid(bool enabled) override { gridEnabled = enabled; }
    void StartTmr() override { tmrStarted = true; }
    bool gridEnabled = true;
    bool tmrStarted = false;
};

class DocumentCommandsTest : public testing::Test {
  protected:
    DocumentCommandsTest() {
        gdi::IconPlanes red;
        red.mask.SetPixel(1, 2, gdi::kBlack);
        red.image.SetPixel(1, 2, 0x0000FF);
        EXPECT_TRUE(formats::WriteIcoCopy(given_.files, red, "/icons/red.ico"));
        given_.files.contents["/icons/several.ico"] =
            system::DiskFiles().ReadFile(TEST_DATA "/several.ico", 100000).value();
        given_.files.contents["/icons/text.ico"] = {'h', 'e', 'l', 'l', 'o'};
    }
    void TearDown() override { i18n::SetUiLanguage(i18n::kEnglish); }

    void Draw() {
        editor_.PicMain_MouseDown(editing::Button::Left, 95, 95);
        editor_.PicMain_MouseUp(editing::Button::Left, 95, 95);
    }
    bool HoldsTheIcon(const std::string& path) {
        return std::ranges::equal(given_.files.contents.at(path),
                                  formats::EncodeIco(icon_.Planes()));
    }
    // The last one; its title goes on from the program's name.
    void ExpectBox(BoxIcon icon, BoxButtons buttons, const std::string& titleAndText) {
        const auto& last = given_.boxes.shown.at(given_.boxes.shown.size() - 1);
        EXPECT_EQ(std::tie(last.icon, last.buttons), std::tie(icon, buttons));
        EXPECT_EQ(last.title + ": " + last.text, "KestrelIconEditor" + titleAndText);
    }
    void ExpectError(const std::string& text) {
        const bool english = i18n::UiLanguage() == i18n::kEnglish;
        ExpectBox(BoxIcon::Exclamation, BoxButtons::Ok,
                  (english ? " - Error: " : " - 错误: ") + text);
    }

    test::FakeServices given_;
    test::EditorRecorder views_;
    RecordingGuard guard_;
    test::OwnerOfDialogs owner_;
    controls::SmartMenuXP menu_;
    ModRecent recent_{menu_, given_.registry, given_.files, given_.boxes, given_.documents, 1033};
    editing::Editor editor_{views_.Views(), 0xF0F0F0};
    document::IconDocument& icon_ = editor_.Document();
    services::Cdb cdb_{given_.desktop, owner_};
    DocumentCommands commands_{
        editor_, {guard_, recent_, cdb_, given_.application, given_.boxes, given_.files}};
};

TEST_F(DocumentCommandsTest, OpensWhatTheDialogGives) {
    Draw();
    given_.boxes.answers = {Answer::No};
    commands_.mnuOpen_Click();
    commands_.mnuSaveAs_Click();
    EXPECT_EQ(given_.boxes.shown.size(), 1U) << "cancelled dialogs are silent";
    EXPECT_FALSE(icon_.Modified) << "answered No before the dialog was cancelled";
    EXPECT_TRUE(guard_.gridEnabled && !icon_.IsTransparent(9, 9));

    given_.desktop.choice = "/icons/red.ico";
    commands_.mnuOpen_Click();
    EXPECT_EQ(icon_.PicImage().GetPixel(1, 2), 0x0000FFU);
    EXPECT_TRUE(icon_.IsTransparent(9, 9));
    EXPECT_EQ(views_.title, "KestrelIconEditor - red.ico");
    EXPECT_TRUE(guard_.tmrStarted && !guard_.gridEnabled) << "until the timer's tick";
    const services::FileRecord& asked = given_.desktop.opens.at(0);
    EXPECT_EQ(asked.title + asked.filter.c_str(), "KestrelIconEditor - OpenIcon Files (*.ico)");
    EXPECT_EQ(asked.flags, 0x1004U);
}

TEST_F(DocumentCommandsTest, RefusedFilesChangeNothing) {
    commands_.OpenNamed("/icons/red.ico");
    guard_.tmrStarted = false;
    given_.desktop.choice = "/icons/text.ico";
    for (const auto& [language, named, chosen] :
         {std::tuple{i18n::kEnglish,
                     "Unable to open the file nowhere.ico\r\nThe file does not exist.",
                     "Unable to open the file text.ico\r\nIt is no icon, cursor or PNG file."},
          {i18n::kChinese, "不能打开nowhere.ico文件\r\n文件不存在.",
           "不能打开 text.ico文件\r\n不是图标, 光标或 PNG 文件."}}) {
        i18n::SetUiLanguage(language);
        commands_.OpenNamed("/nowhere.ico");
        ExpectError(named);
        commands_.mnuOpen_Click();
        ExpectError(chosen);
        EXPECT_TRUE(guard_.gridEnabled && !guard_.tmrStarted);
    }
    EXPECT_EQ(recent_.GetRecentFile(1) + recent_.GetRecentFile(2), "/icons/red.ico");
    EXPECT_EQ(icon_.FileTitle, "red.ico");
    EXPECT_EQ(icon_.PicImage().GetPixel(1, 2), 0x0000FFU);
}

TEST_F(DocumentCommandsTest, UnsavedChangesAreAskedAbout) {
    commands_.mnuNew_Click();
    EXPECT_TRUE(given_.boxes.shown.empty()) << "nothing to save yet";
    for (const auto& [answer, saveAs, resets] :
         {std::tuple{Answer::Cancel, "", false},
          {Answer::Yes, "", false},  // the save dialog is cancelled
          {Answer::Yes, "/icons/new.ico", true},
          {Answer::No, "", true}}) {
        Draw();
        given_.boxes.answers = {answer};
        given_.desktop.choice = saveAs;
        commands_.mnuNew_Click();
        ExpectBox(BoxIcon::Question, BoxButtons::YesNoCancel, ": Save changes to current icon?");
        EXPECT_EQ(icon_.IsTransparent(9, 9), resets);
        EXPECT_EQ(icon_.Modified, !resets);
    }
    EXPECT_EQ(given_.files.contents.at("/icons/new.ico").size(), 3262U);
    EXPECT_EQ(given_.desktop.saves.at(0).file, "Untitled.ico");
    EXPECT_EQ(given_.desktop.saves.at(0).flags, 0x806U);

    Draw();
    commands_.OpenNamed("/icons/red.ico");
    EXPECT_TRUE(icon_.IsUntitled()) << "the question was answered Cancel";
}

TEST_F(DocumentCommandsTest, SavesInPlaceAndUnderANewName) {
    commands_.OpenNamed("/ICONS/Red.ICO");
    Draw();
    commands_.mnuSave_Click();
    EXPECT_TRUE(HoldsTheIcon("/icons/red.ico") && !icon_.Modified);
    given_.desktop.choice = "/icons/other.ico";
    commands_.mnuSaveAs_Click();
    EXPECT_EQ(given_.desktop.saves.at(0).file, "/icons/red.ico");
    EXPECT_EQ(icon_.FilePath, "/icons/other.ico");
    EXPECT_EQ(views_.title, "KestrelIconEditor - other.ico");
    EXPECT_TRUE(HoldsTheIcon("/icons/other.ico"));
    EXPECT_EQ(recent_.GetRecentFile(1), "/icons/other.ico");
    EXPECT_EQ(recent_.GetRecentFile(2), "/icons/red.ico");
}

TEST_F(DocumentCommandsTest, AsksBeforeReplacingWhatAnotherProgramChanged) {
    const std::string path = "/icons/several.ico";
    commands_.OpenNamed(path);
    Draw();
    given_.files.contents.at(path).push_back(0);
    given_.boxes.answers = {Answer::Yes, Answer::Ok, Answer::No, Answer::Ok, Answer::Yes};
    EXPECT_FALSE(commands_.PromptSaveChanges() || HoldsTheIcon(path));
    ExpectBox(BoxIcon::Question, BoxButtons::YesNo,
              ": \"several.ico\" has been changed by another program.\r\nOverwrite it?");
    i18n::SetUiLanguage(i18n::kChinese);
    commands_.mnuSave_Click();
    ExpectBox(BoxIcon::Question, BoxButtons::YesNo,
              ": \"several.ico\" 已被其它程序修改.\r\n是否覆盖?");
    EXPECT_TRUE(HoldsTheIcon(path));
    given_.files.contents.erase(path);
    commands_.mnuSave_Click();
    commands_.mnuSave_Click();
    EXPECT_TRUE(HoldsTheIcon(path) && given_.boxes.shown.size() == 5) << "gone, then unchanged";
}

TEST_F(DocumentCommandsTest, WarnsBeforeReplacingSeveralIcons) {
    commands_.OpenNamed("/icons/several.ico");
    Draw();
    given_.boxes.answers = {Answer::Cancel, Answer::Ok, Answer::Ok};
    commands_.mnuSave_Click();
    ExpectBox(BoxIcon::Information, BoxButtons::OkCancel,
              ": The file \"several.ico\" contains multiple icons.\r\n"
              "This \"Save\" will overwrite the other icons in the file.\r\n\r\n"
              "Click Ok to continue with \"Save\".\r\nClick Cancel to \"Save As\".");
    EXPECT_EQ(given_.desktop.saves.at(0).file, "*.ico");
    i18n::SetUiLanguage(i18n::kChinese);
    given_.files.writeError = {28, "No space left on device"};
    given_.desktop.choice = "/icons/full.ico";
    commands_.mnuSaveAs_Click();
    ExpectError("No space left on device.\r\n\r\n不能保存 full.ico 文件.");
    EXPECT_EQ(icon_.FilePath, "/icons/several.ico");
    EXPECT_TRUE(icon_.Modified);
    EXPECT_EQ(given_.application.hourglasses, "on off ");
    given_.files.writeError = {};
    commands_.mnuSave_Click();
    ExpectBox(BoxIcon::Information, BoxButtons::OkCancel,
              ": \"several.ico\" 文件包含多个图标.\r\n若 \"保存\" 将覆盖此文件中的其它图标.\r\n\r\n"
              "点击‘确定’继续 \"保存\".\r\n点击 ‘取消’ 将 \"另存为\".");
    EXPECT_TRUE(HoldsTheIcon("/icons/several.ico"));
}

TEST_F(DocumentCommandsTest, WhatFloatsIsSavedAndPutDown) {
    editing::Selection& selection = editor_.Selected();
    Draw();
    editor_.SelectAll();
    selection.MoveBy(1, 0);
    commands_.mnuSave_Click();
    EXPECT_TRUE(selection.SelectionFloating()) << "the dialog was cancelled";
    given_.desktop.choice = "/icons/new.ico";
    given_.files.writeError = {28, "No space left on device"};
    commands_.mnuSave_Click();
    ExpectError("No space left on device.\r\n\r\nUnable to save Untitled.");
    EXPECT_EQ(views_.title, "KestrelIconEditor - new.ico");
    EXPECT_TRUE(selection.SelectionFloating() && icon_.IsUntitled());
    given_.files.writeError = {};
    commands_.mnuSave_Click();
    EXPECT_FALSE(selection.Exists() || icon_.Modified || icon_.IsTransparent(10, 9));
    EXPECT_TRUE(HoldsTheIcon("/icons/new.ico"));
    editor_.SelectAll();
    commands_.mnuSave_Click();
    EXPECT_TRUE(selection.SelectionMarked()) << "what is only marked stays so";
}

}  // namespace
}  // namespace kestrel::commands
