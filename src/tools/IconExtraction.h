#pragma once

#include <array>
#include <optional>
#include <string>

#include "formats/IconSource.h"
#include "platform/system/FileSystem.h"
#include "services/Application.h"
#include "services/Cdb.h"
#include "services/MessageBoxes.h"
#include "tools/IconGrid.h"

namespace kestrel::tools {

struct ExtractionServices {
    services::Application& application;
    services::DesktopDialogs& dialogs;
    services::MessageBoxes& boxes;
    system::FileSystem& files;
};

// What the user does to take one icon out of a file: the file, its icons, which of them is
// selected, and browsing for other files. Icons count from 0.
class IconExtraction {
  public:
    // Begins with this file; where it gives no icons there is nothing to select at first.
    IconExtraction(const ExtractionServices& services, const std::string& path);

    const std::string& SourcePath() const { return path_; }
    const IconGrid& Grid() const { return grid_; }
    // 0 also where there is no icon.
    int SelectedIndex() const { return selected_; }
    bool HasIcons() const { return grid_.Count() > 0; }
    // The title of the window, and the line that tells which icon is selected.
    std::string Title() const;
    const std::string& Info() const { return info_; }

    // What taking the icon would give, 32 x 32 over white; empty where it cannot be read. Lives
    // until other rows are asked for: those that are seen together are kept.
    const gdi::Surface& PictureOf(int icon);

    // Selects the icon at a point of the grid; false where there is none, and while the user
    // browses.
    bool SelectAt(int x, int y);
    void MoveSelection(GridMove move);

    // Lets the user choose a file, whose icons take the place of those shown; true then. A file
    // that gives none is told of and changes nothing.
    bool Browse(const services::OwnerWindow& owner);

    // The selected icon, 32 x 32. Fails with kDamagedPicture where none of its images can be
    // decoded.
    Result<formats::IconImage> SelectedIcon() const;

  private:
    struct Cell {
        int icon = -1;
        gdi::Surface pixels{0, 0};
    };

    Result<void> Open(const services::ChosenFile& file);
    void Select(int icon);
    bool ShowChosenFile(const services::OwnerWindow& owner);
    gdi::Surface Draw(int icon) const;

    ExtractionServices services_;
    std::string path_;
    std::string name_;
    std::optional<formats::IconSource> source_;
    IconGrid grid_{0};
    int selected_ = 0;
    bool busy_ = false;
    std::string info_;
    // Each icon has its place by its number: those that are seen together follow each other.
    std::array<Cell, IconGrid::kMostSeen> cells_{};
};

}  // namespace kestrel::tools
