#pragma once

#include "services/DesktopDialogs.h"
#include "desktop/FileNameDialog.h"

namespace kestrel::qt {

// The dialogs of the desktop library, in the program's language. The colour dialog always shows
// its custom colours, so it neither opens nor closes that part, and every colour is a solid one.
class QtDesktopDialogs : public dialogs::DesktopDialogs {
  public:
    std::int32_t GetOpenFileName(dialogs::FileRecord& record) override;
    std::int32_t GetSaveFileName(dialogs::FileRecord& record) override;
    std::int32_t ChooseColor(dialogs::ColorRecord& record) override;
    std::int32_t ChoosePrinter(dialogs::PrinterRecord& record) override;
    // Its dialogs do not fail.
    std::int32_t CommDlgExtendedError() const override { return 0; }
    gdi::COLORREF GetSysColor(int role) const override;

  private:
    std::int32_t ChooseFile(FileNameDialog::AcceptMode mode, dialogs::FileRecord& record);

    // Where a file was chosen last; empty: where the library remembers from an earlier start.
    std::string lastFolder_;
};

}  // namespace kestrel::qt
