#include <cerrno>
#include <map>
#include <optional>

#include "platform/system/DesktopShell.h"
#include "platform/system/Folders.h"
#include "platform/system/InstanceLock.h"
#include "platform/system/Locale.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::system {
namespace {

// Sets environment variables, or removes those given no text, and puts them back afterwards.
class Environment {
  public:
    void Set(const std::string& name, const char* text) {
        const char* old = std::getenv(name.c_str());
        before_.try_emplace(name, old == nullptr ? std::nullopt : std::optional<std::string>(old));
        Put(name, text);
    }
    ~Environment() {
        for (const auto& [name, text] : before_) {
            Put(name, text ? text->c_str() : nullptr);
        }
    }

  private:
    static void Put(const std::string& name, const char* text) {
        text == nullptr ? unsetenv(name.c_str()) : setenv(name.c_str(), text, 1);
    }

    std::map<std::string, std::optional<std::string>> before_;
};

class SessionTest : public TemporaryFolder {
  protected:
    Environment environment_;
};

TEST_F(SessionTest, LocaleNamesGiveTheirIdentifiers) {
    const std::map<const char*, std::uint32_t> names = {
        {"zh_CN.UTF-8", 2052}, {"zh_cn", 2052}, {"ZH", 2052},         {"zh_TW.Big5", 1028},
        {"zh_HK", 3076},       {"zh_SG", 4100}, {"de_DE@euro", 1031}, {"C", 1033},
        {"xx_YY", 1033},       {"", 1033}};
    for (const auto& [name, lcid] : names) {
        EXPECT_EQ(LcidOfLocaleName(name), lcid) << name;
    }
    environment_.Set("LC_ALL", "");
    environment_.Set("LC_MESSAGES", "zh_CN.UTF-8");
    environment_.Set("LANG", "de_DE.UTF-8");
    EXPECT_EQ(GetSystemDefaultLCID(), 2052U);
    environment_.Set("LC_ALL", "fr_FR");
    EXPECT_EQ(GetSystemDefaultLCID(), 1036U);
}

TEST_F(SessionTest, DisplayIsNamedWithoutItsScreen) {
    const char* const cases[][3] = {{nullptr, ":1.0", ":1"},
                                    {"", ":10", ":10"},
                                    {"wayland-0", ":1", "wayland-0"},
                                    {"", "host.net:2.1", "host.net:2"},
                                    {nullptr, nullptr, ""}};
    for (const auto& [wayland, display, expected] : cases) {
        environment_.Set("WAYLAND_DISPLAY", wayland);
        environment_.Set("DISPLAY", display);
        EXPECT_EQ(CurrentDisplay(), expected);
    }
}

TEST_F(SessionTest, FoldersFollowTheEnvironment) {
    environment_.Set("HOME", "/home/u/");
    environment_.Set("XDG_DATA_HOME", "relative");
    environment_.Set("XDG_CONFIG_HOME", nullptr);
    EXPECT_EQ(WindowsDirectory(), "/home/u/.local/share/KestrelIconEditor/Windows");
    EXPECT_EQ(ConfigFolder(), "/home/u/.config/KestrelIconEditor");
    environment_.Set("XDG_DATA_HOME", "/data/");
    EXPECT_EQ(WindowsDirectory(), "/data/KestrelIconEditor/Windows");
    environment_.Set("HOME", nullptr);
    EXPECT_TRUE(ConfigFolder().starts_with('/'));
    EXPECT_EQ(ExecutableName(), "system_test");
    EXPECT_TRUE(std::filesystem::exists(ApplicationFolder() + "/system_test"));
}

TEST_F(SessionTest, RuntimeFolderIsTheUsersAlone) {
    environment_.Set("XDG_RUNTIME_DIR", (folder_ + "/").c_str());
    EXPECT_EQ(RuntimeFolder(), folder_);
    // Writable for others, or (where this test may bring it about) owned by another.
    if (chown(folder_.c_str(), 1234, getegid()) != 0) chmod(folder_.c_str(), 0777);
    std::filesystem::create_symlink("/", Path("link"));
    for (const std::string& unfit :
         std::vector<std::string>{folder_, Path("link"), Path("none"), "x", ""}) {
        environment_.Set("XDG_RUNTIME_DIR", unfit.c_str());
        EXPECT_EQ(RuntimeFolder(), "/tmp/KestrelIconEditor-" + std::to_string(geteuid()));
    }
    EXPECT_EQ(ModeOf(RuntimeFolder()), 0700U);
}

TEST_F(SessionTest, OneProcessHoldsTheLockUntilItEnds) {
    const auto take = [&](const char* display) {
        return InOtherProcess(
            [&] { return InstanceLock::Take(folder_, "Kestrel", display) ? 1 : 0; });
    };
    EXPECT_EQ(take(":1"), 1);
    auto lock = InstanceLock::Take(folder_, "Kestrel", ":1");
    ASSERT_TRUE(lock.has_value());
    const InstanceLock kept = std::move(*lock);
    lock.reset();
    EXPECT_EQ(take(":1"), 0);
    EXPECT_EQ(take("/run/other"), 1);
    for (const std::string& unusable : {std::string(), Path("none")}) {
        EXPECT_TRUE(InstanceLock::Take(unusable, "Kestrel", ":1").has_value());
    }
}

class ShellTest : public SessionTest {
  protected:
    // A script that leaves its name and arguments in the file "out", after a 1 when it leads a
    // session of its own.
    void MakeProgram(const std::string& name) {
        MakeFile(Path(name), "#!/bin/sh\nread -r _ _ _ _ _ session _ </proc/$$/stat\ncd " +
                                 folder_ + "\nprintf '%s|' $((session == $$)) " + name +
                                 " \"$@\" >part\n/bin/mv part out\n");
        chmod(Path(name).c_str(), 0755);
    }
    std::string Output() {
        for (int i = 0; i < 500 && !std::filesystem::exists(Path("out")); ++i) {
            usleep(10000);
        }
        std::string output = ContentOf(Path("out"));
        std::filesystem::remove(Path("out"));
        return output;
    }

