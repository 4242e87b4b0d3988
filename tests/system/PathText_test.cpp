#include "platform/system/PathText.h"

#include "platform/system/LetterCase.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::system {
namespace {

TEST(PathText, SplitsAtTheLastSeparatorOfEitherKind) {
    const char* cases[][3] = {{"C:\\Icons\\a.ico", "C:\\Icons", "a.ico"},
                              {"/home\\a.ico", "/home", "a.ico"},
                              {"a.ico", "", "a.ico"},
                              {"icons/", "icons", ""},
                              {"", "", ""}};
    for (const auto& [path, folder, title] : cases) {
        EXPECT_EQ(FolderOf(path), folder);
        EXPECT_EQ(FileTitleOf(path), title);
    }
}

TEST(PathText, ProperCaseKnowsBlanksAndSeparators) {
    const char* cases[][2] = {
        {"SAMPLE", "Sample"},
        {"/home/USER/my icons\\bIRD-two.ICO", "/Home/User/My Icons\\Bird-two.ico"},
        {"图标 ÄRGER", "图标 Ärger"},
        {"", ""}};
    for (const auto& [text, proper] : cases) {
        EXPECT_EQ(ProperCase(text), proper);
    }
}

TEST(LetterCase, FoldsLettersOfEveryScriptAndComparesStrayBytesAsBytes) {
    EXPECT_TRUE(SameName("ÄÖÜ ΩМИР Ｚ图", "äöü ωмир ｚ图"));
    EXPECT_TRUE(SameName("A\xFF", "a\xFF"));
    EXPECT_FALSE(SameName("a\xC3", "a\xE3"));
    EXPECT_FALSE(SameName("\xC0\x80", ""));
    // Overlong forms and surrogates are no characters.
    EXPECT_EQ(FoldCase("\xC1\x81"), (std::u32string{0x1100C1, 0x110081}));
    EXPECT_EQ(FoldCase("\xED\xA0\x80").size(), 3U);
    EXPECT_EQ(FoldCase("\xF0\x9F\x98\x80\xF0\x9F"), (std::u32string{0x1F600, 0x1100F0, 0x11009F}));
}

class ResolvePathTest : public TemporaryFolder {};

TEST_F(ResolvePathTest, FindsEachComponentAsWrittenOrInOtherLetterCase) {
    std::filesystem::create_directories(Path("Icons/Vögel"));
    std::filesystem::create_directories(Path("icons"));
    for (const char* name : {"Icons/Vögel/Star.ico", "Icons/b.ico", "Icons/B.ico", "icons/only",
                             "odd\\name", "Raw\xFF"}) {
        MakeFile(Path(name), "");
    }
    const char* cases[][2] = {
        {"Icons\\VÖGEL\\STAR.ICO", "Icons/Vögel/Star.ico"},
        {"ICONS/vögel//./star.ico", "Icons/Vögel//./Star.ico"},
        {"Icons/b.ICO", "Icons/B.ico"},  // of several the first in byte order
        {"Icons/b.ico", "Icons/b.ico"},  // an exact name before any other
        {"Icons/only", "Icons/only"},    // an exact folder is never left for another
        {"odd\\name", "odd\\name"},      // a name that really has a backslash
        {"ICONS\\new\\Later.ico", "Icons/new/Later.ico"},
        {"raw\xFF", "Raw\xFF"},
        {"raw\xFE", "raw\xFE"}};
    for (const auto& [written, found] : cases) {
        EXPECT_EQ(ResolvePath(Path(written)), Path(found));
    }
}

TEST_F(ResolvePathTest, TakesRelativePathsFromTheCurrentFolder) {
    MakeFile(Path("Star.ico"), "");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder_);
    EXPECT_EQ(ResolvePath("STAR.ico"), "Star.ico");
    EXPECT_EQ(ResolvePath(".\\STAR.ico"), "./Star.ico");
    EXPECT_EQ(ResolvePath(""), "");
    std::filesystem::current_path(before);
}

}  // namespace
}  // namespace kestrel::system
