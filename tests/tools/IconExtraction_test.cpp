#include "tools/IconExtraction.h"

#include <gtest/gtest.h>

#include "tests/support/IconFiles.h"
#include "tests/support/Services.h"

namespace kestrel::tools {
namespace {

// In one language: the end of the title, lines for icons, and boxes.
struct Texts {
    std::string_view language;
    std::string icons, first, other, chosen, boxes;
};
const Texts kTexts[] = {
    {i18n::kEnglish, " Icons", "Icon No 1 Selected.", "Icon No. 11 Selected.",
     "Icon No. 1 Selected.",
     "KestrelIconEditor: text.dll contains no icons.KestrelIconEditor - Error: Unable to open the "
     "file /gone.dll"},
    {i18n::kChinese, " 图标", "选中第1个图标.", "选中第 11个 图标.", "选中第1个图标.",
     "KestrelIconEditor: text.dll 没有图标.KestrelIconEditor - 错误: 不能打开文件 /gone.dll"}};

class IconExtractionTest : public testing::TestWithParam<Texts> {};
INSTANTIATE_TEST_SUITE_P(Languages, IconExtractionTest, testing::ValuesIn(kTexts));

TEST_P(IconExtractionTest, KeepsTheFileShownUntilAnotherHasIcons) {
    test::FakeServices given;
    given.files.contents = {{"/Shell32.dll", test::LibraryOf(300)},
                            {"/Two.ANI", test::Animation()},
                            {"/wide.png", test::WidePng()},
                            {"/text.dll", {'h', 'e', 'l', 'l', 'o'}}};
    const test::OwnerOfDialogs owner;
    const ExtractionServices services{given.application, given.desktop, given.boxes, given.files};
    const Texts& texts = GetParam();
    i18n::SetUiLanguage(texts.language);

    EXPECT_FALSE(IconExtraction(services, "/gone/Shell32.dll").HasIcons());
    IconExtraction extraction(services, "/Shell32.dll");
    EXPECT_EQ(given.application.hourglasses, "on off on off ");
    EXPECT_EQ(extraction.Info(), texts.first);
    for (const int icon : {0, 59, 60, 299, 0})
        EXPECT_EQ(extraction.PictureOf(icon).GetPixel(31, 31), test::ColorOf(icon));
    EXPECT_EQ(extraction.PictureOf(0).GetPixel(0, 0), gdi::kWhite);
    EXPECT_TRUE(extraction.SelectAt(20, 40) && !extraction.SelectAt(385, 40));
    given.desktop.alsoChanges = [&](auto& /*record*/) {
        EXPECT_FALSE(extraction.SelectAt(50, 5)) << "while the user browses";
    };
    std::string boxes;
    for (const char* choice : {"", "/text.dll", "/gone.dll", "/Two.ANI"}) {
        EXPECT_EQ(extraction.Title() + extraction.Info(),
                  "KestrelIconEditor - Shell32.dll - 300" + texts.icons + texts.other);
        given.desktop.choice = choice;
        extraction.Browse(owner);
    }
    for (const auto& box : given.boxes.shown)
        boxes += box.title + ": " + box.text;
    EXPECT_EQ(boxes, texts.boxes);
    EXPECT_EQ(extraction.Title() + extraction.Info(),
              "KestrelIconEditor - Two.ANI - 2" + texts.icons + texts.chosen);
    EXPECT_EQ(extraction.PictureOf(0).GetPixel(31, 31), test::ColorOf(700));
    extraction.MoveSelection(GridMove::Last);
    EXPECT_EQ(extraction.SelectedIcon()->planes.image.GetPixel(5, 5), test::ColorOf(701));
    IconExtraction wide(services, "/wide.png");
    EXPECT_EQ(wide.PictureOf(0).GetPixel(31, 31), test::ColorOf(7));
    EXPECT_EQ(wide.SelectedIcon()->planes.image.GetPixel(31, 31), test::ColorOf(7));
    const services::FileRecord& asked = given.desktop.opens.at(0);
    EXPECT_TRUE(
        asked.filter.ends_with(services::FilterOf("|Icon Library Files (*.icl)|*.icl", "|")));
    EXPECT_EQ(std::tie(asked.filterIndex, asked.flags, asked.owner), std::tuple(3, 0x1004U, 77U));
    i18n::SetUiLanguage(i18n::kEnglish);
}

}  // namespace
}  // namespace kestrel::tools
