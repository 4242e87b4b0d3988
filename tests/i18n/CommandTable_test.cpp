#include <gtest/gtest.h>

#include <algorithm>

#include "commands/CommandTable.h"
#include "imaging/filters/FilterTable.h"
#include "tests/support/ListedTexts.h"

namespace kestrel::commands {
namespace {

using test::Row;

void ExpectListed(const char* what, std::span<const CommandRow> rows) {
    constexpr const char* kKinds[] = {"item", "item+icon", "option", "separator"};
    const std::vector<Row> listed = test::ListedTexts(what);
    ASSERT_EQ(rows.size(), listed.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& [key, parent, kind, caption, shortcut, picture, run, enabled, checked, hint,
                     visible, beginsGroup] = rows[i];
        const std::string flag = listed[i][test::Flag] == "checked" ? "checked" : "";
        EXPECT_EQ((Row{what, std::string(key), std::string(parent), kKinds[static_cast<int>(kind)],
                       std::string(caption.english), std::string(caption.chinese),
                       std::string(shortcut), std::to_string(picture), visible ? flag : "hidden"}),
                  listed[i]);
    }
}

TEST(CommandTable, MenusAndToolbarAreAsListed) {
    ExpectListed("bar", MenuBarRows());
    ExpectListed("popup", PopupRows());
    const std::vector<Row> listed = test::ListedTexts("toolbar");
    ASSERT_EQ(listed.size(), 2 * ToolbarRows().size());
    for (std::size_t i = 0; i < listed.size(); ++i) {
        const CommandRow& row = ToolbarRows()[i / 2];
        const bool isHint = listed[i][test::Kind] == "status";
        const i18n::Text& text = isHint ? row.hint : row.caption;
        EXPECT_EQ(
            std::tuple(row.key, text.english, text.chinese),
            std::tie(listed[i][test::Key], listed[i][test::English], listed[i][test::Chinese]));
    }
}

TEST(CommandTable, EveryFilterHasItsRow) {
    const auto isFilter = [](const CommandRow& row) { return filters::FindFilter(row.key); };
    EXPECT_EQ(std::ranges::count_if(MenuBarRows(), isFilter), std::ssize(filters::Filters()));
}

}  // namespace
}  // namespace kestrel::commands
