#pragma once

#include "services/DesktopDialogs.h"

namespace kestrel::services {

// One caller's use of the desktop's dialogs. The functions return whether the user confirmed;
// `APIReturn` and `ExtendedError` tell more. A filter is a list of descriptions and patterns joined
// by '|', as in "All Files (*.*)|*.*"; a ':' ends its text, too.
class GCommonDialog {
  public:
    // Names that the dialogs return have fewer characters than this.
    static constexpr std::size_t kMaxFile = 260;

    explicit GCommonDialog(DesktopDialogs& desktop) : desktop_(desktop) {}

    // `Filename` is the initial name and becomes the chosen path, `FileTitle` its last part;
    // `ReadOnly` presets the read-only box and tells whether it was ticked; `flags` are more flags
    // and become those that the desktop reports. Unless the user confirms, `Filename`, `FileTitle`
    // and `Filter` become empty and `flags` 0.
    bool VBGetOpenFileName(std::string& Filename, std::string& FileTitle, bool FileMustExist,
                           bool MultiSelect, bool& ReadOnly, bool HideReadOnly, std::string& Filter,
                           int& FilterIndex, const std::string& InitDir,
                           const std::string& DlgTitle, const std::string& DefaultExt,
                           WindowHandle Owner, std::uint32_t& flags);
    bool VBGetSaveFileName(std::string& Filename, std::string& FileTitle, bool OverWritePrompt,
                           std::string& Filter, int& FilterIndex, const std::string& InitDir,
                           const std::string& DlgTitle, const std::string& DefaultExt,
                           WindowHandle Owner, std::uint32_t& flags);

    // The name to show for the file at a path; empty for a folder's path and a name too long.
    static std::string VBGetFileTitle(const std::string& sFIle);

    // `Color` is selected at first and becomes the chosen colour, or CLR_INVALID unless the user
    // confirms.
    bool VBChooseColor(gdi::COLORREF& Color, bool AnyColor, bool FullOpen, bool DisableFullOpen,
                       WindowHandle Owner);

    // The colour dialog's own row, system colours at first. Outside 0 to 15 reading gives
    // CLR_INVALID, and writing changes nothing.
    gdi::COLORREF CustomColor(int iValue);
    void SetCustomColor(int iValue, gdi::COLORREF color);

    // What the desktop's function returned, and why it was not confirmed (0: the user closed it).
    std::int32_t APIReturn() const { return apiReturn_; }
    std::int32_t ExtendedError() const { return extendedError_; }

  private:
    using FileFunction = std::int32_t (DesktopDialogs::*)(FileRecord& record);

    bool ChooseFile(FileFunction show, FileRecord& record, std::string& Filename,
                    std::string& FileTitle, std::string& Filter, int& FilterIndex,
                    std::uint32_t& flags);
    void ClearResult();
    bool NoteResult(std::int32_t returned);
    void FillCustomColors();

    DesktopDialogs& desktop_;
    std::int32_t apiReturn_ = 0;
    std::int32_t extendedError_ = 0;
    CustomColors customColors_{};
    bool customColorsFilled_ = false;
};

}  // namespace kestrel::services
