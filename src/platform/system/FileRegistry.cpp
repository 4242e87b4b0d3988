#include "platform/system/FileRegistry.h"

#include <cerrno>
#include <cstdint>
#include <utility>
#include <vector>

#include "platform/system/LetterCase.h"
#include "platform/system/LockFile.h"
#include "platform/system/PathText.h"
#include "platform/system/SystemError.h"

namespace kestrel::system {
namespace {

std::string_view RootName(RegistryRoot root) {
    switch (root) {
        case RegistryRoot::ClassesRoot:
            return "ClassesRoot";
        case RegistryRoot::CurrentUser:
            return "CurrentUser";
        case RegistryRoot::LocalMachine:
            break;
    }
    return "LocalMachine";
}

std::string FullPath(RegistryRoot root, std::string_view key) {
    std::string path(RootName(root));
    while (key.starts_with('\\')) {
        key.remove_prefix(1);
    }
    while (key.ends_with('\\')) {
        key.remove_suffix(1);
    }
    if (!key.empty()) path.append("\\").append(key);
    return path;
}

bool SetValue(RegistryKeys& keys, const std::string& path, std::string_view name,
              std::string_view text) {
    RegistryKey& key = keys[FoldCase(path)];
    if (key.path.empty()) key.path = path;
    const auto [place, added] = key.values.try_emplace(FoldCase(name));
    RegistryValue& value = place->second;
    if (added) value.name = name;
    if (!added && value.text == text) return false;
    value.text = text;
    return true;
}

bool EraseValue(RegistryKeys& keys, const std::string& path, std::string_view name) {
    const auto found = keys.find(FoldCase(path));
    return found != keys.end() && found->second.values.erase(FoldCase(name)) > 0;
}

}  // namespace

FileRegistry::FileRegistry(FileSystem& files, std::string path)
    : files_(files), path_(std::move(path)) {}

Result<RegistryKeys> FileRegistry::Load() {
    const Result<std::vector<std::uint8_t>> bytes = files_.ReadFile(path_, kMaxRegistryText);
    if (!bytes && bytes.error().number == ENOENT) return RegistryKeys{};
    if (!bytes) return tl::unexpected(bytes.error());
    std::optional<RegistryKeys> keys = ParseRegistry(std::string(bytes->begin(), bytes->end()));
    if (!keys) return Fail(EBADMSG, "The registry file is damaged");
    return std::move(*keys);
}

Result<void> FileRegistry::Store(const RegistryKeys& keys) {
    const std::string text = FormatRegistry(keys);
    if (text.size() > kMaxRegistryText) return SystemFailure(EFBIG);
    return files_.ReplaceFile(path_, std::vector<std::uint8_t>(text.begin(), text.end()));
}

Result<void> FileRegistry::Change(const Edit& edit) {
    // Most changes at a program's start change nothing: those need neither lock nor folder.
    Result<RegistryKeys> keys = Load();
    if (!keys) return tl::unexpected(keys.error());
    if (!edit(*keys)) return {};

    files_.MakeFolder(std::string(FolderOf(path_)));
    const Result<FileHandle> lock = LockFile(path_ + ".lock", lockPatience_);
    if (!lock) {
        // A session that was stopped in the middle of a change must not stop this one for good.
        if (lock.error().number == EWOULDBLOCK) lockPatience_ = {};
        return tl::unexpected(lock.error());
    }
    keys = Load();
    if (!keys) return tl::unexpected(keys.error());
    if (!edit(*keys)) return {};
    return Store(*keys);
}

std::optional<std::string> FileRegistry::ReadValue(RegistryRoot root, std::string_view key,
                                                   std::string_view name) {
    const Result<RegistryKeys> keys = Load();
    if (!keys) return std::nullopt;
    const auto found = keys->find(FoldCase(FullPath(root, key)));
    if (found == keys->end()) return std::nullopt;
    const auto value = found->second.values.find(FoldCase(name));
    if (value == found->second.values.end()) return std::nullopt;
    return value->second.text;
}

bool FileRegistry::KeyExists(RegistryRoot root, std::string_view key) {
    const Result<RegistryKeys> keys = Load();
    if (!keys) return false;
    const std::u32string path = FoldCase(FullPath(root, key));
    if (keys->contains(path)) return true;
    const std::u32string below = path + U'\\';
    const auto next = keys->lower_bound(below);
    return next != keys->end() && next->first.starts_with(below);
}

Result<void> FileRegistry::WriteValue(RegistryRoot root, std::string_view key,
                                      std::string_view name, std::string_view value) {
    return Change([path = FullPath(root, key), name, value](RegistryKeys& keys) {
        return SetValue(keys, path, name, value);
    });
}

Result<void> FileRegistry::ChangeValues(RegistryRoot root, std::string_view key,
                                        std::span<const NamedValue> values) {
    return Change([path = FullPath(root, key), values](RegistryKeys& keys) {
        bool changed = false;
        for (const NamedValue& value : values) {
            changed |= value.text ? SetValue(keys, path, value.name, *value.text)
                                  : EraseValue(keys, path, value.name);
        }
        return changed;
    });
}

}  // namespace kestrel::system
