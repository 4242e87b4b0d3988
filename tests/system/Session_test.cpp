#include <cstdlib>
#include <utility>

#include "platform/system/Folders.h"
#include "platform/system/Locale.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::system {
namespace {

// Every test sets all that it depends on.
void SetVariable(const char* name, const std::string& text) {
    setenv(name, text.c_str(), 1);
}

class SessionTest : public TemporaryFolder {};

TEST_F(SessionTest, TheLocaleGivesTheIdentifier) {
    SetVariable("LC_MESSAGES", "zh_CN.UTF-8");
    SetVariable("LANG", "de_DE.UTF-8");
    const std::pair<const char*, unsigned> names[] = {
        {"", 2052}, {"ZH", 2052}, {"zh-TW.Big5", 1028}, {"de_DE@euro", 1031}, {"C", 1033}};
    for (const auto& [name, lcid] : names) {
        SetVariable("LC_ALL", name);
        EXPECT_EQ(GetSystemDefaultLCID(), lcid) << name;
    }
}

TEST_F(SessionTest, FoldersFollowTheEnvironmentButForUnfitOnes) {
    SetVariable("HOME", folder_ + "/");
    SetVariable("XDG_DATA_HOME", "relative");
    EXPECT_EQ(WindowsDirectory(), Path(".local/share/KestrelIconEditor/Windows"));
    MakeFile(Path("config/KestrelIconEditor/a"), "");
    // Where others can write, they can plant what the program would write to.
    for (const mode_t mode : {0777U, 0755U}) {
        chmod(Path("config/KestrelIconEditor").c_str(), mode);
        SetVariable("XDG_CONFIG_HOME", Path("config/"));
        EXPECT_EQ(ConfigFolder(), mode == 0755 ? Path("config/KestrelIconEditor") : "");
        chmod(Path("config").c_str(), mode);
        SetVariable("XDG_CONFIG_HOME", Path("config/none/yet"));
        EXPECT_EQ(ConfigFolder(), mode == 0755 ? Path("config/none/yet/KestrelIconEditor") : "");
    }
    SetVariable("XDG_RUNTIME_DIR", folder_ + "/");
    EXPECT_EQ(RuntimeFolder(), folder_);
    MakeFile(Path("open/a"), "");
    chmod(Path("open").c_str(), 0777);
    for (const char* unfit : {"open", "none"}) {
        SetVariable("XDG_RUNTIME_DIR", Path(unfit));
        EXPECT_EQ(RuntimeFolder(), "/tmp/KestrelIconEditor-" + std::to_string(geteuid()));
    }
    EXPECT_EQ(ModeOf(RuntimeFolder()), 0700U);
}

}  // namespace
}  // namespace kestrel::system
