#include "desktop/DesktopShell.h"

#include <sys/wait.h>

#include <cerrno>
#include <cstdlib>

#include "tests/system/TemporaryFolder.h"

namespace kestrel::desktop {
namespace {

using system::ContentOf;
using system::MakeFile;
using system::NumberOf;

class DesktopShellTest : public system::TemporaryFolder {};

TEST_F(DesktopShellTest, ProgramsRunApartFromThisProcess) {
    setenv("PATH", (folder_ + ":/usr/bin:/bin").c_str(), 1);
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
}  // namespace kestrel::desktop
