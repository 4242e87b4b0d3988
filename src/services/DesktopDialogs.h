#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/gdi/Color.h"

namespace kestrel::services {

// The desktop's name for a window that dialogs are modal to.
using WindowHandle = std::intptr_t;
inline constexpr WindowHandle kNoOwner = -1;

// Flags of the file dialogs.
inline constexpr std::uint32_t kReadOnly = 0x1;
inline constexpr std::uint32_t kOverwritePrompt = 0x2;
inline constexpr std::uint32_t kHideReadOnly = 0x4;
inline constexpr std::uint32_t kFileHook = 0x20;
inline constexpr std::uint32_t kFileTemplate = 0x40;
inline constexpr std::uint32_t kMultiSelect = 0x200;
// Only an existing folder, or an existing file, may be chosen.
inline constexpr std::uint32_t kPathMustExist = 0x800;
inline constexpr std::uint32_t kFileMustExist = 0x1000;

// Flags of the colour dialog.
inline constexpr std::uint32_t kInitialColor = 0x1;
inline constexpr std::uint32_t kFullOpen = 0x2;
inline constexpr std::uint32_t kPreventFullOpen = 0x4;
inline constexpr std::uint32_t kSolidColor = 0x80;
inline constexpr std::uint32_t kAnyColor = 0x100;

// What a dialog function returns when the user confirmed; everything else is a cancel or a failure.
inline constexpr std::int32_t kConfirmed = 1;

// What a file dialog is asked with and answers in.
struct FileRecord {
    WindowHandle owner = kNoOwner;
    // Descriptions and patterns in turn, each ended by a NUL; one more NUL ends the list.
    std::string filter;
    // Counts from 1; on return the one in use.
    int filterIndex = 1;
    // The initial name, and on return the chosen path. Several chosen files: their folder and
    // their names, each ended by a NUL.
    std::string file;
    std::string fileTitle;
    // Characters, with the NUL at the end, that `file` may have on return; 0 for any number. The
    // user is told that a choice is too long.
    std::size_t maxFile = 0;
    // Empty: the folder that was used last.
    std::string initialFolder;
    // Empty: the dialog's own.
    std::string title;
    // Added to a typed name that has none; with or without its dot.
    std::string defaultExtension;
    std::uint32_t flags = 0;
};

// The `filter` of a record from a list that these characters part.
std::string FilterOf(std::string list, std::string_view separators);

using CustomColors = std::array<gdi::COLORREF, 16>;

// What the colour dialog is asked with and answers in.
struct ColorRecord {
    WindowHandle owner = kNoOwner;
    gdi::COLORREF color = gdi::kBlack;
    // Changed only when the user confirms.
    CustomColors customColors{};
    std::uint32_t flags = 0;
};

// A printer without a name prints to the file.
struct ChosenPrinter {
    std::string printer;
    std::string file;
    int copies = 1;
};

// What the printer dialog is asked with and answers in.
struct PrinterRecord {
    WindowHandle owner = kNoOwner;
    ChosenPrinter choice;
};

// The desktop's standard dialogs. Each is modal to the owner's window, changes its record when the
// user confirms, and then returns kConfirmed.
class DesktopDialogs {
  public:
    virtual ~DesktopDialogs() = default;
    virtual std::int32_t GetOpenFileName(FileRecord& record) = 0;
    virtual std::int32_t GetSaveFileName(FileRecord& record) = 0;
    virtual std::int32_t ChooseColor(ColorRecord& record) = 0;
    virtual std::int32_t ChoosePrinter(PrinterRecord& record) = 0;
    // Why the last dialog was not confirmed; 0 when the user closed it.
    virtual std::int32_t CommDlgExtendedError() const = 0;
    // The desktop's colours by the numbers of their roles: 0 scroll bar, 1 desktop, 2 and 3 title
    // of active and other windows, 4 menu, 5 window, 6 frame, 7 to 9 text of menu, window and
    // title, 10 and 11 border of active and other windows, 12 work area, 13 and 14 marked ground
    // and text, 15 button.
    virtual gdi::COLORREF GetSysColor(int role) const = 0;
};

// A window that asks the user with these dialogs.
class OwnerWindow {
  public:
    virtual ~OwnerWindow() = default;
    virtual WindowHandle hWnd() const = 0;
};

}  // namespace kestrel::services
