#include "commands/PrintCommands.h"

#include "tests/support/EditorTest.h"
#include "tests/support/Services.h"

namespace kestrel::commands {
namespace {

using services::ChosenPrinter;

// A pixel floats over an empty icon.
class PrintCommandsTest : public test::EditorTest {
  protected:
    PrintCommandsTest() {
        gdi::IconPlanes dot(1, 1);
        dot.SetOpaque(0, 0, 0x123456);
        editor_.FloatSelection(dot);
    }
    PrintCommands Commands(const std::string& windowsFolder) {
        return {editor_,
                {given_.application,
                 given_.boxes,
                 given_.printer,
                 given_.files,
                 cdb_,
                 dialogs_,
                 {"/program", windowsFolder}}};
    }
    // The titles of what is printed, and the text of the box.
    std::string Print(const std::string& windowsFolder) {
        given_.printer.titles.clear();
        given_.boxes.shown.clear();
        Commands(windowsFolder).mnuPrint_Click();
        EXPECT_TRUE(given_.files.contents.empty());
        for (const auto& box : given_.boxes.shown)
            given_.printer.titles += box.text;
        return given_.printer.titles;
    }

    test::FakeServices given_;
    test::AnsweredDialogs dialogs_;
    test::OwnerOfDialogs owner_;
    services::Cdb cdb_{given_.desktop, owner_};
};

TEST_F(PrintCommandsTest, EndsWithOneMessageOnEveryPathAndLeavesTheDocument) {
    const document::IconDocument before = icon_;
    const struct {
        std::optional<ChosenPrinter> printer;
        Error writing, printing;
        const char* folder;
        std::string printed;
    } kRows[] = {
        {ChosenPrinter{"Laser", "", 3}, {}, {}, "/windows", "Untitled Untitled Untitled "},
        {ChosenPrinter{"", "/a.pdf", 3}, {}, {}, "/windows", "Untitled "},
        {std::nullopt, {}, {}, "/windows", ""},
        {ChosenPrinter{"Laser", "", 1},
         {28, "Full"},
         {},
         "/windows",
         "Full.\r\n\r\nUnable to print Untitled."},
        {ChosenPrinter{"Laser", "", 1}, {28, "Full"}, {}, "", "Untitled "},
        {ChosenPrinter{"Laser", "", 2},
         {},
         {5, "Jam"},
         "",
         "Untitled Jam.\r\n\r\nUnable to print Untitled."},
        {ChosenPrinter{"Laser", "", 2},
         {},
         {kPrinterStopped, ""},
         "",
         "Untitled Untitled The printer \"Laser\" is stopped.\r\n\r\n"
         "The icon waits in its queue until it is started again."},
    };
    for (const auto& row : kRows) {
        given_.desktop.printer = row.printer;
        given_.files.writeError = row.writing;
        given_.printer.error = row.printing;
        EXPECT_EQ(Print(row.folder), row.printed);
    }
    EXPECT_EQ(given_.printer.filled.at(0),
              (test::RecordingPrinter::Filled{{0, 0, 10, 10}, 0x123456}));
    EXPECT_EQ(given_.desktop.printers.at(1).choice.printer, "Laser");
    EXPECT_EQ(given_.desktop.printers.at(1).choice.copies, 1) << "not as often as the last icon";
    given_.printer.installed = false;
    EXPECT_EQ(Print("/windows"), "Can not print,please add a printer at first！");
    EXPECT_TRUE(icon_.Planes().SamePixels(before.Planes()) &&
                editor_.Selected().SelectionFloating());
    EXPECT_EQ(icon_.FileTitle + icon_.FilePath, "Untitled");
}

TEST_F(PrintCommandsTest, StatesAreShownOfWhatWouldBeSaved) {
    icon_.FilePath = icon_.FileTitle = "a.ico";
    PrintCommands prints = Commands("/windows");
    given_.files.writeError = {28, "Full"};
    prints.TestIcon();
    EXPECT_EQ(given_.boxes.shown.at(0).text, "Full.\r\n\r\nUnable to print a.ico");
    EXPECT_FALSE(dialogs_.states);
    given_.files.writeError = {};
    prints.TestIcon();
    EXPECT_TRUE(dialogs_.states->SamePixels(editor_.Composited()));
    EXPECT_TRUE(given_.files.contents.empty());
}

}  // namespace
}  // namespace kestrel::commands
