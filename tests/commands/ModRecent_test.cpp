#include "commands/ModRecent.h"

#include <gtest/gtest.h>

#include "commands/ModLanguage.h"
#include "platform/system/CodePage.h"
#include "tests/support/Services.h"

namespace kestrel::commands {
namespace {

using Paths = std::vector<std::string>;
using Values = test::MemoryRegistry::Values;

class ModRecentTest : public testing::Test {
  protected:
    ModRecentTest() { BuildMenuBar(menus_); }
    // A list of the next start, with what the one before left in the registry.
    ModRecent NewList(std::uint32_t lcid = 1033) {
        ModRecent list(menu_, given_.registry, given_.files, given_.boxes, given_.documents, lcid);
        list.LoadRecentFiles();
        return list;
    }
    // The captions that the menu shows, in order.
    Paths Shown() {
        Paths captions;
        for (int slot = 1; slot <= 4; ++slot) {
            const auto* item = menu_.Find("mnuRecentFile" + std::to_string(slot));
            if (item->visible) captions.push_back(item->caption);
        }
        EXPECT_EQ(menu_.Find("mnuRecentFile0")->visible, !captions.empty());
        return captions;
    }

    test::FakeServices given_;
    MainMenus menus_;
    controls::SmartMenuXP& menu_ = menus_.SmartMenuXP1;
    Values& stored_ = given_.registry.values["HKCU\\Software\\Brinmoor\\KestrelIconEditor\\Rfl"];
};

TEST_F(ModRecentTest, KeepsTheLastFourInOrderOfUse) {
    const std::pair<Paths, Paths> cases[] = {
        {{"A", "B", "C", "D", "E", "C"}, {"C", "E", "D", "B"}},
        {{"a.ico", "A.ico"}, {"A.ico", "a.ico"}},
        {{"a && b&c"}, {"a &&&& b&&c"}},
    };
    for (const auto& [added, shown] : cases) {
        stored_.clear();
        ModRecent list = NewList();
        for (const std::string& path : added)
            list.AddRecentFile(path);
        EXPECT_EQ(Shown(), shown);
    }
}

TEST_F(ModRecentTest, IsInTheRegistryAtEveryMoment) {
    std::string wide = "/";
    for (int i = 0; i < 250; ++i)
        wide += "图";
    stored_ = {{"1.", "  /x  "}, {"2.", wide}, {"3.", "/y"}, {"4.", std::string(260, 'z')}};
    ModRecent list = NewList();
    EXPECT_EQ(Shown(), (Paths{"/x", wide, "/y"}));
    EXPECT_EQ(stored_.size(), 4U) << "until it is replaced";
    list.AddRecentFile("/y");
    EXPECT_EQ(stored_, (Values{{"1.", "/y"}, {"2.", "/x"}, {"3.", wide}}));
    EXPECT_EQ(given_.documents.used, Paths{"/y"}) << "the desktop is told of use, not of the start";
}

TEST_F(ModRecentTest, AMissingFileIsReportedAndLeavesTheList) {
    stored_ = {{"1.", "/a"}, {"2.", "/b"}, {"3.", "/c"}, {"4.", "/b"}};
    ModRecent list = NewList();
    given_.files.contents["/a"] = {};
    EXPECT_EQ(list.GetRecentFile(4), "");
    EXPECT_EQ(Shown(), (Paths{"/a", "/b", "/c"})) << "the slot that was chosen goes";
    EXPECT_EQ(given_.boxes.shown.at(0).text, "Unable to locate /b");
    EXPECT_EQ(given_.boxes.shown[0].title, "KestrelIconEditor - Error");
    EXPECT_EQ(list.GetRecentFile(1), "/a");
    given_.files.contents.clear();
    for (const int slot : {3, 2, 1})
        list.GetRecentFile(slot);
    EXPECT_EQ(Shown(), Paths{});
    EXPECT_EQ(stored_, Values{});
}

TEST_F(ModRecentTest, CaptionsArePaddedForWideCharacters) {
    stored_ = {{"1.", "/图标/é.ico"}};
    ModRecent list = NewList(2052);
    // é is two bytes in this code page too (A8 A6).
    EXPECT_EQ(Shown(), Paths{"/图标/é.ico   "});

    const std::tuple<const char*, std::uint32_t, int> cases[] = {
        {"图x", 2052, 1}, {"圖", 1028, 1}, {"ｱア", 1041, 1},      {"한", 1042, 1},
        {"한", 2052, 0},  {"图", 1033, 0}, {"\xE5\x9B", 2052, 0}, {"\xFF\xFF", 2052, 0}};
    for (const auto& [text, lcid, wide] : cases)
        EXPECT_EQ(system::DoubleByteCharacters(text, lcid), wide) << text;
}

}  // namespace
}  // namespace kestrel::commands
