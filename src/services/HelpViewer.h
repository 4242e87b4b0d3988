#pragma once

#include <string>

namespace kestrel::services {

// The program that shows help files, in a window of its own beside the editor's.
class HelpViewer {
  public:
    virtual ~HelpViewer() = default;

    // Shows an HTML file; the window that is open already changes to it and comes to the front.
    // False when it cannot be read.
    virtual bool ShowHelp(const std::string& file, const std::string& title) = 0;
    // Changes to another file where one is shown, and leaves the window where it is.
    virtual void ChangePage(const std::string& file, const std::string& title) = 0;
    virtual void Close() = 0;
};

}  // namespace kestrel::services
