#include "windows/frmDrawState.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "desktop/Pictures.h"
#include "desktop/Text.h"
#include "i18n/Captions.h"
#include "windows/FrmParts.h"
#include "windows/WindowColor.h"
#include "windows/widgets/AccessibleRole.h"
#include "windows/widgets/DevicePixels.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::windows {

namespace {

using desktop::ToText;

constexpr int kLeft = 25;
constexpr int kStep = 50;
constexpr int kLabelTop = 14;
constexpr QSize kLabel(50, 13);
constexpr int kIconTop = 30;
constexpr QSize kState(tools::kStateSize, tools::kStateSize);
constexpr int kSmallestFont = 8;
// Between two labels side by side.
constexpr int kBetweenStates = 4;

QPoint PlaceOf(std::size_t state, int top) {
    return {kLeft + kStep * static_cast<int>(state), top};
}

QImage ImageOf(const gdi::Surface& picture) {
    return desktop::ToImage(picture, picture.Bounds());
}

// Of the device's pixels those alone whose column and row add up to an even number.
void Dither(QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 1 - y % 2; x < picture.width(); x += 2)
            picture.setPixel(x, y, 0);
    }
}

// Text on nothing, as sharp as the device shows it.
QImage TextPicture(const QString& text, const QFont& font, QColor color, qreal ratio) {
    QImage picture(kLabel * ratio, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(QRect({}, kLabel), Qt::AlignLeft | Qt::AlignVCenter, text);
    return picture;
}

}  // namespace

frmDrawState::frmDrawState(QWidget* owner, gdi::IconPlanes icon)
    : QDialog(owner),
      icon_(std::move(icon)),
      picCut_(new widgets::SurfaceWidget(this)),
      CmdClose_(new QPushButton(this)) {
    widgets::DressDialog(*this, {});
    picCut_->setObjectName("picCut");
    widgets::SetRole(*picCut_, QAccessible::Graphic);
    picCut_->move(PlaceOf(tools::DrawStates().size() - 1, kIconTop));
    CmdClose_->setObjectName("CmdClose");
    CmdClose_->setDefault(true);
    connect(CmdClose_, &QPushButton::clicked, this, &QDialog::accept);
    DrawStates();
    ShowTexts();
    widgets::PlaceOnScreen(*this, size());
}

void frmDrawState::ShowTexts() {
    setWindowTitle(ToText(i18n::kStatesTitle.Now()));
    CmdClose_->setText(ToText(i18n::kClose.Now()));
    CmdClose_->adjustSize();
    // What is only painted has no name that a screen reader could find.
    QStringList labels;
    for (const tools::StateRow& state : tools::DrawStates())
        labels.append(ToText(state.label.Now()));
    setAccessibleDescription(labels.join(QStringLiteral(", ")));
    picCut_->setAccessibleName(labels.constLast());
    const int width = PlaceOf(tools::DrawStates().size(), 0).x() + kLeft;
    const int top = kIconTop + tools::kStateSize + kDialogMargin;
    CmdClose_->move(width - kLeft - CmdClose_->width(), top);
    setFixedSize(width, top + CmdClose_->height() + kDialogMargin);
    update();
}

void frmDrawState::DrawStates() {
    FollowWindowColor(*this);
    const auto color = [this](QPalette::ColorRole role) {
        return desktop::ToColorRef(palette().color(role));
    };
    colors_ = {.ground = color(QPalette::Window),
               .text = color(QPalette::WindowText),
               .marked = color(QPalette::Highlight),
               .window = color(QPalette::Base)};
    pictures_.clear();
    for (const tools::StateRow& state : tools::DrawStates())
        pictures_.push_back(tools::DrawState(state, icon_, colors_));
    picCut_->Show(pictures_.back());
    update();
}

bool frmDrawState::event(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) ShowTexts();
    if (event->type() == QEvent::ApplicationPaletteChange) DrawStates();
    return QDialog::event(event);
}

void frmDrawState::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setFont(LabelFont());
    for (std::size_t i = 0; i < pictures_.size(); ++i) {
        DrawLabel(painter, {PlaceOf(i, kLabelTop), kLabel}, tools::DrawStates()[i]);
        // The last one has a box of its own.
        if (i + 1 < pictures_.size())
            widgets::DrawSharp(painter, {PlaceOf(i, kIconTop), kState}, ImageOf(pictures_[i]));
    }
}

// The largest one with which no label reaches the next.
QFont frmDrawState::LabelFont() const {
    int pixels = widgets::kSmallFontPixels;
    const auto fits = [this](const tools::StateRow& state, int size) {
        const QFontMetrics metrics(widgets::FontOf(*this, size));
        return metrics.horizontalAdvance(ToText(state.label.Now())) <= kStep - kBetweenStates;
    };
    while (pixels > kSmallestFont && !std::ranges::all_of(tools::DrawStates(), [&](const auto& s) {
               return fits(s, pixels);
           }))
        --pixels;
    return widgets::FontOf(*this, pixels);
}

void frmDrawState::DrawLabel(QPainter& painter, QRect box, const tools::StateRow& state) const {
    for (const tools::Layer& layer : state.labelLayers(colors_)) {
        QImage picture = TextPicture(ToText(state.label.Now()), painter.font(),
                                     desktop::ToColor(layer.color), devicePixelRatioF());
        if (layer.dithered) Dither(picture);
        widgets::DrawUnscaled(painter, box.topLeft() + QPoint(layer.shift, layer.shift), picture);
    }
}

}  // namespace kestrel::windows
