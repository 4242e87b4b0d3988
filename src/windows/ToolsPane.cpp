#include <qdrawutil.h>

#include <QPainter>
#include <QToolTip>
#include <array>

#include "desktop/Pictures.h"
#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "resources/WellPictures.h"
#include "windows/FrmIcoEd.h"
#include "windows/FrmMouseButtons.h"
#include "windows/widgets/PictureBox.h"
#include "windows/widgets/PictureIcon.h"

namespace kestrel::windows {

namespace {

using commands::WellCommands;
using editing::Button;
using widgets::PictureBox;

constexpr QPoint kPicTools(458, 69);
constexpr QRect kPicForeColor(383, 158, 22, 16);
constexpr QRect kPicBackColor(408, 158, 22, 16);
// Boxes of the pen colours, both corners included.
constexpr QRect kForeIndicator(347, 160, 11, 11);
constexpr QRect kBackIndicator(365, 160, 11, 11);

// A control beside the colour wells, or one of them.
struct WellControl {
    const char* name{};
    QRect place;
    PictureBox::Edge edge{};
    // In the image list; 0 for none.
    int picture = 0;
    i18n::Text hint;
    void (WellCommands::*mouseUp)(Button button){};
};

constexpr std::array kWellControls{
    WellControl{"PicForeColor", kPicForeColor, PictureBox::Edge::Sunken, 0, i18n::kForegroundColor,
                &WellCommands::PicForeColor_MouseUp},
    WellControl{"PicBackColor", kPicBackColor, PictureBox::Edge::Sunken, 0, i18n::kBackgroundColor,
                &WellCommands::PicBackColor_MouseUp},
    WellControl{"ImgInterchangeColor", QRect(436, 157, 18, 18), PictureBox::Edge::Button,
                resources::kInterchangeColorsPicture, i18n::kExchangeColors,
                &WellCommands::ImgInterchangeColor_MouseUp},
    WellControl{"ImgDefaultColor", QRect(456, 157, 18, 18), PictureBox::Edge::Button,
                resources::kDefaultColorsPicture, i18n::kDefaultColors,
                &WellCommands::ImgDefaultColor_MouseUp},
    WellControl{"ImgTransparent", QRect(476, 157, 18, 18), PictureBox::Edge::Button,
                resources::kTransparentMarkerPicture, i18n::kTransparent,
                &WellCommands::ImgTransparent_MouseUp},
};

}  // namespace

void FrmIcoEd::LayOutTools() {
    picTools_ = new widgets::SurfaceWidget(editor_.Tools().PicTools(), this);
    picTools_->move(kPicTools);
    for (const WellControl& control : kWellControls) {
        AddBox(control.name, control.place, control.edge,
               widgets::PictureIcon(wellPictures_, control.picture), control.hint);
    }
}

void FrmIcoEd::AddBox(const char* name, const QRect& place, PictureBox::Edge edge,
                      const QIcon& picture, const i18n::Text& hint) {
    auto* box = new PictureBox(edge, this);
    box->setObjectName(name);
    box->setGeometry(place);
    box->Show({}, picture);
    box->onMouseMove = [this, hint] { SetStatusPanel(editing::StatusPanel::Hint, hint.Now()); };
}

void FrmIcoEd::ConnectTools() {
    picTools_->onMouseDown = [this](Qt::MouseButton button, QPoint at) {
        editor_.EndGesture();
        editor_.Tools().PicTools_MouseDown(ToButton(button), at.x(), at.y());
    };
    picTools_->onMouseMove = [this](Qt::MouseButtons held, QPoint at) {
        editor_.Tools().PicTools_MouseMove(ToHeldButtons(held), at.x(), at.y());
    };
    picTools_->onMouseUp = [this](Qt::MouseButton button, QPoint at) {
        editor_.Tools().PicTools_MouseUp(ToButton(button), at.x(), at.y());
    };
    for (const WellControl& control : kWellControls) {
        auto* box = findChild<PictureBox*>(control.name);
        box->onMouseUp = [this, &control](Qt::MouseButton button) {
            RunCommand([&] { (wellCommands_.*control.mouseUp)(ToButton(button)); });
        };
    }
}

void FrmIcoEd::RepaintTools() {
    // While the editor is being built there is no widget yet.
    if (picTools_ != nullptr) picTools_->update();
}

void FrmIcoEd::SetToolTipOfTools(std::string_view text) {
    const QString toolTip = desktop::ToText(text);
    if (toolTip == picTools_->toolTip()) return;
    picTools_->setToolTip(toolTip);
    // What is shown belongs to another tool.
    QToolTip::hideText();
}

void FrmIcoEd::ShowWell(Button button, gdi::COLORREF color, bool transparent) {
    auto* box = findChild<PictureBox*>(button == Button::Right ? "PicBackColor" : "PicForeColor");
    if (box == nullptr) return;
    if (transparent) {
        box->Show({}, widgets::PictureIcon(wellPictures_, resources::kTransparentMarkerPicture));
    } else {
        box->Show(desktop::ToColor(color), {});
    }
    update(button == Button::Right ? kBackIndicator : kForeIndicator);
}

void FrmIcoEd::PaintIndicators(QPainter& painter) {
    const auto paint = [&](const QRect& place, Button button) {
        painter.fillRect(place, desktop::ToColor(editor_.Wells().PenColor(button)));
        // Around it, so that a box in the window's colour is seen too.
        qDrawShadePanel(&painter, place.adjusted(-1, -1, 1, 1), palette(), true, 1);
    };
    paint(kForeIndicator, Button::Left);
    paint(kBackIndicator, Button::Right);
}

}  // namespace kestrel::windows
