#include "platform/system/FileRegistry.h"

#include "platform/system/DiskFiles.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::system {
namespace {

constexpr auto kUser = RegistryRoot::CurrentUser;
constexpr auto kClasses = RegistryRoot::ClassesRoot;
constexpr std::string_view kKey = "Software\\Vendor\\Product";

class FileRegistryTest : public TemporaryFolder {
  protected:
    std::string File() const { return Path("new folder/registry"); }

    DiskFiles files_;
    FileRegistry registry_{files_, File()};
};

TEST_F(FileRegistryTest, KeepsEveryTextUnderItsName) {
    const std::string values[] = {"",
                                  " /a b/图标.ico ",
                                  "two\nlines\r\n",
                                  R"([a="b"\n])",
                                  std::string("zero\0byte\x01", 10),
                                  "stray \xFF byte"};
    int number = 0;
    for (const std::string& value : values) {
        const std::string name = std::to_string(++number) + ".=\"]\n" + value;
        ASSERT_TRUE(registry_.WriteValue(kUser, kKey, name, value).has_value());
        ASSERT_TRUE(registry_.WriteValue(kUser, "odd]\n\\" + value, "", value).has_value());
        FileRegistry later(files_, File());
        EXPECT_EQ(later.ReadValue(kUser, kKey, name), value);
        EXPECT_EQ(later.ReadValue(kUser, "ODD]\n\\" + value + "\\", ""), value);
    }
}

TEST_F(FileRegistryTest, FindsKeysAndNamesInAnyLetterCase) {
    EXPECT_FALSE(registry_.KeyExists(kUser, "Software"));
    EXPECT_EQ(registry_.ReadValue(kUser, kKey, "1."), std::nullopt);
    ASSERT_TRUE(registry_.WriteValue(kUser, kKey, "Größe", "1").has_value());
    ASSERT_TRUE(registry_.WriteValue(kUser, "SOFTWARE\\VENDOR\\PRODUCT", "GRÖßE", "2").has_value());
    EXPECT_EQ(registry_.ReadValue(kUser, "\\software\\vendor\\product\\", "größe"), "2");
    EXPECT_EQ(registry_.ReadValue(kClasses, kKey, "Größe"), std::nullopt);
    EXPECT_TRUE(registry_.KeyExists(kUser, "software\\VENDOR"));
    EXPECT_FALSE(registry_.KeyExists(kUser, "software\\VEND"));
    ASSERT_TRUE(registry_.DeleteValue(kUser, kKey, "GRÖßE").has_value());
    EXPECT_EQ(registry_.ReadValue(kUser, kKey, "Größe"), std::nullopt);
    EXPECT_TRUE(registry_.KeyExists(kUser, kKey));
    EXPECT_TRUE(registry_.DeleteValue(kUser, "no such key", "").has_value());
}

TEST_F(FileRegistryTest, WritesNothingThatIsThereAlready) {
    ASSERT_TRUE(registry_.WriteValue(kClasses, ".ico", "", "icofile").has_value());
    struct stat old {};
    stat(File().c_str(), &old);
    ASSERT_TRUE(registry_.WriteValue(kClasses, ".ICO", "", "icofile").has_value());
    ASSERT_TRUE(registry_.DeleteValue(kClasses, ".ico", "none").has_value());
    struct stat now {};
    stat(File().c_str(), &now);
    EXPECT_EQ(now.st_ino, old.st_ino);
}

TEST_F(FileRegistryTest, LeavesAloneWhatItDoesNotUnderstand) {
    const std::string good =
        "KestrelIconEditor registry 1\n\n[ClassesRoot\\\\.ico]\n\"\"=\"icofile\"\n";
    std::filesystem::create_directory(Path("new folder"));
    MakeFile(File(), good);
    ASSERT_EQ(registry_.ReadValue(kClasses, ".ico", ""), "icofile");
    // Cut off, another header, lines of no known kind, a value told twice or before any key, noise.
    std::vector<std::string> damaged = {good.substr(0, good.size() - 1),
                                        good.substr(1),
                                        good.substr(0, 29) + "\"value\"=\"\"\n",
                                        std::string(300, '\0'),
                                        "\xFF\xFEnoise",
                                        good + std::string(kMaxRegistryText, '\n')};
    for (const char* line : {"x", R"("a"="b)", R"("a"="b" )", R"("a"="\q")", R"(""="twice")",
                             "[unfinished", "[]", "[a]b"}) {
        damaged.push_back(good + line + "\n");
    }
    for (const std::string& text : damaged) {
        MakeFile(File(), text);
        EXPECT_EQ(registry_.ReadValue(kClasses, ".ico", ""), std::nullopt) << text.substr(0, 200);
        EXPECT_FALSE(registry_.WriteValue(kClasses, "b", "", "c").has_value());
        EXPECT_FALSE(registry_.DeleteValue(kClasses, ".ico", "").has_value());
        EXPECT_EQ(ContentOf(File()), text);
    }
    MakeFile(File(), "");
    EXPECT_TRUE(registry_.WriteValue(kClasses, "b", "", "c").has_value());
    const std::string large(kMaxRegistryText, 'x');
    EXPECT_EQ(registry_.WriteValue(kClasses, "large", "", large).error().number, EFBIG);
    EXPECT_EQ(registry_.ReadValue(kClasses, "b", ""), "c");
    std::filesystem::remove(File());
    std::filesystem::create_directory(File());
    EXPECT_EQ(registry_.WriteValue(kClasses, "b", "", "c").error().number, EISDIR);
}

TEST_F(FileRegistryTest, TwoSessionsKeepEachOthersValues) {
    constexpr int kValues = 25;
    for (const char* session : {"a", "b"}) {
        if (fork() != 0) continue;
        bool written = true;
        for (int i = 0; i < kValues; ++i) {
            const std::string name = session + std::to_string(i);
            written = registry_.WriteValue(kUser, kKey, name, "x").has_value() && written;
        }
        _exit(written ? 0 : 1);
    }
    for (int session = 0; session < 2; ++session) {
        int status = -1;
        wait(&status);
        EXPECT_EQ(status, 0);
    }
    for (int i = 0; i < 2 * kValues; ++i) {
        const std::string name = (i % 2 == 0 ? "a" : "b") + std::to_string(i / 2);
        EXPECT_EQ(registry_.ReadValue(kUser, kKey, name), "x") << name;
    }
}

}  // namespace
}  // namespace kestrel::system
