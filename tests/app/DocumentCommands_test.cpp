#include "app/DocumentCommands.h"

#include <gtest/gtest.h>

#include "document/IcoFile.h"
#include "i18n/Language.h"
#include "platform/icons/IconFile.h"
#include "tests/support/Services.h"

namespace kestrel::app {
namespace {

using dialogs::Answer;
using dialogs::BoxButtons;
using dialogs::BoxIcon;

std::vector<std::uint8_t> RedIcon() {
    document::IconDocument icon;
    icon.PicMask.SetPixel(1, 2, gdi::kBlack);
    icon.PicImage.SetPixel(1, 2, 0x0000FF);
    const document::IcoBytes bytes = document::EncodeIco(icon);
    return {bytes.begin(), bytes.end()};
}

// The same image named by two entries of the directory.
std::vector<std::uint8_t> SeveralIcons() {
    constexpr std::ptrdiff_t kEntryBytes = 16;
    std::vector<std::uint8_t> bytes = RedIcon();
    bytes[4] = 2;
    bytes[18] = static_cast<std::uint8_t>(bytes[18] + kEntryBytes);
    const std::vector<std::uint8_t> entry(bytes.begin() + 6, bytes.begin() + 6 + kEntryBytes);
    bytes.insert(bytes.begin() + 6, entry.begin(), entry.end());
    return bytes;
}

class DocumentCommandsTest : public testing::Test {
  protected:
    DocumentCommandsTest() {
        files_.contents["/icons/red.ico"] = RedIcon();
        files_.contents["/icons/text.ico"] = {'h', 'e', 'l', 'l', 'o'};
        files_.contents["/icons/several.ico"] = SeveralIcons();
    }
    void TearDown() override { i18n::SetUiLanguage(i18n::kEnglish); }

    void Draw() {
        editor_.PicMain_MouseDown(editing::Button::Left, 95, 95);
        editor_.PicMain_MouseUp(editing::Button::Left, 95, 95);
    }
    void ExpectBox(BoxIcon icon, BoxButtons buttons, const std::string& text,
                   const std::string& title) {
        ASSERT_FALSE(boxes_.shown.empty());
        const auto& last = boxes_.shown.back();
        EXPECT_EQ(last.icon, icon);
        EXPECT_EQ(last.buttons, buttons);
        EXPECT_EQ(last.text, text);
        EXPECT_EQ(last.title, title);
    }

