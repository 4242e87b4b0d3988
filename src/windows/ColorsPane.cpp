#include <array>

#include "i18n/Captions.h"
#include "windows/FrmIcoEd.h"
#include "windows/FrmMouseButtons.h"
#include "windows/widgets/PictureIcon.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

constexpr QPoint kPicPal(344, 184);
constexpr QRect kChkPal(344, 393, 208, 14);

// A button beside the colour wells.
struct PaletteButton {
    const char* name{};
    QRect place;
    // In the image list, as in the palette's menu.
    int picture = 0;
    i18n::Text hint;
    void (commands::MainCommands::*mouseUp)(){};
};

constexpr std::array kButtons{
    PaletteButton{"ImgLoadPalette", QRect(510, 157, 18, 18), 22, i18n::kLoadPalette,
                  &commands::MainCommands::ImgLoadPalette_Click},
    PaletteButton{"ImgSavePalette", QRect(530, 157, 18, 18), 23, i18n::kSavePalette,
                  &commands::MainCommands::ImgSavePalette_Click},
};

}  // namespace

void FrmIcoEd::LayOutPalette() {
    picPal_ = new widgets::SurfaceWidget(editor_.ColorPalette().PicPal(), this);
    picPal_->setObjectName("PicPal");
    picPal_->move(kPicPal);
    chkPal_ = new QCheckBox(this);
    chkPal_->setObjectName("ChkPal");
    chkPal_->setFont(widgets::FontOf(*this, widgets::kSmallFontPixels));
    chkPal_->setGeometry(kChkPal);
    // A click leaves the keyboard with the window, whose keys move the selection.
    chkPal_->setFocusPolicy(Qt::TabFocus);
    for (const PaletteButton& button : kButtons) {
        AddBox(button.name, button.place, widgets::PictureBox::Edge::Button,
               widgets::PictureIcon(pictures_, button.picture), button.hint);
    }
}

void FrmIcoEd::ConnectPalette() {
    picPal_->onMouseUp = [this](Qt::MouseButton button, QPoint at) {
        RunCommand(
            [&] { commands_.PaletteHandlers().PicPal_MouseUp(ToButton(button), at.x(), at.y()); });
    };
    picPal_->onDoubleClick = [this] {
        RunCommand([this] { commands_.PaletteHandlers().PicPal_DblClick(); });
    };
    picPal_->onMouseMove = [this](Qt::MouseButtons /*held*/, QPoint /*at*/) {
        SetStatusPanel(editing::StatusPanel::Hint, i18n::kSelfDefineColor.Now());
    };
    connect(chkPal_, &QCheckBox::toggled, this,
            [this](bool ticked) { editor_.ColorPalette().SetChkPal(ticked); });
    for (const PaletteButton& button : kButtons) {
        auto* box = findChild<widgets::PictureBox*>(button.name);
        box->onMouseUp = [this, &button](Qt::MouseButton pressed) {
            if (pressed == Qt::LeftButton) RunCommand([&] { (commands_.*button.mouseUp)(); });
        };
    }
}

void FrmIcoEd::RepaintPalette() {
    // While the editor is being built there is no widget yet.
    if (picPal_ != nullptr) picPal_->update();
}

void FrmIcoEd::ShowChkPal(bool ticked) {
    chkPal_->setChecked(ticked);
}

}  // namespace kestrel::windows
