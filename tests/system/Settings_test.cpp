#include <sys/wait.h>

#include <cerrno>
#include <tuple>

#include "platform/system/DiskFiles.h"
#include "platform/system/FileRegistry.h"
#include "platform/system/LockFile.h"
#include "platform/system/Profile.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::system {
namespace {

constexpr auto kUser = RegistryRoot::CurrentUser;
constexpr auto kClasses = RegistryRoot::ClassesRoot;
constexpr std::string_view kKey = "Software\\Vendor\\Product";

class SettingsTest : public TemporaryFolder {
  protected:
    std::string Read(std::string_view section, std::string_view key) {
        return ReadProfileString(files_, section, key, "default", file_);
    }
    int Write(std::string_view section, std::string_view key, std::string_view value) {
        return NumberOf(WriteProfileString(files_, section, key, value, file_));
    }

    const std::string file_ = Path("new/folder/settings");
    DiskFiles files_;
    FileRegistry registry_{files_, file_};
};

TEST_F(SettingsTest, RegistryFindsKeysAndNamesInAnyLetterCase) {
    EXPECT_FALSE(registry_.KeyExists(kUser, "Software"));
    ASSERT_TRUE(registry_.WriteValue(kUser, kKey, "Größe", "1"));
    ASSERT_TRUE(registry_.WriteValue(kUser, "SOFTWARE\\VENDOR\\PRODUCT", "GRÖßE", "2"));
    EXPECT_EQ(registry_.ReadValue(kUser, "\\software\\vendor\\product\\", "größe"), "2");
    EXPECT_EQ(registry_.ReadValue(kClasses, kKey, "Größe"), std::nullopt);
    EXPECT_TRUE(registry_.KeyExists(kUser, "software\\VENDOR"));
    EXPECT_FALSE(registry_.KeyExists(kUser, "software\\VEND"));
}

TEST_F(SettingsTest, RegistryChangesSeveralValuesAtOnce) {
    MakeFile(file_, "[ClassesRoot\\a]\n@=old\nGone=1\nGONE=2\nstays=3\n");
    const NamedValue changes[] = {{"gone", std::nullopt}, {"new", "4"}, {"", "changed"}};
    EXPECT_TRUE(registry_.ChangeValues(kClasses, "A", changes));
    EXPECT_EQ(ContentOf(file_), "[ClassesRoot\\a]\n@=changed\nstays=3\nnew=4\n");
    EXPECT_EQ(registry_.ReadValue(kClasses, "a", ""), "changed");
    EXPECT_EQ(registry_.ReadValue(kClasses, "a", "@"), std::nullopt);
    for (const auto& [key, name] : {std::pair("a]", "b"), {"a\nb", "c"}, {"a", "@"}, {"a", "b=c"}})
        EXPECT_EQ(NumberOf(registry_.WriteValue(kClasses, key, name, "")), EINVAL);
}

TEST_F(SettingsTest, RegistryEscapesWhatALineCannotHold) {
    const std::pair<std::string, std::string> values[] = {
        {" /a b/图标.ico ", "\" /a b/图标.ico \""},
        {"'quoted'", "\"'quoted'\""},
        {"two\nlines\r\n", "two\\nlines\\r\\n"},
        {R"([a="b"]\n\x41)", R"([a="b"]\\n\\x41)"},
        {std::string("\0\x1B\t\x7F\xFF", 5), "\\0\\x1B\t\x7F\xFF"}};
    for (const auto& [value, written] : values) {
        ASSERT_TRUE(registry_.WriteValue(kClasses, ".ico", "", value));
        EXPECT_EQ(ContentOf(file_), "[ClassesRoot\\.ico]\n@=" + written + "\n");
        EXPECT_EQ(registry_.ReadValue(kClasses, ".ico", ""), value);
    }
    // As somebody may have typed it: a backslash that begins no escape is one itself.
    MakeFile(file_, R"([ClassesRoot\a]
name = C:\Icons\x4\x4a\)");
    EXPECT_EQ(registry_.ReadValue(kClasses, "a", "name"), R"(C:\Icons\x4J\)");
}

TEST_F(SettingsTest, RegistryWritesOnlyWhatIsNew) {
    const std::string good = "; mine\n[ClassesRoot\\.ico]\n @ = \"icofile\"\n";
    for (const std::string& text : {good, std::string("\0", 1)}) {
        MakeFile(file_, text);
        const NamedValue none{"none", std::nullopt};
        EXPECT_TRUE(registry_.ChangeValues(kClasses, ".ico", {&none, 1}));
        EXPECT_EQ(ContentOf(file_), text);
        EXPECT_TRUE(registry_.WriteValue(kClasses, ".ico", "", "icofile"));
        EXPECT_EQ(files_.FileExists(file_ + ".lock"), text != good) << "a change takes the lock";
        EXPECT_EQ(files_.FileExists(file_ + ".damaged"), text != good);
    }
    EXPECT_EQ(ContentOf(file_), "[ClassesRoot\\.ico]\n@=icofile\n");
}

TEST_F(SettingsTest, RegistryPutsOffWhatAnotherSessionsLockIsInTheWayOf) {
    files_.MakeFolder(Path("new/folder"));
    auto lock = LockFile(file_ + ".lock", {});
    for (const char* value : {"1", "2"})
        EXPECT_TRUE(registry_.WriteValue(kUser, kKey, "a", value)) << "at once";
    EXPECT_FALSE(registry_.CatchUp());
    EXPECT_FALSE(files_.FileExists(file_));
    lock = tl::unexpected(Error{});
    EXPECT_TRUE(registry_.WriteValue(kUser, kKey, "b", "3"));
    EXPECT_EQ(registry_.ReadValue(kUser, kKey, "a"), "2");
    EXPECT_TRUE(registry_.CatchUp());
}

TEST_F(SettingsTest, RegistryKeepsTheValuesOfTwoSessions) {
    registry_.CatchUp();
    const pid_t other = fork();
    const std::string session = other == 0 ? "a" : "b";
    int failures = 0;
    for (int i = 0; i < 25; ++i)
        failures += registry_.WriteValue(kUser, kKey, session + std::to_string(i), "x") ? 0 : 1;
    if (other == 0) _exit(failures);
    int status = 0;
    waitpid(other, &status, 0);
    EXPECT_EQ(std::pair(failures, status), std::pair(0, 0));
    for (int i = 0; i < 50; ++i) {
        const std::string name = (i < 25 ? "a" : "b") + std::to_string(i % 25);
        EXPECT_EQ(registry_.ReadValue(kUser, kKey, name), "x") << name;
    }
}

TEST_F(SettingsTest, ProfileReadsTheFirstMatch) {
    MakeFile(
        file_,
        "\xEF\xBB\xBF[First]\r\n; key=comment\r\n  Key \t=  a b  \r\nkey=second\r\nno value\r\n"
        "dq=\" x \"\r\nsq='y'\r\nodd=\"z\r\nempty=\r\neq=a=b\r\n\r\n"
        " [ Größe ] \r\nkey=2\r\n[first]\r\nlate=3\r\n[broken\r\nin=4");
    const char* cases[][3] = {
        {"first", "KEY", "a b"},  {"First", "dq", " x "},        {"First", "sq", "y"},
        {"First", "odd", "\"z"},  {"First", "empty", ""},        {"First", "eq", "a=b"},
        {"GRÖßE", "key", "2"},    {"First", "late", "default"},  {"First", "no value", "default"},
        {"none", "k", "default"}, {"First", "; key", "default"}, {"", "key", "default"}};
    for (const auto& [section, key, value] : cases)
        EXPECT_EQ(Read(section, key), value) << section << " / " << key;
    std::string longest;
    for (int i = 0; i < 2048; ++i)
        longest += "ö";
    MakeFile(file_, "[S]\nk=" + longest + "x");
    EXPECT_EQ(Read("S", "k"), longest);
}

TEST_F(SettingsTest, ProfileKeepsEverythingElseInTheFile) {
    EXPECT_EQ(Write("Settings", "Zoom", "200"), 0);
    EXPECT_EQ(Write("Positions", "frmZoom", "1,2"), 0);
    EXPECT_EQ(Write("SETTINGS", "New", "1"), 0);
    EXPECT_EQ(ContentOf(file_), "[Settings]\nZoom=200\nNew=1\n[Positions]\nfrmZoom=1,2\n");
    EXPECT_EQ(ModeOf(Path("new")), 0700U);

    const std::string start = "; mine\r\n\r\n[A]\r\n Key =";
    const std::string middle = " 1 ; x\r\n\xB0\xA1\r\n";
    const std::string end = "\r\n[B]\nlast=1";
    const std::string before = start + middle + end;
    const std::string cases[][4] = {
        {"a", "key", "2", start + "2\r\n\xB0\xA1\r\n" + end},
        {"A", "new", "3", start + middle + "new=3\r\n" + end},
        {"C", "k", " 5", start + middle + end + "\r\n[C]\r\nk=\" 5\"\r\n"}};
    for (const auto& [section, key, value, expected] : cases) {
        MakeFile(file_, before);
        EXPECT_EQ(Write(section, key, value), 0);
        EXPECT_EQ(ContentOf(file_), expected);
        EXPECT_EQ(Read(section, key), value);
    }
    MakeFile(file_, before);
    chmod(file_.c_str(), 0444);
    EXPECT_EQ(Write("A", "Key", "1 ; x"), 0) << "there already: nothing to write";
    EXPECT_EQ(Write("A", "Key", "2"), EACCES);
}

TEST_F(SettingsTest, DamagedFileIsKeptBesideANewOne) {
    const std::string kept = file_ + ".damaged";
    for (const std::string& text : {std::string("[S]\nk=1\n\0", 9), std::string("[S]\nk=1\n\x07"),
                                    "[S]\nk=1\n" + std::string(1U << 20U, '\n')}) {
        MakeFile(file_, text);
        EXPECT_EQ(Read("S", "k"), "default");
        EXPECT_EQ(ContentOf(file_), text) << "nothing was written yet";
        EXPECT_EQ(Write("S", "k", "2"), 0);
        EXPECT_EQ(ContentOf(kept), text);
        EXPECT_EQ(ContentOf(file_), "[S]\nk=2\n");
    }
    std::filesystem::remove(file_);
    std::filesystem::remove(kept);
    MakeFile(file_ + "/inside", "");
    EXPECT_EQ(Write("S", "k", "2"), 0);
    EXPECT_EQ(Read("S", "k"), "2");
    EXPECT_TRUE(std::filesystem::exists(kept + "/inside"));
    // Out of reach is not damaged.
    std::filesystem::rename(file_, Path("good"));
    std::filesystem::create_symlink(file_, file_);
    EXPECT_EQ(Write("S", "k", "2"), ELOOP);
    EXPECT_TRUE(std::filesystem::is_symlink(file_));
}

TEST_F(SettingsTest, ProfileRefusesWhatWouldNotReadBack) {
    EXPECT_EQ(Write("S", "k", "v\nw=x"), EINVAL);
    EXPECT_EQ(Write("S", "k", std::string(1U << 20U, 'x')), EFBIG);
    EXPECT_FALSE(files_.FileExists(file_));
}

}  // namespace
}  // namespace kestrel::system
