#pragma once

#include <string>

namespace kestrel::system {

// Questions to the environment: the program's start asks them and hands the answers on. All folders
// come without a trailing separator and may not exist yet.

// The folder of the running executable.
std::string ApplicationFolder();
// The executable's file name without extension.
std::string ExecutableName();
// The per-user data folder that stands for the Windows directory.
std::string WindowsDirectory();
// The per-user folder for settings, registry included.
std::string ConfigFolder();
// The user's own short-lived folder for locks (the runtime directory, else one below /tmp).
std::string RuntimeFolder();

// Creates the folder and those above it, for this user only where it creates them. False when it
// does not exist afterwards.
bool MakeFolder(const std::string& folder);

// Whether this user may create files in the folder.
bool CanWriteIn(const std::string& folder);

}  // namespace kestrel::system
