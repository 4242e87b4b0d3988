#include "platform/system/Profile.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/system/Characters.h"
#include "platform/system/PathText.h"
#include "platform/system/SystemError.h"

namespace kestrel::system {
namespace {

constexpr std::size_t kMaxFile = 1U << 20U;
constexpr std::size_t kMaxValueCharacters = 2048;
constexpr std::string_view kDamagedSuffix = ".damaged";

// Nothing for a file that is damaged; one that is out of reach is a failure instead.
Result<std::optional<IniText>> Load(FileSystem& files, const std::string& file) {
    const Result<std::vector<std::uint8_t>> bytes = files.ReadFile(file, kMaxFile);
    if (bytes) return IniText::Parse(std::string(bytes->begin(), bytes->end()));
    switch (bytes.error().number) {
        case ENOENT:
            return IniText();
        case EFBIG:
        case EISDIR:
        case EINVAL:
            return std::nullopt;
        default:
            return tl::unexpected(bytes.error());
    }
}

Result<void> Store(FileSystem& files, const std::string& file, const std::string& text) {
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    Result<FileIdentity> stored = files.ReplaceFile(file, bytes);
    if (!stored && stored.error().number == ENOENT &&
        files.MakeFolder(std::string(FolderOf(file)))) {
        stored = files.ReplaceFile(file, bytes);
    }
    if (!stored) return tl::unexpected(stored.error());
    return {};
}

}  // namespace

Result<IniText> ReadProfile(FileSystem& files, const std::string& file) {
    Result<std::optional<IniText>> loaded = Load(files, file);
    if (!loaded) return tl::unexpected(loaded.error());
    return std::move(*loaded).value_or(IniText());
}

Result<void> ChangeProfile(FileSystem& files, const std::string& file, const ProfileEdit& edit) {
    Result<std::optional<IniText>> loaded = Load(files, file);
    if (!loaded) return tl::unexpected(loaded.error());
    const bool damaged = !loaded->has_value();
    IniText ini = std::move(*loaded).value_or(IniText());
    if (!edit(ini)) return {};
    const std::string text = ini.Text();
    if (text.size() > kMaxFile) return SystemFailure(EFBIG);
    if (damaged) {
        Result<void> kept = files.RenameFile(file, file + std::string(kDamagedSuffix));
        if (!kept) return kept;
    }
    return Store(files, file, text);
}

std::string ReadProfileString(FileSystem& files, std::string_view section, std::string_view key,
                              std::string_view otherwise, const std::string& file) {
    const Result<IniText> ini = ReadProfile(files, file);
    if (!ini) return std::string(otherwise);
    const auto value = ini->Find(section, key);
    return std::string(value ? FirstCharacters(*value, kMaxValueCharacters) : otherwise);
}

Result<void> WriteProfileString(FileSystem& files, std::string_view section, std::string_view key,
                                std::string_view value, const std::string& file) {
    if (!IniText::CanHold(section, key, value)) return SystemFailure(EINVAL);
    return ChangeProfile(files, file, [&](IniText& ini) { return ini.Set(section, key, value); });
}

}  // namespace kestrel::system
