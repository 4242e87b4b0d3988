#include "commands/ShellCommands.h"

#include <utility>

#include "commands/ErrorBox.h"
#include "i18n/Language.h"
#include "i18n/Messages.h"
#include "platform/system/Folders.h"

namespace kestrel::commands {

namespace {

constexpr std::string_view kHomePage = "https://brinmoor.example/KestrelIconEditor";

std::string ProgramOf(Sibling sibling, const ProgramFolders& folders) {
    switch (sibling) {
        case Sibling::ScreenCapture:
            return folders.application + "/Quillet.exe";
        case Sibling::IconBrowser:
            return folders.windows + "/Varnel.exe";
        case Sibling::ClipboardViewer:
            break;
    }
    return folders.windows + "/Ormsby Extender.exe";
}

}  // namespace

ShellCommands::ShellCommands(const ShellServices& services, ProgramFolders folders)
    : services_(services), folders_(std::move(folders)) {}

// The help lies beside the program, or where an installation puts what is not a program.
std::string ShellCommands::HelpFile() const {
    const std::string page = "/help/" + std::string(i18n::UiLanguage()) + "/index.html";
    const std::string beside = folders_.application + page;
    const std::string installed = system::InstalledDataFolder(folders_.application) + page;
    return !services_.files.FileExists(beside) && services_.files.FileExists(installed) ? installed
                                                                                        : beside;
}

void ShellCommands::mnuHelp_Click() {
    const std::string file = HelpFile();
    if (!services_.help.ShowHelp(file, std::string(i18n::kHelpTitle.Now()))) {
        ShowError(services_.boxes, i18n::CannotOpenHelp(file));
    }
}

void ShellCommands::FollowLanguage() {
    services_.help.ChangePage(HelpFile(), std::string(i18n::kHelpTitle.Now()));
}

void ShellCommands::mnuHomePage_Click() {
    // The menu goes first: the opener may take a while.
    services_.application.ShowHourglass(true);
    services_.application.DoEvents();
    const bool opened = services_.shell.Open(std::string(kHomePage)).has_value();
    services_.application.ShowHourglass(false);
    if (!opened) ShowError(services_.boxes, i18n::CannotOpenHomePage(kHomePage));
}

void ShellCommands::StartSibling(Sibling program) {
    const std::string file = ProgramOf(program, folders_);
    if (!services_.shell.RunProgram(file, {})) {
        ShowError(services_.boxes, i18n::CannotStart(file));
    }
}

}  // namespace kestrel::commands
