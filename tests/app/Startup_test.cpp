#include "app/Startup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>

#include "app/ApplicationIcon.h"
#include "document/IcoFile.h"
#include "i18n/Language.h"
#include "platform/system/DiskFiles.h"
#include "platform/system/Folders.h"
#include "tests/support/Services.h"

namespace kestrel::app {
namespace {

using dialogs::BoxIcon;

class StartupTest : public testing::Test {
  protected:
    StartupTest() {
        facts_.systemLcid = 1033;
        facts_.screenWidth = 640;
        facts_.screenHeight = 480;
        facts_.bitsPerPixel = 16;
        facts_.applicationFolder = "C:\\Icons";
        facts_.windowsDirectory = testing::TempDir() + "kestrel-startup-windows";
    }
    void TearDown() override {
        i18n::SetUiLanguage(i18n::kEnglish);
        std::filesystem::remove_all(facts_.windowsDirectory);
    }

    StartupFacts facts_;
    test::ScriptedBoxes boxes_;
    test::MemoryRegistry registry_;
    test::MemoryFiles files_;
    Settings settings_{files_};
    StartupServices services_{boxes_, registry_, files_, settings_};
};

TEST_F(StartupTest, ChoosesTheLanguageByLocaleAndMakesTheWindowsFolder) {
    for (const auto& [lcid, language] : {std::pair{2052U, "CHS"}, {1033U, "ENG"}, {1028U, "ENG"}}) {
        facts_.systemLcid = lcid;
        const auto values = PrepareStart(facts_, services_);
        ASSERT_TRUE(values);
        EXPECT_EQ(i18n::UiLanguage(), language);
        EXPECT_EQ(values->SystemLcidText, std::to_string(lcid));
        EXPECT_EQ(values->WindowsFolder, facts_.windowsDirectory);
    }
    EXPECT_EQ(files_.contents.at(facts_.windowsDirectory + "/kestrel.ico").size(), 3262U);
    EXPECT_TRUE(boxes_.shown.empty());
}

TEST_F(StartupTest, TheLanguageChosenLastReplacesTheLocales) {
    const std::string folder = system::CanWriteIn(system::ApplicationFolder())
                                   ? system::ApplicationFolder()
                                   : system::ConfigFolder();
    const std::string text = "[Settings]\r\nLanguage=CHS\r\n";
    files_.contents[folder + "/" + system::ExecutableName() + ".ini"] = {text.begin(), text.end()};
    facts_.anotherInstanceRuns = true;
    EXPECT_FALSE(PrepareStart(facts_, services_));
    EXPECT_EQ(boxes_.shown.at(0).title, "error!") << "the checks speak the locale's language";
    facts_.anotherInstanceRuns = false;
    EXPECT_TRUE(PrepareStart(facts_, services_));
    EXPECT_EQ(i18n::UiLanguage(), "CHS");
}

TEST_F(StartupTest, FailedChecksEndTheStartWithTheirMessage) {
    struct {
        const char* name;
        std::uint32_t lcid;
        bool running;
        int width, height, bits;
        BoxIcon icon;
        const char* text;
        const char* title;
    } const cases[] = {
        {"running", 1033, true, 1024, 768, 24, BoxIcon::Exclamation, "Program is running !",
         "error!"},
        {"running, Chinese", 2052, true, 100, 100, 1, BoxIcon::Exclamation, "请不要重复运行程序！",
         "错误!"},
        {"narrow", 1033, false, 639, 480, 24, BoxIcon::Critical,
         "KestrelIconEditor requires a screen resolution of at least 640 x 480 pixels.\r\n\r\n"
         "Please adjust your screen resolution and try again.",
         "KestrelIconEditor - Error"},
        {"low, Chinese", 2052, false, 640, 479, 24, BoxIcon::Critical,
         "KestrelIconEditor 显示屏分辨率需设置为640×480以上.\r\n\r\n请在调整分辨率后重新运行程序.",
         "KestrelIconEditor - 错误"},
        {"eight bits", 1033, false, 640, 480, 8, BoxIcon::Critical,
         "KestrelIconEditor requires at least high color mode.\r\n\r\n"
         "Please adjust your color mode and try again.",
         "KestrelIconEditor - Error"},
        {"eight bits, Chinese", 2052, false, 640, 480, 8, BoxIcon::Critical,
         "KestrelIconEditor 颜色模式需设置为真彩色.\r\n\r\n请在调整颜色模式后重新运行程序.",
         "KestrelIconEditor - 错误"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        facts_.systemLcid = c.lcid;
        facts_.anotherInstanceRuns = c.running;
        facts_.screenWidth = c.width;
        facts_.screenHeight = c.height;
        facts_.bitsPerPixel = c.bits;
        boxes_.shown.clear();
        EXPECT_FALSE(PrepareStart(facts_, services_));
        ASSERT_EQ(boxes_.shown.size(), 1U);
        EXPECT_EQ(boxes_.shown[0].icon, c.icon);
        EXPECT_EQ(boxes_.shown[0].text, c.text);
        EXPECT_EQ(boxes_.shown[0].title, c.title);
    }
    EXPECT_TRUE(registry_.values.empty());
}

TEST_F(StartupTest, RegistersTheAssociation) {
    registry_.refused = "HKCR\\icofile";
    RegisterIcoAssociation(registry_, "C:\\Icons");
    using Keys = std::map<std::string, test::MemoryRegistry::Values>;
    EXPECT_EQ(registry_.values, (Keys{{"HKCR\\.ico", {{"", "icofile"}}},
                                      {"HKCR\\icofile\\DefaultIcon", {{"", "%1"}}},
                                      {"HKCR\\icofile\\Shell\\Open\\Command",
                                       {{"", "C:\\Icons\\KestrelIconEditor.exe /open %1"}}}}));
    RegisterIcoAssociation(registry_, "C:\\");
    EXPECT_EQ(registry_.values["HKCR\\icofile\\Shell\\Open\\Command"][""],
              "C:\\KestrelIconEditor.exe /open %1");
}

TEST_F(StartupTest, CommandLineNamesAFileInProperCase) {
    struct {
        const char* line;
        const char* path;
    } const cases[] = {
        {"/OPEN SAMPLE", "Sample"},
        {"/open my own.ICO", "My Own.ico"},
        {"/open", ""},
        {"-open x", ""},
        {"x /open y", ""},
        {"", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(PathOfCommandLine(c.line), c.path) << c.line;

    // Both files exist: the typed one is meant.
    const std::filesystem::path folder = testing::TempDir() + "Kestrel-case";
    std::filesystem::create_directories(folder);
    const auto make = [&](const char* name) { std::ofstream file(folder / name); };
    make("bird.ico");
    const std::string typed = (folder / "bird.ico").string();
    EXPECT_TRUE(PathOfCommandLine("/open " + typed).ends_with("/Bird.ico"));
    const std::string missing = (folder / "none.ico").string();
    EXPECT_TRUE(PathOfCommandLine("/open " + missing).ends_with("/None.ico"));
    make("Bird.ico");
    EXPECT_TRUE(PathOfCommandLine("/open " + typed).ends_with("/bird.ico"));
    std::filesystem::remove_all(folder);
}

TEST(ApplicationIcon, TheSampleIsTheProgramsIcon) {
    system::DiskFiles files;
    const auto sample = files.ReadFile(TEST_DATA "/../../samples/kestrel.ico", 10000);
    ASSERT_TRUE(sample);
    const document::IcoBytes icon = document::EncodeIco(ApplicationIcon());
    EXPECT_TRUE(std::equal(sample->begin(), sample->end(), icon.begin(), icon.end()));
}

}  // namespace
}  // namespace kestrel::app
