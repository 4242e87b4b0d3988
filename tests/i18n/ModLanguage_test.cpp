#include "commands/ModLanguage.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "tests/support/ListedTexts.h"

namespace kestrel::i18n {
namespace {

using controls::ItemKind;
using namespace test;

struct TextsByName : commands::CaptionedWindow {
    void SetControlCaption(std::string_view control, std::string_view text) override {
        texts[std::string(control) + " caption"] = text;
    }
    void SetControlToolTip(std::string_view control, std::string_view text) override {
        texts[std::string(control) + " tooltip"] = text;
    }
    void SetButtonToolTip(std::string_view key, std::string_view text) override {
        SetControlToolTip(key, text);
    }
    std::map<std::string, std::string> texts;
};

TEST(ModLanguage, TheMenusAreAsListedInBothLanguages) {
    const std::map<std::string, ItemKind> kinds = {{"item", ItemKind::Item},
                                                   {"item+icon", ItemKind::IconItem},
                                                   {"option", ItemKind::Option},
                                                   {"separator", ItemKind::Separator}};
    controls::SmartMenuXP bar, popup;
    commands::BuildMenuBar(bar, popup);
    for (const auto& [what, menu] : {std::pair{"bar", &bar}, {"popup", &popup}}) {
        const std::vector<Row> rows = ListedTexts(what);
        ASSERT_EQ(menu->Items().size(), rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const controls::MenuItem& item = menu->Items()[i];
            const Row& row = rows[i];
            EXPECT_EQ(std::tie(item.key, item.parent, item.shortcut),
                      std::tie(row[Key], row[Parent], row[Shortcut]));
            EXPECT_EQ(item.kind, kinds.at(row[Kind])) << item.key;
            EXPECT_EQ(item.picture, std::stoi(row[Picture])) << item.key;
            EXPECT_EQ(item.visible, row[Flag] != "hidden") << item.key;
            EXPECT_EQ(item.checked, row[Flag] == "checked") << item.key;
        }
        for (const std::string_view code : {"ENG", "CHS", "ENG", "CHS", "FRA"}) {
            commands::ApplyMenuCaptions(code, bar, popup);
            for (const Row& row : rows)
                EXPECT_EQ(menu->Find(row[Key])->caption, row[code == "ENG" ? English : Chinese]);
            EXPECT_EQ(bar.Find("mnuLanguageOpts0")->checked, code != "ENG");
            EXPECT_EQ(bar.Find("mnuLanguageOpts1")->checked, code == "ENG");
        }
    }
}

TEST(ModLanguage, TheTextsOfTheWindowAreAsListedInBothLanguages) {
    TextsByName window;
    for (const std::string_view code : {"ENG", "CHS", "ENG", "CHS", "FRA"}) {
        commands::ApplyMainCaptions(code, window);
        const Column column = code == "ENG" ? English : Chinese;
        for (const char* what : {"control", "toolbar"}) {
            for (const Row& row : ListedTexts(what)) {
                if (row[Kind] == "status") continue;
                EXPECT_EQ(window.texts[row[Key] + " " + row[Kind]], row[column]) << row[Key];
            }
        }
    }
}

}  // namespace
}  // namespace kestrel::i18n
