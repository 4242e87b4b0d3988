#pragma once

#include "desktop/FileNameDialog.h"
#include "desktop/QtPrinter.h"
#include "services/DesktopDialogs.h"

namespace kestrel::desktop {

// The dialogs of the desktop library, in the program's language. The colour dialog always shows
// its custom colours, so it neither opens nor closes that part, and every colour is a solid one.
class QtDesktopDialogs : public services::DesktopDialogs {
  public:
    // What is wrong with a file name is told in `boxes`, which must outlive the dialogs.
    // The printer dialog tells `printer` what was chosen, which must outlive them, too.
    QtDesktopDialogs(services::MessageBoxes& boxes, QtPrinter& printer)
        : boxes_(boxes), printer_(printer) {}

    std::int32_t GetOpenFileName(services::FileRecord& record) override;
    std::int32_t GetSaveFileName(services::FileRecord& record) override;
    std::int32_t ChooseColor(services::ColorRecord& record) override;
    std::int32_t ChoosePrinter(services::PrinterRecord& record) override;
    // Its dialogs do not fail.
    std::int32_t CommDlgExtendedError() const override { return 0; }
    gdi::COLORREF GetSysColor(int role) const override;

  private:
    std::int32_t ChooseFile(services::FilePurpose purpose, services::FileRecord& record);

    services::MessageBoxes& boxes_;
    QtPrinter& printer_;
    // Where a file was chosen last; empty: where the library remembers from an earlier start.
    std::string lastFolder_;
};

}  // namespace kestrel::desktop