    DesktopShell shell_;
};

TEST_F(ShellTest, RunsProgramsApartFromThisProcess) {
    environment_.Set("PATH", (folder_ + ":/usr/bin:/bin").c_str());
    MakeProgram("Viewer.exe");
    ASSERT_TRUE(shell_.RunProgram("Viewer.exe", {"a b", "$c", ""}).has_value());
    EXPECT_EQ(Output(), "1|Viewer.exe|a b|$c||");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left behind";
    EXPECT_EQ(errno, ECHILD);
    ASSERT_TRUE(shell_.RunProgram(folder_ + "\\VIEWER.EXE", {}).has_value());
    EXPECT_EQ(Output(), "1|Viewer.exe|");
}

TEST_F(ShellTest, ReportsWhyAProgramCannotStart) {
    environment_.Set("PATH", "/usr/bin:/bin");  // a folder one may not search gives EACCES
    MakeFile(Path("text"), "#!/bin/sh\n");
    MakeFile(Path("noise"), "\x01\x02");
    chmod(Path("noise").c_str(), 0755);
    const std::map<std::string, int> cases = {{"no-such-program-anywhere", ENOENT},
                                              {"", ENOENT},
                                              {Path("none"), ENOENT},
                                              {Path("text"), EACCES},
                                              {folder_, EACCES},
                                              {Path("noise"), ENOEXEC}};
    for (const auto& [program, number] : cases) {
        const Result<void> run = shell_.RunProgram(program, {});
        EXPECT_EQ(run ? 0 : run.error().number, number) << program;
    }
}

TEST_F(ShellTest, OpensThroughTheFirstOpenerThereIs) {
    environment_.Set("PATH", folder_.c_str());
    MakeFile(Path("Help.chm"), "");
    EXPECT_EQ(shell_.Open(Path("Help.chm")).error().number, ENOENT);
    MakeProgram("gio");
    ASSERT_TRUE(shell_.Open(folder_ + "\\help.chm").has_value());
    EXPECT_EQ(Output(), "1|gio|open|" + Path("Help.chm") + "|");
    MakeProgram("xdg-open");
    ASSERT_TRUE(shell_.Open("https://example.org/a").has_value());
    EXPECT_EQ(Output(), "1|xdg-open|https://example.org/a|");
    EXPECT_EQ(shell_.Open(Path("none")).error().number, ENOENT);
}

}  // namespace
}  // namespace kestrel::system
