#include "tools/SystemInformation.h"

#include <gtest/gtest.h>

#include "tests/support/Services.h"

namespace kestrel::tools {
namespace {

TEST(SystemInformation, StartsTheFirstProgramOfItsPlaces) {
    const std::string none = "System Information Is Unavailable At This Time";
    const std::string program = "/m\\MSINFO32.EXE", longest(1023, 'x');
    // The two values of the registry, '-' for none; what is installed; what is started or said.
    const std::string rows[][4] = {
        {std::string("/a\0b", 4), "/m", "/a hardinfo ", "/a"},
        {"/gone", "/m", program + " hardinfo ", none},
        {"-", "/m", program + " hardinfo ", program},
        {"-", "/n", "/n\\MSINFO32.EXE hardinfo ", none},
        {longest, "-", longest + " hardinfo ", longest},
        {longest + "x", "-", longest + "x hardinfo ", "hardinfo"},
        {"-", "-", "gnome-control-center xfce4-about ", "gnome-control-center info-overview"},
        {"-", "-", "", none},
    };
    for (const auto& [path, folder, installed, expected] : rows) {
        test::FakeServices given;
        given.files.contents[program] = {};
        given.shell.installed = installed;
        const std::string key = "HKLM\\SOFTWARE\\Microsoft\\Shared Tools";
        if (path != "-") given.registry.values[key + "\\MSINFO"]["PATH"] = path;
        if (folder != "-") given.registry.values[key + " Location"]["MSINFO"] = folder;
        SystemInformation(given.registry, given.files, given.shell, given.boxes).Start();
        for (const auto& box : given.boxes.shown)
            given.shell.started += box.text;
        EXPECT_EQ(given.shell.started, expected);
    }
}

}  // namespace
}  // namespace kestrel::tools
