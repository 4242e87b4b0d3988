#include "windows/ColorsPane.h"

#include <qdrawutil.h>

#include <QPainter>
#include <algorithm>

#include "desktop/Pictures.h"
#include "i18n/Captions.h"
#include "i18n/Speech.h"
#include "resources/WellPictures.h"
#include "windows/FrmMouseButtons.h"
#include "windows/widgets/AccessibleCells.h"
#include "windows/widgets/DesktopFont.h"
#include "windows/widgets/PictureIcon.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

using commands::Commands;
using commands::WellCommands;
using editing::Button;
using editing::StatusPanel;
using widgets::PictureBox;

constexpr QSize kColorsSize(208, 252);
constexpr QRect kWells(0, 0, 208, 20);
// Boxes of the pen colours, both corners included.
constexpr std::array kIndicators{QRect(3, 4, 11, 11), QRect(21, 4, 11, 11)};
constexpr QPoint kPicPal(0, 25);
constexpr QRect kChkPal(0, 237, 208, 15);

constexpr widgets::CellLayout kPaletteCells{
    editing::Palette::kColumns, editing::Palette::kRows,
    QSize(editing::Palette::kCellSize, editing::Palette::kCellSize), 0,
    widgets::MarkGround::AnyColor};

enum class Pictures { Wells, Menus };

// A colour well or a button beside the wells.
struct ColorBox {
    const char* name{};
    QRect place;
    PictureBox::Edge edge{};
    Pictures list{};
    // In that list; 0 for none.
    int picture = 0;
    i18n::Text hint;
    void (*mouseUp)(Commands& commands, Button button){};
};

template <auto member>
void OnWells(Commands& commands, Button button) {
    (commands.wells.*member)(button);
}

template <auto member>
void OnLeft(Commands& commands, Button button) {
    if (button == Button::Left) (commands.palette.*member)();
}

// One row a line, however long.
// clang-format off
constexpr std::array kColorBoxes{
    ColorBox{"PicForeColor", QRect(39, 2, 22, 16), PictureBox::Edge::Sunken, Pictures::Wells, 0, i18n::kForegroundColor, OnWells<&WellCommands::PicForeColor_MouseUp>},
    ColorBox{"PicBackColor", QRect(64, 2, 22, 16), PictureBox::Edge::Sunken, Pictures::Wells, 0, i18n::kBackgroundColor, OnWells<&WellCommands::PicBackColor_MouseUp>},
    ColorBox{"ImgInterchangeColor", QRect(92, 1, 18, 18), PictureBox::Edge::Button, Pictures::Wells, resources::kInterchangeColorsPicture, i18n::kExchangeColors, OnWells<&WellCommands::ImgInterchangeColor_MouseUp>},
    ColorBox{"ImgDefaultColor", QRect(112, 1, 18, 18), PictureBox::Edge::Button, Pictures::Wells, resources::kDefaultColorsPicture, i18n::kDefaultColors, OnWells<&WellCommands::ImgDefaultColor_MouseUp>},
    ColorBox{"ImgTransparent", QRect(132, 1, 18, 18), PictureBox::Edge::Button, Pictures::Wells, resources::kTransparentMarkerPicture, i18n::kTransparent, OnWells<&WellCommands::ImgTransparent_MouseUp>},
    ColorBox{"ImgLoadPalette", QRect(166, 1, 18, 18), PictureBox::Edge::Button, Pictures::Menus, 22, i18n::kLoadPalette, OnLeft<&commands::PaletteCommands::ImgLoadPalette_Click>},
    ColorBox{"ImgSavePalette", QRect(186, 1, 18, 18), PictureBox::Edge::Button, Pictures::Menus, 23, i18n::kSavePalette, OnLeft<&commands::PaletteCommands::ImgSavePalette_Click>},
};
// clang-format on

}  // namespace

ColorsPane::ColorsPane(const Parts& parts, QWidget* parent)
    : QWidget(parent), parts_(parts), picPal_(kPaletteCells, this) {
    setFixedSize(kColorsSize);
    setMouseTracking(true);
    LayOutBoxes();
    LayOutPalette();
}

void ColorsPane::LayOutBoxes() {
    static_assert(kColorBoxes.size() == kBoxes);
    for (std::size_t i = 0; i < kBoxes; ++i) {
        const ColorBox& row = kColorBoxes[i];
        auto* box = new PictureBox(row.edge, this);
        box->setObjectName(row.name);
        box->setGeometry(row.place);
        box->Show({}, widgets::PictureIcon(
                          row.list == Pictures::Wells ? parts_.wellPictures : parts_.pictures,
                          row.picture));
        box->onMouseMove = [this, &row] {
            parts_.status.SetStatusPanel(StatusPanel::Hint, row.hint.Now());
        };
        box->setFocusPolicy(Qt::TabFocus);
        box->onArrow = [this, i](QPoint step) {
            const int last = static_cast<int>(kBoxes) - 1;
            const int next = std::clamp(static_cast<int>(i) + step.x() + step.y(), 0, last);
            LetTabFind(static_cast<std::size_t>(next));
            boxes_[static_cast<std::size_t>(next)]->setFocus(Qt::TabFocusReason);
        };
        boxes_[i] = box;
    }
}

