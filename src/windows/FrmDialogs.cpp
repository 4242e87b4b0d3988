#include "windows/FrmDialogs.h"

#include <utility>

#include "windows/FrmClipData.h"
#include "windows/FrmColAdj.h"
#include "windows/FrmIcons.h"
#include "windows/FrmShades.h"
#include "windows/FrmSnap.h"
#include "windows/frmAbout.h"
#include "windows/frmDrawState.h"
#include "windows/frmGamma.h"

namespace kestrel::windows {

bool FrmDialogs::AdjustColors(imaging::ColorAdjustment& colors, const gdi::Surface& preview) {
    return FrmColAdj(&owner_, colors, preview).exec() == QDialog::Accepted;
}

std::optional<int> FrmDialogs::AskGamma() {
    return frmGamma(&owner_).Ask();
}

std::optional<gdi::Surface> FrmDialogs::AskGradient() {
    return FrmShades(&owner_).Ask();
}

std::optional<imaging::PasteFit> FrmDialogs::AskFit(gdi::Size picture) {
    return FrmClipData(&owner_, picture).Ask();
}

bool FrmDialogs::PickIcon(tools::IconExtraction& extraction) {
    return FrmIcons(&owner_, extraction).exec() == QDialog::Accepted;
}

void FrmDialogs::ShowStates(const gdi::IconPlanes& icon) {
    frmDrawState(&owner_, icon).exec();
}

std::optional<gdi::Surface> FrmDialogs::PickSquare(gdi::Surface screen) {
    return FrmSnap(screen_, std::move(screen)).Pick();
}

void FrmDialogs::ShowAbout(tools::SystemInformation& information) {
    frmAbout(&owner_, information).exec();
}

}  // namespace kestrel::windows
