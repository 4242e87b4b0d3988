#include "commands/ShellCommands.h"

#include <array>
#include <utility>

#include "commands/ErrorBox.h"
#include "i18n/Language.h"
#include "i18n/Messages.h"

namespace kestrel::commands {

namespace {

constexpr std::string_view kHomePage = "https://brinmoor.example/KestrelIconEditor";

struct SiblingRow {
    std::string_view name;
    i18n::Text purpose;
    std::string ProgramFolders::*folder;
};

// In the order of Sibling.
constexpr std::array kSiblings{
    SiblingRow{"Quillet", i18n::kCapturesScreen, &ProgramFolders::application},
    SiblingRow{"Varnel", i18n::kBrowsesIcons, &ProgramFolders::windows},
    SiblingRow{"Ormsby Extender", i18n::kShowsClipboard, &ProgramFolders::windows}};

}  // namespace

ShellCommands::ShellCommands(const ShellServices& services, ProgramFolders folders,
                             Dialogs& dialogs)
    : services_(services),
      folders_(std::move(folders)),
      dialogs_(dialogs),
      information_(services.registry, services.files, services.shell, services.boxes) {}

std::string ShellCommands::HelpFile() const {
    return ProgramFile(folders_, services_.files,
                       "/help/" + std::string(i18n::UiLanguage()) + "/index.html");
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
    const auto& [name, purpose, folder] = kSiblings.at(static_cast<std::size_t>(program));
    const std::string file = (folders_.*folder + "/").append(name) + ".exe";
    if (!services_.shell.RunProgram(file, {})) {
        ShowError(services_.boxes, i18n::CannotStart(name, purpose, file));
    }
}

void ShellCommands::mnuAbout_Click() {
    dialogs_.ShowAbout(information_);
}

}  // namespace kestrel::commands
