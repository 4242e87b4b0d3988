#pragma once

#include <QCheckBox>
#include <QWidget>
#include <array>
#include <span>

#include "commands/Commands.h"
#include "editing/Editor.h"
#include "windows/CommandRunner.h"
#include "windows/NamedControls.h"
#include "windows/widgets/CellSurface.h"
#include "windows/widgets/PictureBox.h"

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
    // What mouse and keys do here.
    void Connect(commands::Commands& commands, CommandRunner& runner);
    void AddTo(NamedControls& controls);
    // Screen readers are told the colours in the language in force.
    void FollowLanguage();

    // The text is as large as on the desktop where it has room.
    void FitTexts();

    widgets::CellSurface& PicPal() { return picPal_; }
    QCheckBox& ChkPal() { return chkPal_; }
    std::span<widgets::PictureBox* const> Boxes() const { return boxes_; }
    // Of the boxes Tab leads to this one alone, and arrow keys to the others.
    void LetTabFind(std::size_t box);

    void ShowWell(editing::Button button, gdi::COLORREF color, bool transparent) override;
    void RepaintPalette() override;
    void ShowChkPal(bool ticked) override { chkPal_.setChecked(ticked); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    static constexpr std::size_t kBoxes = 7;

    void LayOutBoxes();
    void LayOutPalette();
    void NameWell(std::size_t well);

    Parts parts_;
    // The wells first, in the order of the mouse buttons; then the buttons.
    std::array<widgets::PictureBox*, kBoxes> boxes_{};
    // The colours of the pens, and what the wells are called without them.
    std::array<QColor, 2> pens_;
    std::array<bool, 2> transparent_{};
    std::array<QString, 2> wellNames_;
    widgets::CellSurface picPal_;
    QCheckBox chkPal_{this};
};

}  // namespace kestrel::windows
