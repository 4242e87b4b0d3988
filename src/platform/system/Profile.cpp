#include "platform/system/Profile.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/system/Characters.h"
#include "platform/system/IniText.h"
#include "platform/system/PathText.h"
#include "platform/system/SystemError.h"

namespace kestrel::system {
namespace {

constexpr std::size_t kMaxFile = 1U << 20U;
constexpr std::size_t kMaxValueCharacters = 2048;

Result<IniText> Load(FileSystem& files, const std::string& file) {
    const Result<std::vector<std::uint8_t>> bytes = files.ReadFile(file, kMaxFile);
    if (!bytes && bytes.error().number == ENOENT) return IniText();
    if (!bytes) return tl::unexpected(bytes.error());
    std::optional<IniText> ini = IniText::Parse(std::string(bytes->begin(), bytes->end()));
    if (!ini) return Fail(EBADMSG, "The settings file is damaged");
    return std::move(*ini);
}

Result<void> Store(FileSystem& files, const std::string& file, const IniText& ini) {
    const std::string text = ini.Text();
    if (text.size() > kMaxFile) return SystemFailure(EFBIG);
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    Result<void> stored = files.ReplaceFile(file, bytes);
    if (stored || stored.error().number != ENOENT) return stored;
    if (!files.MakeFolder(std::string(FolderOf(file)))) return stored;
    return files.ReplaceFile(file, bytes);
}

}  // namespace

std::string ReadProfileString(FileSystem& files, std::string_view section, std::string_view key,
                              std::string_view otherwise, const std::string& file) {
    const Result<IniText> ini = Load(files, file);
    if (!ini) return std::string(otherwise);
    const auto value = ini->Find(section, key);
    return std::string(value ? FirstCharacters(*value, kMaxValueCharacters) : otherwise);
}

Result<void> WriteProfileString(FileSystem& files, std::string_view section, std::string_view key,
                                std::string_view value, const std::string& file) {
    if (!IniText::CanHold(section, key, value)) return SystemFailure(EINVAL);
    Result<IniText> ini = Load(files, file);
    if (!ini) return tl::unexpected(ini.error());
    if (!ini->Set(section, key, value)) return {};
    return Store(files, file, *ini);
}

}  // namespace kestrel::system
