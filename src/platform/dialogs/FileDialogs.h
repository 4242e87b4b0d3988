#pragma once

#include <string>

#include "platform/Result.h"

namespace kestrel::dialogs {

// What a file dialog is asked with. The filter is a list of description and pattern pairs joined by
// '|', as in "Icon Files (*.ico)|*.ico"; its index counts from 1.
struct FileRequest {
    std::string title;
    std::string filter;
    int filterIndex = 1;
    // Added to a typed name that has none; with or without its dot.
    std::string defaultExtension;
    std::string fileName;
    // Open: only an existing file may be chosen. Save: ask before a file is replaced, and only a
    // folder that exists may be chosen.
    bool fileMustExist = false;
    bool overwritePrompt = false;
    bool pathMustExist = false;
};

struct ChosenFile {
    std::string path;
    std::string fileTitle;
};

// The desktop's standard dialogs, modal to the main window. A dialog the user closes without
// choosing fails with kDialogCancelled.
class FileDialogs {
  public:
    virtual ~FileDialogs() = default;
    virtual Result<ChosenFile> ShowOpen(const FileRequest& request) = 0;
    virtual Result<ChosenFile> ShowSave(const FileRequest& request) = 0;
};

}  // namespace kestrel::dialogs
