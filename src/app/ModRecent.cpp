#include "app/ModRecent.h"

#include <algorithm>

#include "i18n/Messages.h"
#include "platform/system/CodePage.h"

namespace kestrel::app {

namespace {

using system::RegistryRoot;

constexpr std::string_view kKey = R"(Software\Brinmoor\KestrelIconEditor\Rfl)";
// Paths are read into a buffer of this many bytes, its terminator included; a longer value is none.
constexpr std::size_t kPathBuffer = 260;

std::string ValueName(int slot) {
    return std::to_string(slot) + ".";
}

std::string MenuKey(int slot) {
    return "mnuRecentFile" + std::to_string(slot);
}

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
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
                     system::FileSystem& files, dialogs::MessageBoxes& boxes,
                     std::uint32_t systemLcid)
    : menu_(menu), registry_(registry), files_(files), boxes_(boxes), systemLcid_(systemLcid) {}

void ModRecent::LoadRecentFiles() {
    if (!registry_.KeyExists(RegistryRoot::CurrentUser, kKey)) return;
    std::vector<std::string> names;
    for (int slot = 1; slot <= kSlots; ++slot) {
        names.push_back(ValueName(slot));
        const auto value = registry_.ReadValue(RegistryRoot::CurrentUser, kKey, names.back());
        const bool fits = value && value->size() < kPathBuffer;
        if (const std::string path = fits ? Trimmed(*value) : ""; !path.empty()) {
            RecentFiles.push_back(path);
        }
    }
    // A registry that cannot be written keeps the list of an earlier run.
    static_cast<void>(registry_.DeleteValues(RegistryRoot::CurrentUser, kKey, names));
    ShowInMenu();
}

void ModRecent::AddRecentFile(const std::string& path) {
    const auto known = std::find(RecentFiles.begin(), RecentFiles.end(), path);
    if (known != RecentFiles.end()) RecentFiles.erase(known);
    RecentFiles.insert(RecentFiles.begin(), path);
    if (RecentFiles.size() > kSlots) RecentFiles.pop_back();
    ShowInMenu();
}

std::string ModRecent::GetRecentFile(int slot) {
    if (slot < 1 || slot > static_cast<int>(RecentFiles.size())) return {};
    const auto entry = RecentFiles.begin() + (slot - 1);
    std::string path = *entry;
    if (files_.FileExists(path)) return path;
    boxes_.Show(dialogs::BoxIcon::Exclamation, dialogs::BoxButtons::Ok, i18n::CannotLocate(path),
                std::string(i18n::kErrorTitle.english));
    RecentFiles.erase(entry);
    ShowInMenu();
    return {};
}

void ModRecent::SaveRecentFiles() {
    for (int slot = 1; slot <= static_cast<int>(RecentFiles.size()); ++slot) {
        static_cast<void>(registry_.WriteValue(RegistryRoot::CurrentUser, kKey, ValueName(slot),
                                               RecentFiles[static_cast<std::size_t>(slot) - 1]));
    }
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

}  // namespace kestrel::app
