#pragma once

#include <QWidget>

#include "commands/ImagingDialogs.h"

namespace kestrel::windows {

// The dialogs on the desktop, above the window that owns them.
class FrmImagingDialogs : public commands::ImagingDialogs {
  public:
    explicit FrmImagingDialogs(QWidget& owner) : owner_(owner) {}

    bool AdjustColors(imaging::ColorAdjustment& colors, const gdi::Surface& preview) override;
    std::optional<int> AskGamma() override;
    std::optional<gdi::Surface> AskGradient() override;

  private:
    QWidget& owner_;
};

}  // namespace kestrel::windows
