#include "desktop/QtShell.h"

#include <unistd.h>

#include <QtTest/QTest>

#include "tests/system/TemporaryFolder.h"

namespace kestrel::desktop {
namespace {

class QtShellTest : public system::TemporaryFolder {
  protected:
    // A program, first on PATH, that leaves in the file "out" what it prints.
    void MakeScript(const char* name, const std::string& text) {
        system::MakeFile(Path(name),
                         "#!/bin/sh\ncd " + folder_ + "\nexec >part\n" + text + "\nmv part out\n");
        chmod(Path(name).c_str(), 0755);
        qputenv("PATH", (folder_ + ":/usr/bin:/bin").c_str());
    }
    std::string Output() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return std::filesystem::exists(Path("out")); }));
        std::filesystem::rename(Path("out"), Path("read"));
        return system::ContentOf(Path("read"));
    }
};

TEST_F(QtShellTest, StartsProgramsApartAndTellsWhatDidNotStart) {
    QtShell shell;
    const std::string tell =
        "read -r _ _ _ _ _ session _ </proc/$$/stat\nprintf '%s|' ${0##*/} "
        "\"$@\" $((session != " +
        std::to_string(getsid(0)) + ")) $(readlink /proc/self/fd/0)";
    MakeScript("Viewer.exe", tell);
    EXPECT_TRUE(shell.RunProgram("Viewer.exe", {"a b", "$c", ""}));
    EXPECT_EQ(Output(), "Viewer.exe|a b|$c||1|/dev/null|");
    EXPECT_TRUE(shell.RunProgram(folder_ + "\\VIEWER.EXE", {}));
    EXPECT_EQ(Output(), "Viewer.exe|1|/dev/null|");
    EXPECT_FALSE(shell.RunProgram(Path("none"), {}));
    MakeScript("xdg-open", tell);
    EXPECT_TRUE(shell.Open("https://example.org/a?b=%20"));
    EXPECT_EQ(Output(), "xdg-open|https://example.org/a?b=%20|1|/dev/null|");
    MakeScript("xdg-open", "sleep 1; echo late");
    EXPECT_TRUE(shell.Open("https://example.org/a")) << "it may have become the browser";
    EXPECT_EQ(Output(), "late\n");
    MakeScript("xdg-open", "exit 3");
    EXPECT_FALSE(shell.Open("https://example.org/a"));
    qputenv("PATH", "");
    EXPECT_FALSE(shell.Open("https://example.org/a")) << "no opener at all";
}

}  // namespace
}  // namespace kestrel::desktop
