#pragma once

#include <optional>

#include "imaging/ColorAdjustment.h"
#include "platform/gdi/Surface.h"

namespace kestrel::commands {

// What the image commands ask the user, each in a modal dialog.
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
};

}  // namespace kestrel::commands
