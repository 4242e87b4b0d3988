#include "i18n/ModLanguage.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "i18n/ClassicMenu.h"
#include "i18n/Language.h"
#include "i18n/ToolbarTable.h"
#include "tests/support/ListedTexts.h"

namespace kestrel::i18n {
namespace {

using controls::MenuItem;
using controls::SmartMenuXP;

using namespace test;

struct Menus {
    Menus() { BuildMenuBar(bar, popup); }
    SmartMenuXP bar;
    SmartMenuXP popup;
};

struct TextsByName : CaptionedWindow {
    void SetControlCaption(std::string_view control, std::string_view text) override {
        texts[std::string(control) + " caption"] = text;
    }
    void SetControlToolTip(std::string_view control, std::string_view text) override {
        texts[std::string(control) + " tooltip"] = text;
    }
    void SetButtonToolTip(std::string_view key, std::string_view text) override {
        texts[std::string(key) + " tooltip"] = text;
    }
    std::map<std::string, std::string> texts;
};

void ExpectItem(const MenuItem& item, const Row& row) {
    static const std::map<std::string, controls::ItemKind> kKinds = {
        {"item", controls::ItemKind::Item},
        {"item+icon", controls::ItemKind::IconItem},
        {"option", controls::ItemKind::Option},
        {"separator", controls::ItemKind::Separator}};
    EXPECT_EQ(item.key, row[Key]);
    EXPECT_EQ(item.parent, row[Parent]) << item.key;
    EXPECT_EQ(item.kind, kKinds.at(row[Kind])) << item.key;
    EXPECT_EQ(item.shortcut, row[Shortcut]) << item.key;
    EXPECT_EQ(item.picture, std::stoi(row[Picture])) << item.key;
    EXPECT_EQ(item.visible, row[Flag] != "hidden") << item.key;
    EXPECT_EQ(item.checked, row[Flag] == "checked") << item.key;
    EXPECT_TRUE(item.enabled) << item.key;
}

TEST(ModLanguage, TheMenusAreBuiltAsListed) {
    const Menus menus;
    for (const auto& [what, menu] : {std::pair{"bar", &menus.bar}, {"popup", &menus.popup}}) {
        const std::vector<Row> rows = ListedTexts(what);
        ASSERT_EQ(menu->Items().size(), rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i)
            ExpectItem(menu->Items()[i], rows[i]);
        EXPECT_EQ(menu->FontName(), "Ms Sans Serif");
        EXPECT_EQ(menu->FontPoints(), 9);
    }
}

TEST(ModLanguage, EveryCaptionChangesWithTheLanguageBackAndForth) {
    Menus menus;
    TextsByName window;
    for (const std::string_view code : {"ENG", "CHS", "ENG", "CHS", "FRA"}) {
        ApplyMenuCaptions(code, menus.bar, menus.popup);
        ApplyMainCaptions(code, window);
        const bool chinese = code != "ENG";
        const Column column = chinese ? Chinese : English;
        for (const Row& row : ListedTexts("bar"))
            EXPECT_EQ(menus.bar.Find(row[Key])->caption, row[column]) << row[Key];
        for (const Row& row : ListedTexts("popup"))
            EXPECT_EQ(menus.popup.Find(row[Key])->caption, row[column]) << row[Key];
        for (const Row& row : ListedTexts("control"))
            EXPECT_EQ(window.texts[row[Key] + " " + row[Kind]], row[column]) << row[Key];
        for (const Row& row : ListedTexts("toolbar")) {
            if (row[Kind] != "tooltip") continue;
            EXPECT_EQ(window.texts[row[Key] + " tooltip"], row[column]) << row[Key];
        }
        EXPECT_EQ(menus.bar.Find("mnuLanguageOpts0")->checked, chinese);
        EXPECT_EQ(menus.bar.Find("mnuLanguageOpts1")->checked, !chinese);
    }
}

TEST(ModLanguage, ToolbarHintsAndClassicCaptionsAreAsListed) {
    std::vector<Row> hints = ListedTexts("toolbar");
    std::erase_if(hints, [](const Row& row) { return row[Kind] != "status"; });
    const auto buttons = ToolbarButtons();
    ASSERT_EQ(buttons.size(), hints.size());
    for (std::size_t i = 0; i < hints.size(); ++i) {
        EXPECT_EQ(buttons[i].key, hints[i][Key]);
        EXPECT_EQ(buttons[i].status.english, hints[i][English]);
        EXPECT_EQ(buttons[i].status.chinese, hints[i][Chinese]);
    }
    EXPECT_EQ(ClassicRows().size(), ListedTexts("classic").size());
    for (const Row& row : ListedTexts("classic")) {
        EXPECT_EQ(ClassicCaption(row[Key]).english, row[English]) << row[Key];
        EXPECT_EQ(ClassicCaption(row[Key]).chinese, row[Chinese]) << row[Key];
    }
    EXPECT_EQ(ClassicCaption("mnuNone").english, "");
}

}  // namespace
}  // namespace kestrel::i18n
