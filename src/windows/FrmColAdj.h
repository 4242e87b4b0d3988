#pragma once

#include <QDialog>
#include <array>

#include "imaging/ColorAdjustment.h"
#include "windows/widgets/SurfaceWidget.h"
#include "windows/widgets/ValueBar.h"

namespace kestrel::imaging {

// Shifts the brightness and the three channels of an icon's colours, and shows each change. Modal.
class FrmColAdj : public QDialog {
  public:
    // `preview` is the icon in actual size before any change.
    FrmColAdj(QWidget* owner, ColorAdjustment& colors, gdi::Surface preview);

  private:
    QLayout* NewColumn(AdjustmentBar bar);
    QLayout* NewCommands();
    void VsbChange(AdjustmentBar bar, int value);
    void CmdReset_Click();
    void ShowColors();

    ColorAdjustment& colors_;
    gdi::Surface picture_;
    qt::SurfaceWidget* PicShade_;
    // In the order of AdjustmentBar.
    std::array<qt::ValueBar*, kAdjustmentBars> vsb_{};
};

}  // namespace kestrel::imaging
