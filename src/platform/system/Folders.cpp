#include "platform/system/Folders.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
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

std::string HomeFolder() {
    std::string home = FolderFromEnvironment("HOME");
    if (home.empty()) home = HomeFromAccount();
    return home.empty() ? "/tmp" : home;
}

std::string UserFolder(const char* variable, const char* belowHome) {
    const std::string folder = FolderFromEnvironment(variable);
    return (folder.empty() ? HomeFolder() + belowHome : folder) + "/" + kProgram;
}

// A real folder, not a link, that belongs to the user and that nobody else may write to.
bool IsOurs(const std::string& folder) {
    struct stat status {};
    return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

bool IsFolder(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

std::string ApplicationFolder() {
    return ExecutablePath().parent_path().string();
}

std::string ExecutableName() {
    return ExecutablePath().stem().string();
}

std::string WindowsDirectory() {
    return UserFolder("XDG_DATA_HOME", "/.local/share") + "/Windows";
}

std::string ConfigFolder() {
    return UserFolder("XDG_CONFIG_HOME", "/.config");
}

std::string RuntimeFolder() {
    std::string folder = FolderFromEnvironment("XDG_RUNTIME_DIR");
    if (!folder.empty() && IsOurs(folder)) return folder;
    folder = std::string("/tmp/") + kProgram + "-" + std::to_string(geteuid());
    mkdir(folder.c_str(), kOwnerOnly);
    return IsOurs(folder) ? folder : "";
}

bool MakeFolder(const std::string& folder) {
    for (std::size_t end = 0; end < folder.size();) {
        end = std::min(folder.find('/', end + 1), folder.size());
        mkdir(folder.substr(0, end).c_str(), kOwnerOnly);
    }
    return IsFolder(folder);
}

bool CanWriteIn(const std::string& folder) {
    return ::access(folder.c_str(), W_OK | X_OK) == 0;
}

}  // namespace kestrel::system
