#include "tools/SystemInformation.h"

#include <gtest/gtest.h>

#include "tests/support/Services.h"

namespace kestrel::tools {
namespace {

using namespace std::string_literals;

TEST(SystemInformation, StartsTheFirstProgramOfItsPlaces) {
    constexpr char kNone[] = "System Information Is Unavailable At This Time";
    const std::string longest(1023, 'x');
    const struct {
        std::optional<std::string> path, folder;
        std::string installed, started;
    } kRows[] = {
        {"/a.exe\0b"s, "/m", "/a.exe /m\\MSINFO32.EXE hardinfo ", "/a.exe"},
        {"/a.exe", "/m", "/m\\MSINFO32.EXE hardinfo ", kNone},
        {{}, "/m", "/m\\MSINFO32.EXE hardinfo ", "/m\\MSINFO32.EXE"},
        {{}, "/n", "/n\\MSINFO32.EXE hardinfo ", kNone},
        {longest, {}, longest + " hardinfo ", longest},
        {longest + "x", {}, longest + "x hardinfo ", "hardinfo"},
        {{}, {}, "gnome-control-center xfce4-about ", "gnome-control-center info-overview"},
        {{}, {}, "", kNone},
    };
    for (const auto& row : kRows) {
        test::FakeServices given;
        given.files.contents["/m\\MSINFO32.EXE"] = {};
        given.shell.installed = row.installed;
        auto& values = given.registry.values;
        if (row.path) values["HKLM\\SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"]["PATH"] = *row.path;
        if (row.folder)
            values["HKLM\\SOFTWARE\\Microsoft\\Shared Tools Location"]["MSINFO"] = *row.folder;
        SystemInformation(given.registry, given.files, given.shell, given.boxes).Start();
        EXPECT_EQ(given.boxes.shown.empty() ? given.shell.started : given.boxes.shown[0].text,
                  row.started);
    }
}

}  // namespace
}  // namespace kestrel::tools
