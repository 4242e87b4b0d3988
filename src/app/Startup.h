#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/system/FileSystem.h"
#include "platform/system/Registry.h"
#include "services/MessageBoxes.h"
#include "settings/Settings.h"

namespace kestrel::app {

// What start-up finds on the machine. Width and height are in device pixels of the primary screen.
struct StartupFacts {
    std::uint32_t systemLcid = 0;
    bool anotherInstanceRuns = false;
    int screenWidth = 0;
    int screenHeight = 0;
    int bitsPerPixel = 0;
    // Where this program lies, and the folder that stands for the Windows directory.
    std::string applicationFolder;
    std::string windowsDirectory;
};

struct StartupServices {
    services::MessageBoxes& boxes;
    system::Registry& registry;
    system::FileSystem& files;
    settings::Settings& settings;
};

// What start-up learned, for the life of the process.
struct ProcessValues {
    // The system's locale identifier as decimal text.
    std::string SystemLcidText;
    std::string WindowsFolder;
};

// Everything before the main window: chooses the language, makes the checks, registers the icon
// association and the Windows folder. Nothing when the process is to end; the user has been told.
std::optional<ProcessValues> PrepareStart(const StartupFacts& facts,
                                          const StartupServices& services);

// At least 640 x 480 pixels; at least 9 bits per pixel. Say so themselves where it is not.
bool CheckScreenSize(const StartupFacts& facts, services::MessageBoxes& boxes);
bool CheckColorDepth(const StartupFacts& facts, services::MessageBoxes& boxes);

// Makes the program the opener of .ico files. A key that cannot be written is skipped.
void RegisterIcoAssociation(system::Registry& registry, const std::string& applicationFolder);

// The path of the file that a command line of "/open <path>" names; where it names none, what was
// typed in proper case. Empty for any other command line.
std::string PathOfCommandLine(std::string_view commandLine, system::FileSystem& files);

// What "--help" and "--version" print, each alone on the command line; empty for any other one.
std::string PrintedFor(std::string_view commandLine, std::string_view version);

}  // namespace kestrel::app
