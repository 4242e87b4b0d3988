#include <sys/wait.h>

#include <cerrno>
#include <cstdlib>
#include <utility>

#include "platform/system/DesktopShell.h"
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
    SetVariable("HOME", "/home/u/");
    SetVariable("XDG_DATA_HOME", "relative");
    SetVariable("XDG_CONFIG_HOME", "/config/");
    EXPECT_EQ(WindowsDirectory(), "/home/u/.local/share/KestrelIconEditor/Windows");
    EXPECT_EQ(ConfigFolder(), "/config/KestrelIconEditor");
    SetVariable("XDG_RUNTIME_DIR", folder_ + "/");
    EXPECT_EQ(RuntimeFolder(), folder_);
    std::filesystem::create_symlink(folder_, Path("link"));
    MakeFile(Path("open/a"), "");
    chmod(Path("open").c_str(), 0777);
    for (const char* unfit : {"open", "link", "none"}) {
        SetVariable("XDG_RUNTIME_DIR", Path(unfit));
        EXPECT_EQ(RuntimeFolder(), "/tmp/KestrelIconEditor-" + std::to_string(geteuid()));
    }
    EXPECT_EQ(ModeOf(RuntimeFolder()), 0700U);
}

TEST_F(SessionTest, ProgramsRunApartFromThisProcess) {
    SetVariable("PATH", folder_ + ":/usr/bin:/bin");
    // Scripts that leave their name and arguments in the file "out", after a 1 when they lead a
    // session of their own.
    for (const std::string name : {"Viewer.exe", "xdg-open"}) {
        MakeFile(Path(name), "#!/bin/sh\nread -r _ _ _ _ _ session _ </proc/$$/stat\ncd " +
                                 folder_ + "\nprintf '%s|' $((session == $$)) " + name +
                                 " \"$@\" >part\nmv part out\n");
        chmod(Path(name).c_str(), 0755);
    }
    MakeFile(Path("Help.chm"), "");
    const auto output = [&] {
        for (int i = 0; i < 500 && !std::filesystem::exists(Path("out")); ++i)
            usleep(10000);
        std::string text = ContentOf(Path("out"));
        std::filesystem::remove(Path("out"));
        return text;
    };
    DesktopShell shell;
    EXPECT_TRUE(shell.RunProgram("Viewer.exe", {"a b", "$c", ""}));
    EXPECT_EQ(output(), "1|Viewer.exe|a b|$c||");
    EXPECT_TRUE(shell.RunProgram(folder_ + "\\VIEWER.EXE", {}));
    EXPECT_EQ(output(), "1|Viewer.exe|");
    for (const std::string& target : {Path("Help.chm"), std::string("https://example.org/a")}) {
        EXPECT_TRUE(shell.Open(target));
        EXPECT_EQ(output(), "1|xdg-open|" + target + "|");
    }
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left behind";
    EXPECT_EQ(NumberOf(shell.RunProgram(Path("none"), {})), ENOENT);
    EXPECT_EQ(NumberOf(shell.Open(Path("none"))), ENOENT);
    MakeFile(Path("xdg-open"), "#!/bin/sh\nexit 3\n");
    EXPECT_EQ(NumberOf(shell.Open("https://example.org/a")), ECHILD) << "the opener gave up";
}

}  // namespace
}  // namespace kestrel::system
