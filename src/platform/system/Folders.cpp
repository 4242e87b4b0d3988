#include "platform/system/Folders.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <vector>

namespace kestrel::system {
namespace {

constexpr char kProgram[] = "KestrelIconEditor";
constexpr mode_t kOwnerOnly = 0700;

std::filesystem::path ExecutablePath() {
    std::error_code unreadable;
    std::string path = std::filesystem::read_symlink("/proc/self/exe", unreadable).string();
    // The kernel marks an executable that was replaced while it runs, as an update does.
    constexpr std::string_view kReplaced = " (deleted)";
    if (path.ends_with(kReplaced)) path.resize(path.size() - kReplaced.size());
    return path;
}

// An absolute path from the environment without trailing separators; empty when there is none.
std::string FolderFromEnvironment(const char* variable) {
    const char* text = std::getenv(variable);
    std::string folder = text == nullptr ? "" : text;
    if (!folder.starts_with('/')) return {};
    while (folder.size() > 1 && folder.ends_with('/')) {
        folder.pop_back();
    }
    return folder;
}

std::string HomeFromAccount() {
    constexpr std::size_t kRecordSize = 16384;
    std::vector<char> texts(kRecordSize);
    passwd record{};
    passwd* found = nullptr;
    getpwuid_r(getuid(), &record, texts.data(), texts.size(), &found);
    return found != nullptr && found->pw_dir[0] == '/' ? found->pw_dir : "";
}

// The user's, and nobody else may write to it, be it a folder or a link to one.
bool IsOurs(const std::string& folder) {
    struct stat link {};
    struct stat status {};
    return lstat(folder.c_str(), &link) == 0 && link.st_uid == geteuid() &&
           stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

// Whether a folder that is not there yet can be made where nobody else could have put another one.
bool WouldBeOurs(std::filesystem::path folder) {
    struct stat status {};
    while (lstat(folder.c_str(), &status) < 0) {
        if (!folder.has_relative_path()) return false;
        folder = folder.parent_path();
    }
    return IsOwnFolder(folder);
}

// The folder that this user's programs share; empty for a user without a home.
std::string SharedFolder(const char* variable, const char* belowHome) {
    const std::string folder = FolderFromEnvironment(variable);
    if (!folder.empty()) return folder;
    std::string home = FolderFromEnvironment("HOME");
    if (home.empty()) home = HomeFromAccount();
    return home.empty() ? "" : home + belowHome;
}

// Empty where nothing may be kept.
std::string Kept(const std::string& folder) {
    struct stat status {};
    const bool exists = lstat(folder.c_str(), &status) == 0;
    return (exists ? IsOurs(folder) : WouldBeOurs(folder)) ? folder : "";
}

std::string UserFolder(const char* variable, const char* belowHome) {
    const std::string parent = SharedFolder(variable, belowHome);
    return parent.empty() ? "" : Kept(parent + "/" + kProgram);
}

constexpr char kDataVariable[] = "XDG_DATA_HOME";
constexpr char kDataBelowHome[] = "/.local/share";

}  // namespace

std::string ApplicationFolder() {
    return ExecutablePath().parent_path().string();
}

std::string ExecutableName() {
    return ExecutablePath().stem().string();
}

// The group may be the user's own alone.
bool IsOwnFolder(const std::string& folder) {
    struct stat status {};
    return stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == geteuid() && (status.st_mode & S_IWOTH) == 0 &&
           access(folder.c_str(), W_OK | X_OK) == 0;
}

std::string InstalledDataFolder(const std::string& applicationFolder) {
    return applicationFolder + "/" KESTREL_DATA_FROM_PROGRAM;
}

std::string WindowsDirectory() {
    const std::string folder = UserFolder(kDataVariable, kDataBelowHome);
    return folder.empty() ? "" : folder + "/Windows";
}

std::string ConfigFolder() {
    return UserFolder("XDG_CONFIG_HOME", "/.config");
}

std::string RecentDocumentsFile() {
    const std::string shared = SharedFolder(kDataVariable, kDataBelowHome);
    const std::string folder = shared.empty() ? "" : Kept(shared);
    return folder.empty() ? "" : folder + "/recently-used.xbel";
}

std::string StateFolder() {
    return UserFolder("XDG_STATE_HOME", "/.local/state");
}

std::string RuntimeFolder() {
    std::string folder = FolderFromEnvironment("XDG_RUNTIME_DIR");
    if (!folder.empty() && IsOurs(folder)) return folder;
    folder = std::string("/tmp/") + kProgram + "-" + std::to_string(geteuid());
    mkdir(folder.c_str(), kOwnerOnly);
    return IsOurs(folder) ? folder : "";
}

}  // namespace kestrel::system
