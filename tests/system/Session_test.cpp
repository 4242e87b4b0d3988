#include <cerrno>
#include <cstdlib>
#include <utility>

#include "platform/system/DesktopShell.h"
#include "platform/system/Folders.h"
#include "platform/system/InstanceLock.h"
#include "platform/system/Locale.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::system {
namespace {

// Every test sets all that it depends on.
void SetVariable(const char* name, const std::string& text) {
    setenv(name, text.c_str(), 1);
}

TEST(Session, LocaleNamesGiveTheirIdentifiers) {
    const std::pair<const char*, std::uint32_t> names[] = {
        {"zh_CN.UTF-8", 2052}, {"ZH", 2052}, {"zh_TW.Big5", 1028}, {"zh_HK", 3076},
        {"de_DE@euro", 1031},  {"C", 1033},  {"xx_YY", 1033},      {"", 1033}};
    for (const auto& [name, lcid] : names)
        EXPECT_EQ(LcidOfLocaleName(name), lcid) << name;
    SetVariable("LC_ALL", "");
    SetVariable("LC_MESSAGES", "zh_CN.UTF-8");
    SetVariable("LANG", "de_DE.UTF-8");
    EXPECT_EQ(GetSystemDefaultLCID(), 2052U);
    SetVariable("LC_ALL", "fr_FR");
    EXPECT_EQ(GetSystemDefaultLCID(), 1036U);
}

TEST(Session, FoldersFollowTheEnvironment) {
    SetVariable("HOME", "/home/u/");
    SetVariable("XDG_DATA_HOME", "relative");
    SetVariable("XDG_CONFIG_HOME", "/config/");
    EXPECT_EQ(WindowsDirectory(), "/home/u/.local/share/KestrelIconEditor/Windows");
    EXPECT_EQ(ConfigFolder(), "/config/KestrelIconEditor");
    EXPECT_TRUE(std::filesystem::exists(ApplicationFolder() + "/" + ExecutableName()));
}

class SessionTest : public TemporaryFolder {};

TEST_F(SessionTest, RuntimeFolderIsTheUsersAlone) {
    SetVariable("XDG_RUNTIME_DIR", folder_ + "/");
    EXPECT_EQ(RuntimeFolder(), folder_);
    // Writable for others, or (where this test may bring it about) owned by another.
    if (chown(folder_.c_str(), 1234, getegid()) != 0) chmod(folder_.c_str(), 0777);
    std::filesystem::create_symlink("/", Path("link"));
    for (const std::string& unfit : {folder_, Path("link"), Path("none")}) {
        SetVariable("XDG_RUNTIME_DIR", unfit);
        EXPECT_EQ(RuntimeFolder(), "/tmp/KestrelIconEditor-" + std::to_string(geteuid()));
    }
    EXPECT_EQ(StatusOf(RuntimeFolder()).st_mode & 07777U, 0700U);
}

TEST_F(SessionTest, OneProcessHoldsTheLockUntilItEnds) {
    const auto isFree = [&](const char* display) {
        const pid_t child = fork();
        if (child == 0) _exit(InstanceLock::Take(folder_, "Kestrel", display) ? 1 : 0);
        return ExitStatus(child) == 1;
    };
    EXPECT_TRUE(isFree(":1"));
    auto lock = InstanceLock::Take(folder_, "Kestrel", ":1");
    ASSERT_TRUE(lock);
    const InstanceLock kept = std::move(*lock);
    lock.reset();
    EXPECT_FALSE(isFree(":1"));
    EXPECT_TRUE(isFree("/run/other"));
    EXPECT_TRUE(InstanceLock::Take(Path("none"), "Kestrel", ":1"));
}

class ShellTest : public TemporaryFolder {
  protected:
    ShellTest() { SetVariable("PATH", folder_ + ":/usr/bin:/bin"); }

    // A script that leaves its name and arguments in the file "out", after a 1 when it leads a
    // session of its own.
    void MakeProgram(const std::string& name) {
        MakeFile(Path(name), "#!/bin/sh\nread -r _ _ _ _ _ session _ </proc/$$/stat\ncd " +
                                 folder_ + "\nprintf '%s|' $((session == $$)) " + name +
                                 " \"$@\" >part\nmv part out\n");
        chmod(Path(name).c_str(), 0755);
    }
    std::string Output() {
        for (int i = 0; i < 500 && !std::filesystem::exists(Path("out")); ++i)
            usleep(10000);
        std::string output = ContentOf(Path("out"));
        std::filesystem::remove(Path("out"));
        return output;
    }

    DesktopShell shell_;
};

TEST_F(ShellTest, RunsProgramsApartFromThisProcess) {
    MakeProgram("Viewer.exe");
    ASSERT_TRUE(shell_.RunProgram("Viewer.exe", {"a b", "$c", ""}));
    EXPECT_EQ(Output(), "1|Viewer.exe|a b|$c||");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left behind";
    ASSERT_TRUE(shell_.RunProgram(folder_ + "\\VIEWER.EXE", {}));
    EXPECT_EQ(Output(), "1|Viewer.exe|");
    EXPECT_EQ(shell_.RunProgram(Path("none"), {}).error().number, ENOENT);
}

TEST_F(ShellTest, OpensFilesAndUrls) {
    MakeFile(Path("Help.chm"), "");
    MakeProgram("xdg-open");
    ASSERT_TRUE(shell_.Open(folder_ + "\\help.chm"));
    EXPECT_EQ(Output(), "1|xdg-open|" + Path("Help.chm") + "|");
    ASSERT_TRUE(shell_.Open("https://example.org/a"));
    EXPECT_EQ(Output(), "1|xdg-open|https://example.org/a|");
    EXPECT_EQ(shell_.Open(Path("none")).error().number, ENOENT);
    MakeFile(Path("xdg-open"), "#!/bin/sh\nexit 3\n");
    EXPECT_FALSE(shell_.Open("https://example.org/a")) << "the opener gave up";
}

}  // namespace
}  // namespace kestrel::system
