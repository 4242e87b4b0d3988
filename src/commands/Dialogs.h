#pragma once

#include <optional>

#include "imaging/ColorAdjustment.h"
#include "imaging/PasteFit.h"
#include "platform/gdi/Surface.h"
#include "tools/IconExtraction.h"
#include "tools/SystemInformation.h"

namespace kestrel::commands {

// What the commands ask and tell the user in dialogs of the program's own, all of them modal.
class Dialogs {
  public:
    virtual ~Dialogs() = default;
    // Lets the user adjust the colours; `preview` is the icon in actual size before that. False
    // when the dialog was cancelled.
    virtual bool AdjustColors(imaging::ColorAdjustment& colors, const gdi::Surface& preview) = 0;
    // The gamma factor times 100, 0 to 9999; none when cancelled.
    virtual std::optional<int> AskGamma() = 0;
    // The pixels of the gradient; none when cancelled.
    virtual std::optional<gdi::Surface> AskGradient() = 0;
    // How a picture that is larger than the icon is pasted; none when cancelled.
    virtual std::optional<imaging::PasteFit> AskFit(gdi::Size picture) = 0;
    // Lets the user select an icon, also in other files; true when it is to be taken.
    virtual bool PickIcon(tools::IconExtraction& extraction) = 0;
    // Shows the icon in the states that desktops draw icons in.
    virtual void ShowStates(const gdi::IconPlanes& icon) = 0;
    // The system information begins with a button of the box.
    virtual void ShowAbout(tools::SystemInformation& information) = 0;
    // Lets the user pick a square as large as an icon out of a picture of the screen, which covers
    // the screen meanwhile; none when the user leaves it.
    virtual std::optional<gdi::Surface> PickSquare(gdi::Surface screen) = 0;
};

}  // namespace kestrel::commands
