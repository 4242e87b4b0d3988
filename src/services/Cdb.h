#pragma once

#include <string>

#include "platform/Result.h"
#include "services/DesktopDialogs.h"

namespace kestrel::services {

// What a file dialog is asked with. The filter is a list of descriptions and patterns joined by
// '|', as in "Icon Files (*.ico)|*.ico"; its index counts from 1.
struct FileRequest {
    std::string title;
    std::string filter;
    int filterIndex = 1;
    // Added to a typed name that has none; with or without its dot.
    std::string defaultExtension;
    std::string fileName;
    std::uint32_t flags = 0;
};

struct ChosenFile {
    std::string path;
    std::string fileTitle;
};

// The main window's dialog control. A dialog that the user closes without choosing fails with
// kDialogCancelled, every other failure with the desktop's own number.
class Cdb {
  public:
    Cdb(DesktopDialogs& desktop, const OwnerWindow& owner);

    Result<ChosenFile> ShowOpen(const FileRequest& request);
    Result<ChosenFile> ShowSave(const FileRequest& request);
    // Open in full, with `current` selected; keeps the user's custom colours, white at first.
    Result<gdi::COLORREF> ShowColor(gdi::COLORREF current);
    // The printer that was chosen last is selected at first, for one copy.
    Result<ChosenPrinter> ShowPrinter();

  private:
    FileRecord RecordOf(const FileRequest& request) const;
    Result<ChosenFile> Answer(std::int32_t returned, const FileRecord& record) const;
    tl::unexpected<Error> Unconfirmed() const;

    DesktopDialogs& desktop_;
    const OwnerWindow& owner_;
    CustomColors customColors_{};
    ChosenPrinter printer_;
};

}  // namespace kestrel::services
