#include "commands/DocumentCommands.h"

#include "commands/ErrorBox.h"
#include "formats/IcoFile.h"
#include "formats/IconFile.h"
#include "i18n/Messages.h"
#include "platform/system/PathText.h"

namespace kestrel::commands {

namespace {

using services::Answer;
using services::BoxButtons;
using services::BoxIcon;

services::FileRequest IconRequest(std::string_view title) {
    services::FileRequest request;
    request.title = title;
    request.filter = i18n::kIconFilter;
    request.defaultExtension = ".ico";
    return request;
}

// What the save dialog proposes. A file that held several icons is not proposed again.
std::string ProposedName(const document::IconDocument& document) {
    if (document.IsUntitled()) return "Untitled.ico";
    return document.MultipleIcons ? "*.ico" : document.FilePath;
}

std::string_view ReasonOf(const Error& error) {
    return i18n::ReasonOf(error.number, error.description);
}

}  // namespace

DocumentCommands::DocumentCommands(editing::Editor& editor, const DocumentParts& parts)
    : editor_(editor), document_(editor.Document()), parts_(parts) {}

bool DocumentCommands::PromptSaveChanges() {
    document_.SaveSucceeded = false;
    if (!document_.Modified) return true;
    switch (parts_.boxes.Show(BoxIcon::Question, BoxButtons::YesNoCancel,
                              std::string(i18n::kSaveChanges.Now()),
                              std::string(i18n::kProgramName))) {
        case Answer::Yes:
            SaveDocument(document_.IsUntitled() ? SaveMode::SaveAs : SaveMode::Save);
            return document_.SaveSucceeded;
        case Answer::No:
            document_.Modified = false;
            return true;
        default:
            return false;
    }
}

void DocumentCommands::mnuNew_Click() {
    if (PromptSaveChanges()) editor_.ResetDocument();
}

void DocumentCommands::mnuOpen_Click() {
    if (!PromptSaveChanges()) return;
    parts_.grid.EnableGrid(false);
    OpenChosenFile();
}

void DocumentCommands::OpenChosenFile() {
    services::FileRequest request = IconRequest(i18n::kOpenTitle.Now());
    request.filter += i18n::kCursorFilter.Now();
    request.flags = services::kFileMustExist | services::kHideReadOnly;
    const Result<services::ChosenFile> chosen = parts_.cdb.ShowOpen(request);
    if (!chosen) {
        parts_.grid.EnableGrid(true);
        return;
    }
    parts_.application.DoEvents();
    const Result<void> opened = OpenFile(chosen->path);
    if (opened) return;
    parts_.grid.EnableGrid(true);
    ShowError(parts_.boxes, i18n::CannotOpenChosen(chosen->fileTitle, ReasonOf(opened.error())));
}

void DocumentCommands::OpenNamed(const std::string& pathToOpen) {
    if (!PromptSaveChanges()) return;
    parts_.grid.EnableGrid(false);
    const Result<void> opened = OpenFile(pathToOpen);
    if (opened) return;
    parts_.grid.EnableGrid(true);
    ShowError(parts_.boxes,
              i18n::CannotOpenNamed(system::FileTitleOf(pathToOpen), ReasonOf(opened.error())));
}

void DocumentCommands::mnuRecent_Click(int slot) {
    const std::string pathToOpen = parts_.recent.GetRecentFile(slot);
    if (!pathToOpen.empty()) OpenNamed(pathToOpen);
}

// Fails, with nothing changed, when the file cannot be read or is no icon.
Result<void> DocumentCommands::OpenFile(const std::string& path) {
    const auto file = parts_.files.LoadFile(path, formats::kMaxIconFileBytes);
    if (!file) return tl::unexpected(file.error());
    const auto icon =
        formats::ReadBestImage(file->bytes, gdi::Size{gdi::kIconSize, gdi::kIconSize});
    if (!icon) return tl::unexpected(icon.error());

    editor_.ResetDocument();
    document_.FilePath = file->path;
    document_.FileTitle = system::NameOnDisk(file->path);
    document_.FileOnDisk = file->identity;
    editor_.ShowTitle();
    editor_.ReadIconIntoDocument(*icon);
    document_.MultipleIcons = formats::DetectMultipleIcons(file->bytes);
    parts_.recent.AddRecentFile(document_.FilePath);
    parts_.grid.StartTmr();
    return {};
}

void DocumentCommands::mnuSave_Click() {
    SaveDocument(SaveMode::Save);
}

void DocumentCommands::mnuSaveAs_Click() {
    SaveDocument(SaveMode::SaveAs);
}

void DocumentCommands::SaveDocument(SaveMode mode) {
    if (mode == SaveMode::SaveAs || document_.IsUntitled()) {
        SaveUnderNewName();
    } else {
        SaveInPlace();
    }
}

void DocumentCommands::SaveUnderNewName() {
    services::FileRequest request = IconRequest(i18n::kSaveAsTitle.Now());
    request.fileName = ProposedName(document_);
    request.flags = services::kOverwritePrompt | services::kHideReadOnly | services::kPathMustExist;
    const Result<services::ChosenFile> chosen = parts_.cdb.ShowSave(request);
    if (!chosen) {
        document_.SaveSucceeded = false;
        return;
    }
    parts_.application.DoEvents();
    WriteIcoFile(chosen->path);
}

void DocumentCommands::SaveInPlace() {
    // A failed save under another name has left that one.
    document_.FileTitle = system::NameOnDisk(document_.FilePath);
    editor_.ShowTitle();
    if (document_.MultipleIcons &&
        parts_.boxes.Show(BoxIcon::Information, BoxButtons::OkCancel,
                          i18n::SeveralIcons(document_.FileTitle),
                          std::string(i18n::kProgramName)) == Answer::Cancel) {
        SaveUnderNewName();
        return;
    }
    if (ChangedOutside() && parts_.boxes.Show(BoxIcon::Question, BoxButtons::YesNo,
                                              i18n::ChangedOutside(document_.FileTitle),
                                              std::string(i18n::kProgramName)) != Answer::Yes) {
        document_.SaveSucceeded = false;
        return;
    }
    WriteIcoFile(document_.FilePath);
}

// Whether another file, or another content, is now where this icon was opened or saved last.
bool DocumentCommands::ChangedOutside() {
    const auto now = parts_.files.Identify(document_.FilePath);
    return now && now != document_.FileOnDisk;
}

void DocumentCommands::WriteIcoFile(const std::string& path) {
    parts_.application.ShowHourglass(true);
    document_.FileTitle = system::NameOnDisk(path);
    editor_.ShowTitle();
    const auto written = formats::WriteIcoCopy(parts_.files, editor_.Composited(), path);
    parts_.application.ShowHourglass(false);
    document_.SaveSucceeded = written.has_value();
    if (!written) {
        const std::string_view named =
            document_.IsUntitled() ? std::string_view() : document_.FileTitle;
        ShowError(parts_.boxes, i18n::CannotSave(written.error().description, named));
        return;
    }
    // What floated over the icon is in the file; what is only marked stays so.
    if (editor_.Selected().SelectionFloating()) editor_.Selected().DropSelection();
    document_.FilePath = path;
    document_.FileOnDisk = *written;
    document_.Modified = false;
    document_.MultipleIcons = false;
    parts_.recent.AddRecentFile(path);
}

}  // namespace kestrel::commands
