#include "commands/ModRecent.h"

#include <algorithm>

#include "commands/ErrorBox.h"
#include "platform/system/Characters.h"
#include "platform/system/CodePage.h"

namespace kestrel::commands {

namespace {

using system::RegistryRoot;

constexpr std::string_view kKey = R"(Software\Brinmoor\KestrelIconEditor\Rfl)";
// Paths are read into a buffer of this many characters, its terminator included.
constexpr std::size_t kPathBuffer = 260;

std::string ValueName(int slot) {
    return std::to_string(slot) + ".";
}

std::string MenuKey(int slot) {
    return "mnuRecentFile" + std::to_string(slot);
}

// What does not fit the buffer is no path.
bool IsPath(const std::string& value) {
    return system::CountCharacters(value) < kPathBuffer;
}

// What the registry is to hold: a value for each path and none in the slots after them.
std::vector<system::NamedValue> Values(const std::vector<std::string>& paths) {
    std::vector<system::NamedValue> values;
    for (int slot = 1; slot <= ModRecent::kSlots; ++slot) {
        const auto entry = static_cast<std::size_t>(slot) - 1;
        values.push_back({ValueName(slot), std::nullopt});
        if (entry < paths.size()) values.back().text = paths[entry];
    }
    return values;
}

// The path followed by a blank for each of its wide characters, which keeps room for them.
std::string CaptionOf(const std::string& path, std::uint32_t systemLcid) {
    std::string caption;
    for (const char letter : path) {
        // A single one would underline what follows it.
        if (letter == '&') caption += '&';
        caption += letter;
    }
    const int blanks = system::DoubleByteCharacters(path, systemLcid);
    return caption.append(static_cast<std::size_t>(blanks), ' ');
}

}  // namespace

ModRecent::ModRecent(controls::SmartMenuXP& menu, system::Registry& registry,
                     system::FileSystem& files, services::MessageBoxes& boxes,
                     services::RecentDocuments& documents, std::uint32_t systemLcid)
    : menu_(menu),
      registry_(registry),
      files_(files),
      boxes_(boxes),
      documents_(documents),
      systemLcid_(systemLcid) {}

void ModRecent::LoadRecentFiles() {
    if (!registry_.KeyExists(RegistryRoot::CurrentUser, kKey)) return;
    for (int slot = 1; slot <= kSlots; ++slot) {
        const auto value = registry_.ReadValue(RegistryRoot::CurrentUser, kKey, ValueName(slot));
        if (!value || !IsPath(*value)) continue;
        const std::string_view path = system::Trimmed(*value);
        if (!path.empty()) RecentFiles.emplace_back(path);
    }
    ShowInMenu();
}

void ModRecent::AddRecentFile(const std::string& path) {
    const auto known = std::find(RecentFiles.begin(), RecentFiles.end(), path);
    if (known != RecentFiles.end()) RecentFiles.erase(known);
    RecentFiles.insert(RecentFiles.begin(), path);
    if (RecentFiles.size() > kSlots) RecentFiles.pop_back();
    Change();
    documents_.Add(path);
}

std::string ModRecent::GetRecentFile(int slot) {
    if (slot < 1 || slot > static_cast<int>(RecentFiles.size())) return {};
    const auto entry = RecentFiles.begin() + slot - 1;
    std::string path = *entry;
    if (files_.FileExists(path)) return path;
    RecentFiles.erase(entry);
    Change();
    ShowError(boxes_, i18n::CannotLocate(path), i18n::kErrorTitle.english);
    return {};
}

void ModRecent::Change() {
    ShowInMenu();
    SaveRecentFiles();
}

void ModRecent::SaveRecentFiles() {
    static_cast<void>(registry_.ChangeValues(RegistryRoot::CurrentUser, kKey, Values(RecentFiles)));
}

void ModRecent::ShowInMenu() {
    menu_.SetVisible(MenuKey(0), !RecentFiles.empty());
    for (int slot = 1; slot <= kSlots; ++slot) {
        const auto entry = static_cast<std::size_t>(slot) - 1;
        const bool shown = entry < RecentFiles.size();
        menu_.SetCaption(MenuKey(slot), shown ? CaptionOf(RecentFiles[entry], systemLcid_) : "");
        menu_.SetVisible(MenuKey(slot), shown);
    }
}

}  // namespace kestrel::commands
