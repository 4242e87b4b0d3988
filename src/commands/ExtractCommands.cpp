#include "commands/ExtractCommands.h"

#include <utility>

#include "commands/ErrorBox.h"
#include "formats/UnreadableFile.h"
#include "i18n/Messages.h"

namespace kestrel::commands {

ExtractCommands::ExtractCommands(editing::Editor& editor, const tools::ExtractionServices& services,
                                 ExtractParts parts)
    : editor_(editor), services_(services), parts_(std::move(parts)) {}

void ExtractCommands::mnuExtract_Click() {
    if (!parts_.documents.PromptSaveChanges()) return;
    tools::IconExtraction extraction(
        services_, ProgramFile(parts_.folders, services_.files, "/system/Shell32.dll"));
    if (!parts_.dialogs.PickIcon(extraction)) return;
    const Result<formats::IconImage> icon = extraction.SelectedIcon();
    if (!icon && icon.error().number != formats::kDamagedPicture) {
        ShowError(services_.boxes, i18n::CannotOpenSource(extraction.SourcePath()));
        return;
    }
    editor_.ResetDocument();
    editor_.ReadIconIntoDocument(icon.value_or(formats::IconImage{}));
    editor_.Document().Modified = true;
}

}  // namespace kestrel::commands
