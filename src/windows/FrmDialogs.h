#pragma once

#include <QWidget>

#include "commands/Dialogs.h"
#include "services/Screen.h"

namespace kestrel::windows {

// The dialogs on the desktop, above the window that owns them.
class FrmDialogs : public commands::Dialogs {
  public:
    FrmDialogs(QWidget& owner, services::Screen& screen) : owner_(owner), screen_(screen) {}

    bool AdjustColors(imaging::ColorAdjustment& colors, const gdi::Surface& preview) override;
    std::optional<int> AskGamma() override;
    std::optional<gdi::Surface> AskGradient() override;
    std::optional<imaging::PasteFit> AskFit(gdi::Size picture) override;
    bool PickIcon(tools::IconExtraction& extraction) override;
    void ShowStates(const gdi::IconPlanes& icon) override;
    void ShowAbout(tools::SystemInformation& information) override;
    std::optional<gdi::Surface> PickSquare(gdi::Surface screen) override;

  private:
    QWidget& owner_;
    services::Screen& screen_;
};

}  // namespace kestrel::windows
