#include "commands/PrintCommands.h"

#include <utility>

#include "commands/ErrorBox.h"
#include "i18n/Messages.h"
#include "services/Hourglass.h"
#include "tools/PrintPictureToFitPage.h"
#include "tools/TemporaryIcon.h"

namespace kestrel::commands {

PrintCommands::PrintCommands(editing::Editor& editor, PrintParts parts)
    : editor_(editor), parts_(std::move(parts)) {}

void PrintCommands::mnuPrint_Click() {
    if (!parts_.printer.IsInstalled()) {
        ShowError(parts_.boxes, std::string(i18n::kNoPrinter.Now()), i18n::kProgramName);
        return;
    }
    const auto picPrint = SavedPicture(tools::kPrintedIcon);
    if (!picPrint) return ShowFailure(picPrint.error());
    const auto chosen = parts_.cdb.ShowPrinter();
    if (chosen) {
        Print(*chosen, *picPrint);
    } else if (chosen.error().number != kDialogCancelled) {
        ShowFailure(chosen.error());
    }
}

void PrintCommands::Print(const services::ChosenPrinter& chosen,
                          const gdi::IconPlanes& picPrint) const {
    const std::string& fileTitle = editor_.Document().FileTitle;
    const int jobs = chosen.printer.empty() ? 1 : chosen.copies;
    Result<void> printed;
    {
        const services::Hourglass hourglass(parts_.application);
        // A stopped printer takes all jobs.
        for (int job = 0; job < jobs && (printed || printed.error().number == kPrinterStopped);
             ++job) {
            tools::PrintPictureToFitPage(parts_.printer, picPrint);
            printed = parts_.printer.EndDocument(
                fileTitle.empty() ? std::string(document::kUntitled) : fileTitle);
        }
    }
    if (printed) return;
    if (printed.error().number != kPrinterStopped) return ShowFailure(printed.error());
    ShowError(parts_.boxes, i18n::PrinterIsStopped(chosen.printer), i18n::kProgramName);
}

void PrintCommands::TestIcon() {
    const auto picture = SavedPicture(tools::kPreviewedIcon);
    if (!picture) return ShowFailure(picture.error());
    parts_.dialogs.ShowStates(*picture);
}

// The icon as it comes back from the file that a save would write.
Result<gdi::IconPlanes> PrintCommands::SavedPicture(std::string_view fileName) const {
    return tools::ThroughTemporaryFile(parts_.files, parts_.folders.windows, fileName,
                                       editor_.Composited());
}

void PrintCommands::ShowFailure(const Error& error) const {
    const document::IconDocument& icon = editor_.Document();
    ShowError(parts_.boxes,
              i18n::CannotPrint(error.description, icon.IsUntitled() ? "" : icon.FileTitle));
}

}  // namespace kestrel::commands
