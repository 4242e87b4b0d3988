#pragma once

#include <QDialog>
#include <QLabel>
#include <array>
#include <optional>

#include "imaging/Shades.h"
#include "windows/widgets/DigitBox.h"
#include "windows/widgets/PictureBox.h"
#include "windows/widgets/SurfaceWidget.h"
#include "windows/widgets/ValueBar.h"

namespace kestrel::windows {

// Lets the user choose the two colours and the direction of a gradient, and shows it. Modal.
class FrmShades : public QDialog {
  public:
    explicit FrmShades(QWidget* owner);
    // The text box with the focus tells its loss while there is still a window to tell.
    ~FrmShades() override { hide(); }

    // The gradient's pixels; none when the dialog is closed without OK.
    std::optional<gdi::Surface> Ask();

  private:
    // Red, green and blue of the start colour, then of the end colour.
    static constexpr std::size_t kLevels = 6;
    enum class End { Start, End };

    QWidget* NewColorGroup(End end);
    void AddLevel(std::size_t index, int value);
    QLayout* NewDirection();
    gdi::COLORREF ColorAt(End end) const;

    void Hsb_Change(std::size_t index, int value);
    void TxtColor_Change(std::size_t index);
    void ShowShade();

    imaging::Shades shades_;
    gdi::Surface picture_;
    widgets::SurfaceWidget* PicSml_;
    widgets::ValueBar* VsbDegrees_;
    QLabel* LblDegrees_;
    std::array<widgets::ValueBar*, kLevels> Hsb_{};
    std::array<widgets::DigitBox*, kLevels> TxtColor_{};
    // In the order of End.
    std::array<widgets::PictureBox*, 2> swatch_{};
};

}  // namespace kestrel::windows
