#include "app/Startup.h"

#include <array>
#include <utility>

#include "document/ApplicationIcon.h"
#include "formats/IcoFile.h"
#include "i18n/Language.h"
#include "i18n/Messages.h"
#include "platform/system/LetterCase.h"
#include "platform/system/PathText.h"
#include "tools/TemporaryIcon.h"

namespace kestrel::app {

namespace {

using services::BoxButtons;
using services::BoxIcon;

void Refuse(services::MessageBoxes& boxes, BoxIcon icon, const i18n::Text& text,
            const i18n::Text& title) {
    boxes.Show(icon, BoxButtons::Ok, std::string(text.Now()), std::string(title.Now()));
}

// The folder is made on the first start, with the tray picture in it.
void PrepareWindowsFolder(const std::string& folder, system::FileSystem& files) {
    if (folder.empty()) return;
    const std::string trayIcon = folder + "/kestrel.ico";
    if (files.FileExists(trayIcon) || !files.MakeFolder(folder)) return;
    static_cast<void>(formats::WriteIcoCopy(files, document::ApplicationIcon(), trayIcon));
}

}  // namespace

bool CheckScreenSize(const StartupFacts& facts, services::MessageBoxes& boxes) {
    if (facts.screenHeight >= 480 && facts.screenWidth >= 640) return true;
    Refuse(boxes, BoxIcon::Critical, i18n::kScreenTooSmall, i18n::kErrorTitle);
    return false;
}

bool CheckColorDepth(const StartupFacts& facts, services::MessageBoxes& boxes) {
    if (facts.bitsPerPixel >= 9) return true;
    Refuse(boxes, BoxIcon::Critical, i18n::kTooFewColors, i18n::kErrorTitle);
    return false;
}

void RegisterIcoAssociation(system::Registry& registry, const std::string& applicationFolder) {
    std::string program = applicationFolder;
    if (!program.ends_with('\\') && !program.ends_with('/')) program += '\\';
    program += "KestrelIconEditor.exe";

    const std::array<std::array<std::string, 2>, 4> defaults = {{
        {".ico", "icofile"},
        {"icofile", "Windows Icon"},
        {"icofile\\DefaultIcon", "%1"},
        {"icofile\\Shell\\Open\\Command", program + " /open %1"},
    }};
    for (const auto& [key, value] : defaults) {
        static_cast<void>(registry.WriteValue(system::RegistryRoot::ClassesRoot, key, "", value));
    }
}

std::optional<ProcessValues> PrepareStart(const StartupFacts& facts,
                                          const StartupServices& services) {
    ProcessValues values;
    values.SystemLcidText = std::to_string(facts.systemLcid);
    i18n::SetUiLanguage(i18n::LanguageOfLocale(values.SystemLcidText));
    if (facts.anotherInstanceRuns) {
        Refuse(services.boxes, BoxIcon::Exclamation, i18n::kRunningText, i18n::kRunningTitle);
        return std::nullopt;
    }
    if (!CheckScreenSize(facts, services.boxes)) return std::nullopt;
    if (!CheckColorDepth(facts, services.boxes)) return std::nullopt;
    RegisterIcoAssociation(services.registry, facts.applicationFolder);
    values.WindowsFolder = facts.windowsDirectory;
    PrepareWindowsFolder(values.WindowsFolder, services.files);
    tools::RemoveLeftTemporaries(services.files, values.WindowsFolder);
    i18n::SetUiLanguage(settings::ReadSavedLanguage(services.settings));
    return values;
}

std::string PathOfCommandLine(std::string_view commandLine, system::FileSystem& files) {
    constexpr std::string_view kOpen = "/open ";
    if (!system::SameName(commandLine.substr(0, kOpen.size()), kOpen)) return {};
    const std::string typed(commandLine.substr(kOpen.size()));
    // Where two files differ in letter case alone, the one that was typed is meant.
    if (auto file = files.Find(typed); file && file->ends_with(system::FileTitleOf(typed)))
        return *std::move(file);
    const std::string proper = system::ProperCase(typed);
    return files.Find(proper).value_or(proper);
}

std::string PrintedFor(std::string_view commandLine, std::string_view version) {
    if (commandLine == "--help") return std::string(i18n::kUsage.Now());
    if (commandLine != "--version") return {};
    return std::string(i18n::kProgramName).append(" ").append(version).append("\n");
}

}  // namespace kestrel::app