    test::RecordingWindow window_;
    test::ScriptedBoxes boxes_;
    test::ScriptedDialogs cdb_;
    test::MemoryFiles files_;
    test::MemoryRegistry registry_;
    controls::SmartMenuXP menu_;
    ModRecent recent_{menu_, registry_, files_, boxes_, 1033};
    editing::Editor editor_{window_, 0xF0F0F0};
    document::IconDocument& icon_ = editor_.Document();
    DocumentCommands commands_{editor_, window_, recent_, cdb_, boxes_, files_};
};

TEST_F(DocumentCommandsTest, OpensByDialogAndByName) {
    cdb_.choice = "/icons/red.ico";
    Draw();
    boxes_.answers = {Answer::No};
    commands_.mnuOpen_Click();
    EXPECT_EQ(icon_.PicImage.GetPixel(1, 2), 0x0000FFU);
    EXPECT_TRUE(icon_.IsTransparent(9, 9));
    EXPECT_EQ(icon_.FilePath, "/icons/red.ico");
    EXPECT_EQ(window_.title, "KestrelIconEditor - red.ico");
    EXPECT_FALSE(icon_.Modified);
    EXPECT_EQ(editor_.History().UndoCount(), 1U);
    EXPECT_FALSE(window_.gridEnabled) << "until the timer's tick";
    EXPECT_TRUE(window_.tmrStarted);
    const dialogs::FileRequest& asked = cdb_.opens.at(0);
    EXPECT_EQ(asked.title, "KestrelIconEditor - Open");
    EXPECT_EQ(asked.filter, "Icon Files (*.ico)|*.ico");
    EXPECT_EQ(asked.fileName, "");
    EXPECT_TRUE(asked.fileMustExist);

    commands_.OpenNamed("/icons/several.ico");
    EXPECT_EQ(icon_.FileTitle, "several.ico");
    EXPECT_TRUE(icon_.MultipleIcons);
    commands_.OpenNamed("/icons/red.ico");
    EXPECT_FALSE(icon_.MultipleIcons);
}

TEST_F(DocumentCommandsTest, RefusedFilesChangeNothing) {
    commands_.OpenNamed("/icons/red.ico");
    window_.tmrStarted = false;
    const std::string error = "KestrelIconEditor - Error";
    struct {
        const char* name;
        const char* english;
        const char* chinese;
    } const cases[] = {
        {"/icons/text.ico", "Unable to open the file text.ico", "不能打开text.ico文件"},
        {"/nowhere.ico", "Unable to open the file nowhere.ico", "不能打开nowhere.ico文件"},
    };
    for (const auto& c : cases) {
        commands_.OpenNamed(c.name);
        ExpectBox(BoxIcon::Exclamation, BoxButtons::Ok, c.english, error);
        i18n::SetUiLanguage(i18n::kChinese);
        commands_.OpenNamed(c.name);
        ExpectBox(BoxIcon::Exclamation, BoxButtons::Ok, c.chinese, "KestrelIconEditor - 错误");
        i18n::SetUiLanguage(i18n::kEnglish);
    }
    cdb_.choice = "/icons/text.ico";
    i18n::SetUiLanguage(i18n::kChinese);
    commands_.mnuOpen_Click();
    ExpectBox(BoxIcon::Exclamation, BoxButtons::Ok, "不能打开 text.ico文件",
              "KestrelIconEditor - 错误");
    EXPECT_EQ(icon_.FileTitle, "red.ico");
    EXPECT_EQ(icon_.PicImage.GetPixel(1, 2), 0x0000FFU);
    EXPECT_TRUE(window_.gridEnabled);
    EXPECT_FALSE(window_.tmrStarted);
}

TEST_F(DocumentCommandsTest, CancelledDialogsAreSilent) {
    commands_.OpenNamed("/icons/red.ico");
    Draw();
    boxes_.answers = {Answer::No};
    commands_.mnuOpen_Click();
    commands_.mnuSaveAs_Click();
    EXPECT_EQ(boxes_.shown.size(), 1U) << "only the question whether to save";
    EXPECT_EQ(icon_.FileTitle, "red.ico");
    EXPECT_FALSE(icon_.Modified) << "answered No before the dialog was cancelled";
    EXPECT_TRUE(window_.gridEnabled);
    EXPECT_FALSE(icon_.IsTransparent(9, 9));
}

TEST_F(DocumentCommandsTest, ThePromptGuardsNew) {
    commands_.mnuNew_Click();
    EXPECT_TRUE(boxes_.shown.empty()) << "nothing to save yet";
    struct {
        Answer answer;
        const char* saveAs;
        bool resets;
    } const cases[] = {
        {Answer::Cancel, "", false},
        {Answer::Yes, "", false},  // the save dialog is cancelled
        {Answer::Yes, "/icons/new.ico", true},
        {Answer::No, "", true},
    };
    for (const auto& c : cases) {
        Draw();
        boxes_.answers = {c.answer};
        cdb_.choice = c.saveAs;
        commands_.mnuNew_Click();
        ExpectBox(BoxIcon::Question, BoxButtons::YesNoCancel, "Save changes to current icon?",
                  "KestrelIconEditor");
        EXPECT_EQ(icon_.IsTransparent(9, 9), c.resets);
        EXPECT_EQ(icon_.Modified, !c.resets);
    }
    EXPECT_EQ(files_.contents.at("/icons/new.ico").size(), 3262U);
    EXPECT_EQ(cdb_.saves.at(0).fileName, "Untitled.ico");
    EXPECT_TRUE(cdb_.saves.at(0).overwritePrompt);
}

TEST_F(DocumentCommandsTest, SavesInPlaceAndUnderANewName) {
    commands_.OpenNamed("/icons/red.ico");
    Draw();
    commands_.mnuSave_Click();
    EXPECT_EQ(files_.contents["/icons/red.ico"].at(62 + 22 * 96 + 27), 0) << "black at (9, 9)";
    EXPECT_FALSE(icon_.Modified);
    EXPECT_TRUE(icon_.SaveSucceeded);
    cdb_.choice = "/icons/other.ico";
    commands_.mnuSaveAs_Click();
    EXPECT_EQ(cdb_.saves.at(0).fileName, "/icons/red.ico");
    EXPECT_EQ(icon_.FilePath, "/icons/other.ico");
    EXPECT_EQ(window_.title, "KestrelIconEditor - other.ico");
    EXPECT_EQ(window_.hourglasses, "on off on off ");
    const auto saved = icons::ReadBestImage(files_.contents.at("/icons/other.ico"));
    ASSERT_TRUE(saved);
    EXPECT_TRUE(saved->color.SamePixels(icon_.PicImage));
    EXPECT_TRUE(saved->mask.SamePixels(icon_.PicMask));
}

TEST_F(DocumentCommandsTest, WarnsBeforeReplacingSeveralIcons) {
    commands_.OpenNamed("/icons/several.ico");
    boxes_.answers = {Answer::Cancel};
    commands_.mnuSave_Click();
    ExpectBox(BoxIcon::Information, BoxButtons::OkCancel,
              "The file \"several.ico\" contains multiple icons.\r\n"
              "This \"Save\" will overwrite the other icons in the file.\r\n\r\n"
              "Click Ok to continue with \"Save\".\r\nClick Cancel to \"Save As\".",
              "KestrelIconEditor");
    EXPECT_EQ(cdb_.saves.at(0).fileName, "*.ico");
    EXPECT_FALSE(icon_.SaveSucceeded);
    i18n::SetUiLanguage(i18n::kChinese);
    boxes_.answers = {Answer::Ok};
    commands_.mnuSave_Click();
    ExpectBox(BoxIcon::Information, BoxButtons::OkCancel,
              "\"several.ico\" 文件包含多个图标.\r\n若 \"保存\" 将覆盖此文件中的其它图标.\r\n\r\n"
              "点击‘确定’继续 \"保存\".\r\n点击 ‘取消’ 将 \"另存为\".",
              "KestrelIconEditor");
    EXPECT_TRUE(icon_.SaveSucceeded);
    commands_.mnuSave_Click();
    EXPECT_EQ(boxes_.shown.size(), 2U) << "one image now";
}

TEST_F(DocumentCommandsTest, ExitAsksTheWindowToClose) {
    commands_.mnuExit_Click();
    EXPECT_TRUE(window_.unloaded);
    EXPECT_TRUE(boxes_.shown.empty()) << "the question is the window's";
}

TEST_F(DocumentCommandsTest, AFailedSaveKeepsIconAndFlags) {
    files_.writeError = {28, "No space left on device"};
    Draw();
    cdb_.choice = "/icons/full.ico";
    commands_.mnuSave_Click();
    ExpectBox(BoxIcon::Exclamation, BoxButtons::Ok,
              "No space left on device.\r\n\r\nUnable to save Untitled.",
              "KestrelIconEditor - Error");
    EXPECT_EQ(window_.title, "KestrelIconEditor - full.ico");
    EXPECT_TRUE(icon_.IsUntitled());

    boxes_.answers = {Answer::No};
    commands_.OpenNamed("/icons/several.ico");
    Draw();
    i18n::SetUiLanguage(i18n::kChinese);
    commands_.mnuSaveAs_Click();
    ExpectBox(BoxIcon::Exclamation, BoxButtons::Ok,
              "No space left on device.\r\n\r\n不能保存 full.ico 文件.",
              "KestrelIconEditor - 错误");
    EXPECT_EQ(icon_.FilePath, "/icons/several.ico");
    EXPECT_TRUE(icon_.Modified);
    EXPECT_TRUE(icon_.MultipleIcons);
    EXPECT_FALSE(icon_.SaveSucceeded);
    EXPECT_FALSE(icon_.IsTransparent(9, 9));
    EXPECT_EQ(window_.hourglasses, "on off on off ");
}

}  // namespace
}  // namespace kestrel::app
