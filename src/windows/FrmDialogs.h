#pragma once

#include <QWidget>

#include "commands/Dialogs.h"

namespace kestrel::windows {

// The dialogs on the desktop, above the window that owns them.
class FrmDialogs : public commands::Dialogs {
  public:
    explicit FrmDialogs(QWidget& owner) : owner_(owner) {}

    bool AdjustColors(imaging::ColorAdjustment& colors, const gdi::Surface& preview) override;
    std::optional<int> AskGamma() override;
    std::optional<gdi::Surface> AskGradient() override;
    std::optional<imaging::PasteFit> AskFit(gdi::Size picture) override;
    bool PickIcon(tools::IconExtraction& extraction) override;
    void ShowAbout() override;

  private:
    QWidget& owner_;
};

}  // namespace kestrel::windows
