#pragma once

#include <QWidget>

#include "commands/ImagingDialogs.h"

namespace kestrel::imaging {

// The dialogs on the desktop, above the window that owns them.
class FrmImagingDialogs : public ImagingDialogs {
  public:
    explicit FrmImagingDialogs(QWidget& owner) : owner_(owner) {}

    bool AdjustColors(ColorAdjustment& colors, const gdi::Surface& preview) override;
    std::optional<int> AskGamma() override;
    std::optional<gdi::Surface> AskGradient() override;

  private:
    QWidget& owner_;
};

}  // namespace kestrel::imaging
