#include "commands/CSysTray.h"

#include <gtest/gtest.h>

#include "tests/support/IconFiles.h"
#include "tests/support/Services.h"

namespace kestrel::commands {
namespace {

using services::TrayMessage;

class NotedWindow : public TaskListWindow {
  public:
    bool IsShown() const override { return !hidden; }
    void Hide() override { hidden = true; }
    void ShowNormal() override { hidden = false; }
    void ShowInTaskList(bool shown) override { listed = shown; }

    bool hidden = false;
    bool listed = true;
};

class CSysTrayTest : public testing::Test {
  protected:
    NotedWindow window_;
    test::RecordingTray tray_;
    test::MemoryFiles files_;
    test::ScriptedBoxes boxes_;
    CSysTray sysTray_{window_, tray_, files_, boxes_};
};

TEST_F(CSysTrayTest, ADoubleClickRestoresUnlessItMayNot) {
    sysTray_.MinToSysTray();
    EXPECT_TRUE(tray_.shown && window_.hidden && !window_.listed);
    int clicks = 0;
    sysTray_.LButtonDblClk = [&] {
        // Whatever is done to the icon meanwhile is dropped.
        if (++clicks < 5) tray_.onMessage(TrayMessage::LButtonDblClk);
    };
    sysTray_.DefaultDblClk = false;
    tray_.onMessage(TrayMessage::LButtonDblClk);
    EXPECT_TRUE(tray_.shown && window_.hidden);
    sysTray_.DefaultDblClk = true;
    tray_.onMessage(TrayMessage::LButtonDblClk);
    EXPECT_TRUE(!tray_.shown && !window_.hidden && window_.listed);
    EXPECT_EQ(clicks, 2);
}

TEST_F(CSysTrayTest, AToolTipShows63WholeCharacters) {
    sysTray_.IconInSysTray();
    const std::pair<std::string, std::string> kTexts[] = {
        {std::string(100, 'a'), std::string(63, 'a')},
        {std::string(62, 'a') + "标题", std::string(62, 'a') + "标"},
        {"标", "标"},
    };
    for (const auto& [text, shown] : kTexts) {
        sysTray_.ChangeToolTip(text);
        EXPECT_EQ(tray_.shown->toolTip, shown);
        EXPECT_EQ(sysTray_.ToolTip(), text);
    }
}

TEST_F(CSysTrayTest, IconsComeFromFilesAndAnimationsStepByStep) {
    sysTray_.IconInSysTray();
    files_.contents["/a.ico"] = formats::IconFileOf(std::vector{test::ColoredIcon(7)});
    files_.contents["/a.ANI"] = test::Animation();
    for (const auto& [file, icon] :
         {std::pair{"/a.ico", 7}, {"/a.ANI", 700}, {"/a.ANI", 701}, {"/a.ANI", 700}}) {
        sysTray_.ChangeIcon(file);
        EXPECT_EQ(tray_.shown->picture->image.GetPixel(16, 16), test::ColorOf(icon));
    }
    files_.contents["/a.ANI"].resize(12);
    sysTray_.ChangeIcon("/a.ANI");
    ASSERT_EQ(boxes_.shown.size(), 1U);
    EXPECT_EQ(boxes_.shown[0].text, "Error Loading file/a.ANI[0]  ");
    EXPECT_EQ(boxes_.shown[0].title, "Error");
    EXPECT_TRUE(tray_.shown->picture);
    sysTray_.ChangeIcon("/missing.ico");
    EXPECT_FALSE(tray_.shown->picture);
}

}  // namespace
}  // namespace kestrel::commands
