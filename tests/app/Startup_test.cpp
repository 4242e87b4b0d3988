#include "app/Startup.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "i18n/Language.h"
#include "platform/system/DiskFiles.h"
#include "tests/support/Services.h"

namespace kestrel::app {
namespace {

class StartupTest : public testing::Test {
  protected:
    void TearDown() override { i18n::SetUiLanguage(i18n::kEnglish); }

    test::FakeServices given_;
    StartupServices services_{given_.boxes, given_.registry, given_.files, given_.settings};
    StartupFacts facts_{1033, false, 640, 480, 16, "C:\\Icons", "/windows"};
};

TEST_F(StartupTest, ChoosesTheLanguageByLocaleUnlessAnotherWasChosen) {
    for (const auto& [lcid, language] : {std::pair{2052U, "CHS"}, {1028U, "ENG"}}) {
        facts_.systemLcid = lcid;
        EXPECT_TRUE(PrepareStart(facts_, services_));
        EXPECT_EQ(i18n::UiLanguage(), language);
    }
    settings::SaveLanguage(given_.settings, i18n::kChinese);
    EXPECT_TRUE(PrepareStart(facts_, services_));
    EXPECT_EQ(i18n::UiLanguage(), "CHS");
    facts_.anotherInstanceRuns = true;
    EXPECT_FALSE(PrepareStart(facts_, services_));
    const auto& box = given_.boxes.shown.at(0);
    EXPECT_EQ(box.title + box.text, "error!Program is running !") << "in the locale's language";
}

TEST_F(StartupTest, FailedChecksEndTheStartWithTheirMessage) {
    for (const auto& [facts, box] :
         {std::pair{StartupFacts{1033, false, 639, 480, 24, "", ""},
                    "Error|KestrelIconEditor requires a screen resolution of at least 640 x 480 "
                    "pixels.\r\n\r\nPlease adjust your screen resolution and try again."},
          {{2052, false, 640, 479, 24, "", ""},
           "错误|KestrelIconEditor 显示屏分辨率需设置为640×480以上.\r\n\r\n"
           "请在调整分辨率后重新运行程序."},
          {{1033, false, 640, 480, 8, "", ""},
           "Error|KestrelIconEditor requires at least high color mode.\r\n\r\n"
           "Please adjust your color mode and try again."},
          {{2052, false, 640, 480, 8, "", ""},
           "错误|KestrelIconEditor "
           "颜色模式需设置为真彩色.\r\n\r\n请在调整颜色模式后重新运行程序."}}) {
        EXPECT_FALSE(PrepareStart(facts, services_));
        const auto& shown = given_.boxes.shown.back();
        EXPECT_EQ(shown.icon, services::BoxIcon::Critical);
        EXPECT_EQ(shown.title + "|" + shown.text, "KestrelIconEditor - " + std::string(box));
    }
    EXPECT_EQ(given_.boxes.shown.size(), 4U);
}

TEST_F(StartupTest, RegistersTheAssociationAndMakesTheWindowsFolder) {
    given_.registry.refused = "HKCR\\icofile";
    const auto values = PrepareStart(facts_, services_);
    ASSERT_TRUE(values);
    EXPECT_EQ(values->WindowsFolder, facts_.windowsDirectory);
    EXPECT_EQ(given_.files.contents.at(facts_.windowsDirectory + "/kestrel.ico").size(), 3262U);
    auto& keys = given_.registry.values;
    const std::string command = "HKCR\\icofile\\Shell\\Open\\Command";
    EXPECT_EQ(keys["HKCR\\.ico"][""], "icofile");
    EXPECT_EQ(keys["HKCR\\icofile\\DefaultIcon"][""], "%1");
    EXPECT_EQ(keys[command][""], "C:\\Icons\\KestrelIconEditor.exe /open %1");
    RegisterIcoAssociation(given_.registry, "C:\\");
    EXPECT_EQ(keys[command][""], "C:\\KestrelIconEditor.exe /open %1");
}

TEST_F(StartupTest, CommandLineNamesAFileInProperCase) {
    system::DiskFiles files;
    const auto named = [&](const std::string& line) { return PathOfCommandLine(line, files); };
    EXPECT_EQ(named("/OPEN my own.ICO"), "My Own.ico");
    for (const char* line : {"/open", "-open x", "x /open y"})
        EXPECT_EQ(named(line), "");
    const std::string folder = testing::TempDir() + "Kestrel-case";
    std::filesystem::create_directories(folder);
    std::ofstream(folder + "/bird.ico").close();
    EXPECT_EQ(named("/open " + folder + "/BIRD.ico"), folder + "/bird.ico");
    std::ofstream(folder + "/Bird.ico").close();
    EXPECT_EQ(named("/open " + folder + "/bird.ico"), folder + "/bird.ico") << "the typed one";
    std::filesystem::remove_all(folder);
    EXPECT_EQ(PrintedFor("--version", "1.2"), "KestrelIconEditor 1.2\n");
    EXPECT_TRUE(PrintedFor("--help", "1.2").starts_with("Usage: KestrelIconEditor [/open FILE]\n"));
    EXPECT_EQ(PrintedFor("--help --version", "1.2"), "");
}

}  // namespace
}  // namespace kestrel::app
