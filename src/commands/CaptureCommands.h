#pragma once

#include "commands/Dialogs.h"
#include "commands/MainWindow.h"
#include "editing/Editor.h"
#include "services/MessageBoxes.h"
#include "services/MessageLoop.h"
#include "services/Screen.h"

namespace kestrel::commands {

// What the capture works with, besides the editor.
struct CaptureParts {
    MainWindow& window;
    Dialogs& dialogs;
    services::Screen& screen;
    services::MessageLoop& loop;
    services::MessageBoxes& boxes;
    MagnifierWindow& magnifier;
};

// The command that makes a square of the screen the icon.
class CaptureCommands {
  public:
    CaptureCommands(editing::Editor& editor, const CaptureParts& parts);

    // Takes the window off the screen and lets the user pick. All pixels of what was picked are
    // opaque. Where nothing was, nothing has changed; a picture that the desktop does not give is
    // told of.
    void Capture();

  private:
    // Fails when there is no picture of the screen.
    Result<void> Pick();
    // Take the window off the screen. Where programs see the screen they look whether it is gone.
    Result<gdi::Surface> PictureWithoutWindow();
    Result<gdi::Surface> UnseenPicture();
    void Take(const gdi::Surface& square);

    editing::Editor& editor_;
    CaptureParts parts_;
};

}  // namespace kestrel::commands
