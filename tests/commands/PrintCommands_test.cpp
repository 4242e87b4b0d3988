#include "commands/PrintCommands.h"

#include "tests/support/EditorTest.h"
#include "tests/support/Services.h"

namespace kestrel::commands {
namespace {

using PrintCommandsTest = test::EditorTest;

TEST_F(PrintCommandsTest, ShowWhatASaveWouldWriteOrTellWhyNot) {
    test::FakeServices given;
    test::AnsweredDialogs dialogs;
    const test::OwnerOfDialogs owner;
    services::Cdb cdb(given.desktop, owner);
    gdi::IconPlanes dot(1, 1);
    dot.SetOpaque(0, 0, 0x123456);
    editor_.FloatSelection(dot);
    const std::string full = "Full.\r\n\r\nUnable to print Untitled.";
    // Without a name it prints to a file. '!' is a full disk.
    const std::string rows[][3] = {
        {"Laser", "/windows", "0,0 10x10 123456, Untitled 0,0 10x10 123456, Untitled "},
        {"", "/windows", "0,0 10x10 123456, Untitled "},
        {"Laser", "!/windows", full},
        {"", "!", "0,0 10x10 123456, Untitled "}};  // by memory
    for (const auto& [printer, folder, expected] : rows) {
        const bool diskIsFull = folder.starts_with('!');
        given.printer.printed.clear();
        given.boxes.shown.clear();
        dialogs.states.reset();
        given.desktop.printer = services::ChosenPrinter{printer, "/a.pdf", 2};
        given.files.writeError = diskIsFull ? Error{28, "Full"} : Error{};
        PrintCommands prints(editor_, {given.application,
                                       given.boxes,
                                       given.printer,
                                       given.files,
                                       cdb,
                                       dialogs,
                                       {"", folder.substr(diskIsFull ? 1 : 0)}});
        prints.mnuPrint_Click();
        prints.TestIcon();
        const auto& boxes = given.boxes.shown;
        EXPECT_EQ(boxes.empty() ? given.printer.printed : boxes[0].text, expected);
        EXPECT_EQ(boxes.size(), expected == full ? 2 : 0);
        EXPECT_EQ(dialogs.states && dialogs.states->SamePixels(editor_.Composited()),
                  expected != full);
        EXPECT_EQ(given.desktop.printers.back().choice.copies, 1) << "not as often as before";
        given.printer.installed = false;
        prints.mnuPrint_Click();
        EXPECT_EQ(boxes.back().text, "Can not print,please add a printer at first！");
        given.printer.installed = true;
    }
    EXPECT_TRUE(given.files.contents.empty() && icon_.IsTransparent(0, 0) && !OpaquePixels());
    EXPECT_TRUE(editor_.Selected().SelectionFloating());
}

}  // namespace
}  // namespace kestrel::commands
