#pragma once

#include <string>

namespace kestrel::dialogs {

// The program that shows help files, in a window of its own beside the editor's.
class HelpViewer {
  public:
    virtual ~HelpViewer() = default;

    // Shows an HTML file; the window that is open already changes to it. False when it cannot be
    // read.
    virtual bool ShowHelp(const std::string& file, const std::string& title) = 0;
    virtual void Close() = 0;
};

}  // namespace kestrel::dialogs
