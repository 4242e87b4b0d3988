#pragma once

#include "platform/Result.h"
#include "platform/gdi/Color.h"

namespace kestrel::dialogs {

// The desktop's standard dialog for a colour, modal to the main window and open in full. A dialog
// the user closes without choosing fails with kDialogCancelled.
class ColorDialog {
  public:
    virtual ~ColorDialog() = default;
    // Any colour may be chosen; `current` is selected at first.
    virtual Result<gdi::COLORREF> ShowColor(gdi::COLORREF current) = 0;
};

}  // namespace kestrel::dialogs
