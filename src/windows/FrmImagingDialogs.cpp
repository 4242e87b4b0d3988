#include "windows/FrmImagingDialogs.h"

#include "windows/FrmColAdj.h"
#include "windows/FrmShades.h"
#include "windows/frmGamma.h"

namespace kestrel::windows {

bool FrmImagingDialogs::AdjustColors(imaging::ColorAdjustment& colors,
                                     const gdi::Surface& preview) {
    return FrmColAdj(&owner_, colors, preview).exec() == QDialog::Accepted;
}

std::optional<int> FrmImagingDialogs::AskGamma() {
    return frmGamma(&owner_).Ask();
}

std::optional<gdi::Surface> FrmImagingDialogs::AskGradient() {
    return FrmShades(&owner_).Ask();
}

}  // namespace kestrel::windows
