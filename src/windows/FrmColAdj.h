#pragma once

#include <QDialog>
#include <array>

#include "imaging/ColorAdjustment.h"
#include "windows/widgets/SurfaceWidget.h"
#include "windows/widgets/ValueBar.h"

namespace kestrel::windows {

// Shifts the brightness and the three channels of an icon's colours, and shows each change. Modal.
class FrmColAdj : public QDialog {
  public:
    // `preview` is the icon in actual size before any change.
    FrmColAdj(QWidget* owner, imaging::ColorAdjustment& colors, gdi::Surface preview);

  private:
    QLayout* NewBarColumn(imaging::AdjustmentBar bar);
    QLayout* NewCommands();
    void VsbChange(imaging::AdjustmentBar bar, int value);
    void CmdReset_Click();
    void ShowColors();

    imaging::ColorAdjustment& colors_;
    gdi::Surface picture_;
    widgets::SurfaceWidget* PicShade_;
    // In the order of AdjustmentBar.
    std::array<widgets::ValueBar*, imaging::kAdjustmentBars> vsb_{};
};

}  // namespace kestrel::windows
