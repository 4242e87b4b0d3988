#include "services/GCommonDialog.h"

#include "platform/system/Characters.h"
#include "platform/system/PathText.h"

namespace kestrel::services {

namespace {

std::string UpToNul(const std::string& buffer) {
    return buffer.substr(0, buffer.find('\0'));
}

bool FitsBuffer(const std::string& name) {
    return system::CountCharacters(name) < GCommonDialog::kMaxFile;
}

constexpr std::uint32_t When(bool condition, std::uint32_t flag) {
    return condition ? flag : 0;
}

// Hooks and templates are code and data of a caller that this desktop cannot run.
constexpr std::uint32_t CallersFlags(std::uint32_t flags) {
    return flags & ~(kFileHook | kFileTemplate);
}

FileRecord NewRecord(const std::string& folder, const std::string& title,
                     const std::string& extension, WindowHandle owner) {
    FileRecord record;
    record.owner = owner;
    record.maxFile = GCommonDialog::kMaxFile;
    record.initialFolder = folder;
    record.title = title;
    record.defaultExtension = extension;
    return record;
}

bool IsCustomColor(int index) {
    return index >= 0 && index < static_cast<int>(CustomColors().size());
}

}  // namespace

bool GCommonDialog::VBGetOpenFileName(std::string& Filename, std::string& FileTitle,
                                      bool FileMustExist, bool MultiSelect, bool& ReadOnly,
                                      bool HideReadOnly, std::string& Filter, int& FilterIndex,
                                      const std::string& InitDir, const std::string& DlgTitle,
                                      const std::string& DefaultExt, WindowHandle Owner,
                                      std::uint32_t& flags) {
    FileRecord record = NewRecord(InitDir, DlgTitle, DefaultExt, Owner);
    record.flags = When(MultiSelect, kMultiSelect) | When(ReadOnly, kReadOnly) |
                   When(HideReadOnly, kHideReadOnly) | When(FileMustExist, kFileMustExist) |
                   CallersFlags(flags);
    if (!ChooseFile(&DesktopDialogs::GetOpenFileName, record, Filename, FileTitle, Filter,
                    FilterIndex, flags)) {
        return false;
    }
    ReadOnly = (flags & kReadOnly) != 0;
    return true;
}

bool GCommonDialog::VBGetSaveFileName(std::string& Filename, std::string& FileTitle,
                                      bool OverWritePrompt, std::string& Filter, int& FilterIndex,
                                      const std::string& InitDir, const std::string& DlgTitle,
                                      const std::string& DefaultExt, WindowHandle Owner,
                                      std::uint32_t& flags) {
    FileRecord record = NewRecord(InitDir, DlgTitle, DefaultExt, Owner);
    record.flags = When(OverWritePrompt, kOverwritePrompt) | kHideReadOnly | CallersFlags(flags);
    return ChooseFile(&DesktopDialogs::GetSaveFileName, record, Filename, FileTitle, Filter,
                      FilterIndex, flags);
}

bool GCommonDialog::ChooseFile(FileFunction show, FileRecord& record, std::string& Filename,
                               std::string& FileTitle, std::string& Filter, int& FilterIndex,
                               std::uint32_t& flags) {
    record.filter = FilterOf(Filter, "|:");
    record.filterIndex = FilterIndex;
    record.file = Filename;
    record.fileTitle = FileTitle;
    ClearResult();
    if (!NoteResult((desktop_.*show)(record))) {
        Filename.clear();
        FileTitle.clear();
        Filter.clear();
        flags = 0;
        return false;
    }
    Filename = UpToNul(record.file);
    FileTitle = UpToNul(record.fileTitle);
    FilterIndex = record.filterIndex;
    flags = record.flags;
    return true;
}

std::string GCommonDialog::VBGetFileTitle(const std::string& sFIle) {
    const std::string title(system::FileTitleOf(sFIle));
    return FitsBuffer(title) ? title : std::string();
}

bool GCommonDialog::VBChooseColor(gdi::COLORREF& Color, bool AnyColor, bool FullOpen,
                                  bool DisableFullOpen, WindowHandle Owner) {
    FillCustomColors();
    ColorRecord record;
    record.owner = Owner;
    record.color = Color;
    record.customColors = customColors_;
    record.flags = kInitialColor | (AnyColor ? kAnyColor : kSolidColor) |
                   When(FullOpen, kFullOpen) | When(DisableFullOpen, kPreventFullOpen);
    ClearResult();
    if (!NoteResult(desktop_.ChooseColor(record))) {
        Color = gdi::CLR_INVALID;
        return false;
    }
    Color = record.color;
    customColors_ = record.customColors;
    return true;
}

gdi::COLORREF GCommonDialog::CustomColor(int iValue) {
    FillCustomColors();
    return IsCustomColor(iValue) ? customColors_[static_cast<std::size_t>(iValue)]
                                 : gdi::CLR_INVALID;
}

void GCommonDialog::SetCustomColor(int iValue, gdi::COLORREF color) {
    FillCustomColors();
    if (IsCustomColor(iValue)) customColors_[static_cast<std::size_t>(iValue)] = color;
}

void GCommonDialog::ClearResult() {
    apiReturn_ = 0;
    extendedError_ = 0;
}

// Whether the user confirmed.
bool GCommonDialog::NoteResult(std::int32_t returned) {
    apiReturn_ = returned;
    const bool confirmed = returned == kConfirmed;
    if (!confirmed) extendedError_ = desktop_.CommDlgExtendedError();
    return confirmed;
}

void GCommonDialog::FillCustomColors() {
    if (customColorsFilled_) return;
    customColorsFilled_ = true;
    int role = 0;
    for (gdi::COLORREF& color : customColors_)
        color = desktop_.GetSysColor(role++);
}

}  // namespace kestrel::services
