#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/controls/SmartMenuXP.h"
#include "platform/system/FileSystem.h"
#include "platform/system/Registry.h"
#include "services/MessageBoxes.h"
#include "services/RecentDocuments.h"

namespace kestrel::commands {

// The icon files used last, in the File menu, the latest first. The registry holds every change at
// once, so that a run that is killed loses nothing; its failures are silent. Slots count from 1 and
// have no gaps; paths are compared exactly.
class ModRecent {
  public:
    static constexpr int kSlots = 4;

    // `systemLcid` is the locale whose code page tells how wide a caption is.
    ModRecent(controls::SmartMenuXP& menu, system::Registry& registry, system::FileSystem& files,
              services::MessageBoxes& boxes, services::RecentDocuments& documents,
              std::uint32_t systemLcid);

    // Shows the list that the registry holds.
    void LoadRecentFiles();
    // Puts a file that was opened or saved in slot 1, the one after slot 4 is dropped, and tells
    // the desktop of it.
    void AddRecentFile(const std::string& path);
    // The path of a slot, empty for an empty one. A file that is gone is reported, leaves the list
    // and gives an empty path.
    std::string GetRecentFile(int slot);

  private:
    void ShowInMenu();
    void Change();
    void SaveRecentFiles();

    controls::SmartMenuXP& menu_;
    system::Registry& registry_;
    system::FileSystem& files_;
    services::MessageBoxes& boxes_;
    services::RecentDocuments& documents_;
    std::uint32_t systemLcid_;
    // Slot k is entry k - 1.
    std::vector<std::string> RecentFiles;
};

}  // namespace kestrel::commands