void ColorsPane::LetTabFind(std::size_t box) {
    for (PictureBox* each : boxes_)
        each->setFocusPolicy(each == boxes_[box] ? Qt::TabFocus : Qt::NoFocus);
}

void ColorsPane::LayOutPalette() {
    picPal_.setObjectName("PicPal");
    constexpr std::string_view kEdgesAndColor = "|...........|";
    picPal_.DivideBy({kEdgesAndColor, kEdgesAndColor});
    picPal_.move(kPicPal);
    picPal_.onMouseMove = [this](Qt::MouseButtons /*held*/, QPoint /*at*/) {
        parts_.status.SetStatusPanel(StatusPanel::Hint, i18n::kSelfDefineColor.Now());
    };
    chkPal_.setObjectName("ChkPal");
    chkPal_.setFont(widgets::FontOf(*this, widgets::kSmallFontPixels));
    chkPal_.setGeometry(kChkPal);
    // A click leaves the keyboard with the window, whose keys move the selection.
    chkPal_.setFocusPolicy(Qt::TabFocus);
}

void ColorsPane::FitTexts() {
    constexpr int kBox = 24;  // with its distance from the text
    chkPal_.setFont(widgets::FittingFont(*this, widgets::kSmallFontPixels,
                                         kChkPal.size() - QSize(kBox, 0), {chkPal_.text()}));
}

void ColorsPane::Show(editing::Palette& palette) {
    picPal_.Show(palette.PicPal());
    picPal_.nameOf = [&palette](QPoint cell) {
        const int index = cell.y() * editing::Palette::kColumns + cell.x();
        return QString::fromStdString(
            i18n::ColorName(palette.Colors()[static_cast<std::size_t>(index)]));
    };
    connect(&chkPal_, &QCheckBox::toggled, this,
            [&palette](bool ticked) { palette.SetChkPal(ticked); });
}

void ColorsPane::RepaintPalette() {
    picPal_.update();
    widgets::TellAccessibleCells(picPal_);
}

void ColorsPane::Connect(Commands& commands, CommandRunner& runner) {
    for (std::size_t i = 0; i < kBoxes; ++i) {
        boxes_[i]->onMouseUp = [&commands, &runner, i](Qt::MouseButton button) {
            runner.Run([&] { kColorBoxes[i].mouseUp(commands, ToButton(button)); });
        };
    }
    picPal_.onMouseUp = [&commands, &runner](Qt::MouseButton button, QPoint at) {
        runner.Run([&] { commands.palette.PicPal_MouseUp(ToButton(button), at.x(), at.y()); });
    };
    picPal_.onDoubleClick = [&commands, &runner] {
        runner.Run([&] { commands.palette.PicPal_DblClick(); });
    };
}

void ColorsPane::AddTo(NamedControls& controls) {
    for (std::size_t i = 0; i < kBoxes; ++i) {
        if (i >= wellNames_.size()) {
            controls.AddToolTip(*boxes_[i]);
            continue;
        }
        controls.AddToolTip(kColorBoxes[i].name, [this, i](const QString& text) {
            boxes_[i]->setToolTip(text);
            wellNames_[i] = text.trimmed();
            NameWell(i);
        });
    }
    controls.AddToolTip("PicPal", [this](const QString& text) { picPal_.setToolTip(text); });
    controls.AddName(picPal_);
    controls.AddCaption("ChkPal", [this](const QString& text) { chkPal_.setText(text); });
}

void ColorsPane::FollowLanguage() {
    for (std::size_t well = 0; well < wellNames_.size(); ++well)
        NameWell(well);
    widgets::TellAccessibleCells(picPal_);
}

void ColorsPane::ShowWell(Button button, gdi::COLORREF color, bool transparent) {
    const std::size_t well = button == Button::Right ? 1 : 0;
    pens_[well] = desktop::ToColor(color);
    transparent_[well] = transparent;
    NameWell(well);
    update(kIndicators[well]);
    if (transparent) {
        boxes_[well]->Show(
            {}, widgets::PictureIcon(parts_.wellPictures, resources::kTransparentMarkerPicture));
    } else {
        boxes_[well]->Show(pens_[well], {});
    }
}

void ColorsPane::NameWell(std::size_t well) {
    const std::string color = i18n::ColorName(desktop::ToColorRef(pens_[well]), transparent_[well]);
    boxes_[well]->SetName(
        QString::fromStdString(i18n::Named(wellNames_[well].toStdString(), color)));
}

void ColorsPane::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    qDrawShadePanel(&painter, kWells, palette(), true, 1);
    for (std::size_t i = 0; i < pens_.size(); ++i) {
        painter.fillRect(kIndicators[i], pens_[i]);
        // Around it, so that a box in the window's colour is seen too.
        qDrawShadePanel(&painter, kIndicators[i].adjusted(-1, -1, 1, 1), palette(), true, 1);
    }
}

}  // namespace kestrel::windows
