#pragma once

#include "desktop/FileNameDialog.h"
#include "services/DesktopDialogs.h"

namespace kestrel::desktop {

// The dialogs of the desktop library, in the program's language. The colour dialog always shows
// its custom colours, so it neither opens nor closes that part, and every colour is a solid one.
class QtDesktopDialogs : public services::DesktopDialogs {
  public:
    std::int32_t GetOpenFileName(services::FileRecord& record) override;
    std::int32_t GetSaveFileName(services::FileRecord& record) override;
    std::int32_t ChooseColor(services::ColorRecord& record) override;
    std::int32_t ChoosePrinter(services::PrinterRecord& record) override;
    // Its dialogs do not fail.
    std::int32_t CommDlgExtendedError() const override { return 0; }
    gdi::COLORREF GetSysColor(int role) const override;

  private:
    std::int32_t ChooseFile(FileNameDialog::AcceptMode mode, services::FileRecord& record);

    // Where a file was chosen last; empty: where the library remembers from an earlier start.
    std::string lastFolder_;
};

}  // namespace kestrel::desktop
