#pragma once

#include <QCheckBox>
#include <QWidget>
#include <array>

#include "commands/Commands.h"
#include "editing/Editor.h"
#include "windows/CommandRunner.h"
#include "windows/NamedControls.h"
#include "windows/widgets/PictureBox.h"
#include "windows/widgets/SurfaceWidget.h"

namespace kestrel::windows {

// The colour wells, what each of them draws, the buttons beside them, and the palette below.
class ColorsPane : public QWidget, public editing::ColorsView {
  public:
    // The pictures of the wells and those of the menus, and where the hints are written. All
    // outlive the pane.
    struct Parts {
        const controls::ImageList& wellPictures;
        const controls::ImageList& pictures;
        editing::StatusView& status;
    };
    ColorsPane(const Parts& parts, QWidget* parent);

    // Shows the palette from now on; a tick of ChkPal changes it.
    void Show(editing::Palette& palette);
    // What the mouse does here.
    void Connect(commands::Commands& commands, CommandRunner& runner);
    void AddTo(NamedControls& controls);

    // The text is as large as on the desktop where it has room.
    void FitTexts();

    widgets::SurfaceWidget& PicPal() { return picPal_; }
    QCheckBox& ChkPal() { return chkPal_; }

    void ShowWell(editing::Button button, gdi::COLORREF color, bool transparent) override;
    void RepaintPalette() override { picPal_.update(); }
    void ShowChkPal(bool ticked) override { chkPal_.setChecked(ticked); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    static constexpr std::size_t kBoxes = 7;

    void LayOutBoxes();
    void LayOutPalette();

    Parts parts_;
    // The wells first, in the order of the mouse buttons; then the buttons.
    std::array<widgets::PictureBox*, kBoxes> boxes_{};
    // The colours of the pens.
    std::array<QColor, 2> pens_;
    widgets::SurfaceWidget picPal_{this};
    QCheckBox chkPal_{this};
};

}  // namespace kestrel::windows
