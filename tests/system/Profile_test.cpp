#include "platform/system/Profile.h"

#include "platform/system/DiskFiles.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::system {
namespace {

class ProfileTest : public TemporaryFolder {
  protected:
    std::string Read(std::string_view section, std::string_view key) {
        return ReadProfileString(files_, section, key, "default", File());
    }
    int Write(std::string_view section, std::string_view key, std::string_view value) {
        const Result<void> written = WriteProfileString(files_, section, key, value, File());
        return written ? 0 : written.error().number;
    }
    std::string File() const { return Path("new/folder/Settings.ini"); }

    DiskFiles files_;
};

TEST_F(ProfileTest, MakesTheFileAndItsFolder) {
    EXPECT_EQ(Read("Settings", "Zoom"), "default");
    EXPECT_EQ(Write("Settings", "Zoom", "200"), 0);
    EXPECT_EQ(Write("Positions", "frmZoom", "1,2,3,4,True"), 0);
    EXPECT_EQ(Write("settings", "ZOOM", "300"), 0);
    EXPECT_EQ(Write("SETTINGS", "Language", "CHS"), 0);
    EXPECT_EQ(ContentOf(File()),
              "[Settings]\nZoom=300\nLanguage=CHS\n[Positions]\nfrmZoom=1,2,3,4,True\n");
    EXPECT_EQ(ModeOf(Path("new")), 0700U);
}

TEST_F(ProfileTest, ReadsTheFirstMatch) {
    std::filesystem::create_directories(Path("new/folder"));
    MakeFile(
        File(),
        "\xEF\xBB\xBF[First]\r\n; key=comment\r\n  Key \t=  a b  \r\nkey=second\r\nno value\r\n"
        "dq=\" x \"\r\nsq='y'\r\nodd=\"z\r\nempty=\r\neq=a=b\r\n\r\n"
        " [ Größe ] \r\nkey=2\r\n[first]\r\nlate=3\r\n[broken\r\nin=4");
    const char* cases[][3] = {
        {"first", "KEY", "a b"},  {"First", "dq", " x "},        {"First", "sq", "y"},
        {"First", "odd", "\"z"},  {"First", "empty", ""},        {"First", "eq", "a=b"},
        {"GRÖßE", "key", "2"},    {"First", "late", "default"},  {"First", "no value", "default"},
        {"none", "k", "default"}, {"First", "; key", "default"}, {"", "key", "default"}};
    for (const auto& [section, key, value] : cases) {
        EXPECT_EQ(Read(section, key), value) << section << " / " << key;
    }
}

TEST_F(ProfileTest, KeepsEverythingElseInTheFile) {
    std::filesystem::create_directories(Path("new/folder"));
    const std::string text = "; mine\r\n\r\n[A]\r\n Key = 1 ; x\r\n\xB0\xA1\r\n\r\n[B]\nlast=1";
    const std::tuple<const char*, const char*, const char*, std::string> cases[] = {
        {"a", "key", "2", "; mine\r\n\r\n[A]\r\n Key =2\r\n\xB0\xA1\r\n\r\n[B]\nlast=1"},
        {"A", "new", "3",
         "; mine\r\n\r\n[A]\r\n Key = 1 ; x\r\n\xB0\xA1\r\nnew=3\r\n\r\n[B]\nlast=1"},
        {"B", "new", "4",
         "; mine\r\n\r\n[A]\r\n Key = 1 ; x\r\n\xB0\xA1\r\n\r\n[B]\nlast=1\r\nnew=4\r\n"},
        {"C", "k", " 5", text + "\r\n[C]\r\nk=\" 5\"\r\n"},
        {"A", "Key", "1 ; x", text}};
    for (const auto& [section, key, value, expected] : cases) {
        MakeFile(File(), text);
        EXPECT_EQ(Write(section, key, value), 0);
        EXPECT_EQ(ContentOf(File()), expected);
        EXPECT_EQ(Read(section, key), value);
    }
}

TEST_F(ProfileTest, ReturnsValuesUpTo2048CharactersWhole) {
    std::string value;
    for (int i = 0; i < 2048; ++i) {
        value += "图";
    }
    EXPECT_EQ(Write("S", "k", value + "标"), 0);
    EXPECT_EQ(Read("S", "k"), value);
}

TEST_F(ProfileTest, LeavesAloneWhatIsNoSettingsText) {
    std::filesystem::create_directories(Path("new/folder"));
    const std::string damaged[] = {std::string("[S]\nk=1\n\0", 9), "[S]\nk=1\n\x07",
                                   "[S]\nk=1\n" + std::string(1U << 20U, '\n')};
    for (const std::string& text : damaged) {
        MakeFile(File(), text);
        EXPECT_EQ(Read("S", "k"), "default");
        EXPECT_NE(Write("S", "k", "2"), 0);
        EXPECT_EQ(ContentOf(File()), text);
    }
    MakeFile(File(), "");
    const char* unusable[][3] = {{"S]", "k", "v"}, {"S", "k=", "v"},     {"S", "[k", "v"},
                                 {"S", ";k", "v"}, {"S", "k", "v\nw=x"}, {"S\n", "k", "v"}};
    for (const auto& [section, key, value] : unusable) {
        EXPECT_EQ(Write(section, key, value), EINVAL);
    }
    EXPECT_EQ(ContentOf(File()), "");
}

}  // namespace
}  // namespace kestrel::system
