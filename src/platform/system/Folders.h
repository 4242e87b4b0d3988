#pragma once

#include <string>

namespace kestrel::system {

// Questions to the environment: the program's start asks them and hands the answers on. All folders
// come without a trailing separator and may not exist yet.

// The folder of the running executable.
std::string ApplicationFolder();
// The executable's file name without extension.
std::string ExecutableName();
// Whether the user can keep files in the folder and nobody else can plant any there.
bool IsOwnFolder(const std::string& folder);
// Where an installation keeps what is not a program, seen from the folder of the executable; a
// program that was merely built has no such folder.
std::string InstalledDataFolder(const std::string& applicationFolder);
// The per-user data folder that stands for the Windows directory, and the one for settings,
// registry included. Empty for a user without a home, and where others could put files or links of
// their own in the program's way: nothing is kept then.
std::string WindowsDirectory();
std::string ConfigFolder();
// The desktop's list of recent documents in the user's data folder; empty as the ones above.
std::string RecentDocumentsFile();
// The user's folder for what one run leaves to the next; empty as the ones above.
std::string StateFolder();
// The user's own short-lived folder for locks (the runtime directory, else one below /tmp).
std::string RuntimeFolder();

}  // namespace kestrel::system
