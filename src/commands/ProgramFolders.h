#pragma once

#include <string>

#include "platform/system/FileSystem.h"
#include "platform/system/Folders.h"

namespace kestrel::commands {

// Where the files beside the program lie.
struct ProgramFolders {
    std::string application;
    std::string windows;
};

// A file that came with the program, named as in "/help/style.css": beside the program or, where it
// is not there, where an installation puts what is not a program.
inline std::string ProgramFile(const ProgramFolders& folders, system::FileSystem& files,
                               const std::string& name) {
    std::string beside = folders.application + name;
    std::string installed = system::InstalledDataFolder(folders.application) + name;
    return !files.FileExists(beside) && files.FileExists(installed) ? installed : beside;
}

}  // namespace kestrel::commands
