#include "app/ModRecent.h"

#include <gtest/gtest.h>

#include "i18n/ModLanguage.h"
#include "platform/system/CodePage.h"
#include "tests/support/Services.h"

namespace kestrel::app {
namespace {

using Paths = std::vector<std::string>;

const std::string kKey = "HKCU\\Software\\Brinmoor\\KestrelIconEditor\\Rfl";

class ModRecentTest : public testing::Test {
  protected:
    ModRecentTest() { i18n::BuildMenuBar(menu_, popup_); }
    ModRecent NewList(std::uint32_t lcid = 1033) {
        return {menu_, registry_, files_, boxes_, lcid};
    }
    void Add(ModRecent& list, const Paths& paths) {
        for (const std::string& path : paths)
            list.AddRecentFile(path);
    }
    // The captions that the menu shows, in order; they must have no gap, and a visible submenu.
    Paths Shown() {
        Paths captions;
        for (int slot = 1; slot <= 4; ++slot) {
            const auto* item = menu_.Find("mnuRecentFile" + std::to_string(slot));
            if (!item->visible) continue;
            captions.push_back(item->caption);
            EXPECT_EQ(captions.size(), static_cast<std::size_t>(slot)) << "a gap";
        }
        EXPECT_EQ(menu_.Find("mnuRecentFile0")->visible, !captions.empty());
        return captions;
    }

    controls::SmartMenuXP menu_;
    controls::SmartMenuXP popup_;
    test::MemoryRegistry registry_;
    test::MemoryFiles files_;
    test::ScriptedBoxes boxes_;
};

TEST_F(ModRecentTest, KeepsTheLastFourInOrderOfUse) {
    const struct {
        Paths added;
        Paths shown;
    } cases[] = {
        {{}, {}},
        {{"A", "B", "C", "D", "E"}, {"E", "D", "C", "B"}},
        {{"A", "B", "C", "D", "B"}, {"B", "D", "C", "A"}},
        {{"A", "B", "A"}, {"A", "B"}},
        {{"A", "B", "B"}, {"B", "A"}},
        {{"a.ico", "A.ico"}, {"A.ico", "a.ico"}},
        {{"a && b&c"}, {"a &&&& b&&c"}},
    };
    for (const auto& c : cases) {
        ModRecent list = NewList();
        // Empties the menu of the case before.
        registry_.values[kKey] = {};
        list.LoadRecentFiles();
        Add(list, c.added);
        EXPECT_EQ(Shown(), c.shown);
    }
}

TEST_F(ModRecentTest, MovesBetweenRegistryAndMenu) {
    ModRecent first = NewList();
    first.LoadRecentFiles();
    EXPECT_TRUE(registry_.values.empty()) << "a first run leaves no key behind";
    Add(first, {"/a", "/b"});
    EXPECT_TRUE(registry_.values.empty()) << "the registry waits for the end";
    first.SaveRecentFiles();
    EXPECT_EQ(registry_.values[kKey], (test::MemoryRegistry::Values{{"1.", "/b"}, {"2.", "/a"}}));

    registry_.values[kKey] = {{"1.", "  /x  "}, {"3.", "/y"}, {"4.", std::string(260, 'z')}};
    std::string wide = "/";
    for (int i = 0; i < 250; ++i)
        wide += "图";
    registry_.values[kKey]["2."] = wide;
    ModRecent second = NewList();
    second.LoadRecentFiles();
    EXPECT_EQ(Shown(), (Paths{"/x", wide, "/y"}));
    EXPECT_TRUE(registry_.values[kKey].empty());

    registry_.values[kKey] = {{"1.", "/gone"}, {"2.", "/kept"}};
    registry_.refused = kKey;
    ModRecent third = NewList();
    third.LoadRecentFiles();
    EXPECT_EQ(Shown(), (Paths{"/gone", "/kept"}));
    third.SaveRecentFiles();
    registry_.refused = "";
    third.GetRecentFile(1);
    third.SaveRecentFiles();
    EXPECT_EQ(registry_.values[kKey], (test::MemoryRegistry::Values{{"1.", "/kept"}}));
}

TEST_F(ModRecentTest, AMissingFileIsReportedAndLeavesTheList) {
    ModRecent list = NewList();
    Add(list, {"/c", "/b", "/a"});
    files_.contents["/a"] = {};
    files_.contents["/c"] = {};
    EXPECT_EQ(list.GetRecentFile(1), "/a");
    EXPECT_EQ(list.GetRecentFile(2), "");
    ASSERT_EQ(boxes_.shown.size(), 1U);
    EXPECT_EQ(boxes_.shown[0].text, "Unable to locate /b");
    EXPECT_EQ(boxes_.shown[0].title, "KestrelIconEditor - Error");
    EXPECT_EQ(boxes_.shown[0].icon, dialogs::BoxIcon::Exclamation);
    EXPECT_EQ(Shown(), (Paths{"/a", "/c"}));
    EXPECT_EQ(list.GetRecentFile(2), "/c");
    for (const int slot : {0, 3, 5})
        EXPECT_EQ(list.GetRecentFile(slot), "");
    files_.contents.clear();
    EXPECT_EQ(list.GetRecentFile(2), "");
    EXPECT_EQ(list.GetRecentFile(1), "");
    EXPECT_EQ(Shown(), Paths{});
    EXPECT_EQ(boxes_.shown.size(), 3U);

    registry_.values[kKey] = {{"1.", "/b"}, {"2.", "/c"}, {"3.", "/b"}};
    ModRecent twice = NewList();
    twice.LoadRecentFiles();
    EXPECT_EQ(twice.GetRecentFile(3), "");
    EXPECT_EQ(Shown(), (Paths{"/b", "/c"})) << "the slot that was chosen goes";
}

TEST_F(ModRecentTest, CaptionsArePaddedForWideCharacters) {
    ModRecent chinese = NewList(2052);
    chinese.AddRecentFile("/图标/é.ico");
    // é is two bytes in this code page too (A8 A6).
    EXPECT_EQ(Shown(), Paths{"/图标/é.ico   "});
    ModRecent english = NewList(1033);
    english.AddRecentFile("/图标/é.ico");
    EXPECT_EQ(Shown(), Paths{"/图标/é.ico"});

    const struct {
        const char* text;
        std::uint32_t lcid;
        int wide;
    } cases[] = {{"图x", 2052, 1}, {"圖", 1028, 1}, {"ｱア", 1041, 1},      {"한", 1042, 1},
                 {"한", 2052, 0},  {"", 2052, 0},   {"\xE5\x9B", 2052, 0}, {"\xFF\xFF", 2052, 0}};
    for (const auto& c : cases)
        EXPECT_EQ(system::DoubleByteCharacters(c.text, c.lcid), c.wide) << c.text;
}

}  // namespace
}  // namespace kestrel::app
