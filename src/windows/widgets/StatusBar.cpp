#include "windows/widgets/StatusBar.h"

#include <array>

#include "desktop/Text.h"
#include "windows/widgets/AccessibleRole.h"
#include "windows/widgets/DesktopFont.h"
#include "windows/widgets/WindowDesign.h"

namespace kestrel::widgets {

namespace {

constexpr int kPanelGap = 2;
// The width in pixels, and the widest text.
struct PanelRow {
    int width = 0;
    std::string_view widest;
};
// In the order of StatusPanel; the first takes what the others leave.
constexpr std::array kPanels{PanelRow{0, ""}, PanelRow{84, "Transparent"}, PanelRow{56, "32 , 32"},
                             PanelRow{56, "32 , 32"}, PanelRow{44, "1000:1"}};

}  // namespace

StatusBar::StatusBar(QWidget* parent) : QWidget(parent) {
    setObjectName("StatusBar");
    SetRole(*this, QAccessible::StatusBar);
    for (const PanelRow& row : kPanels) {
        auto* label = new QLabel(this);
        label->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
        label->setTextFormat(Qt::PlainText);
        label->setIndent(kPanelGap);
        panels_.push_back({label, row.width, desktop::ToText(row.widest), {}});
    }
}

void StatusBar::SetStatusPanel(editing::StatusPanel panel, std::string_view text) {
    Panel& changed = panels_.at(IndexOf(panel));
    if (changed.text == text) return;
    changed.text = text;
    changed.label->setText(desktop::ToText(text));
}

void StatusBar::FitTexts() {
    // The frame, and the indent of the text.
    constexpr int kFrame = 2;
    QFont font = parentWidget()->font();
    font.setPixelSize(AsOnDesktop(kDesignedText));
    for (const Panel& panel : panels_) {
        const QSize room(panel.width - 2 * (kFrame + kPanelGap), height() - kFrame);
        const QStringList texts = panel.width == 0 ? QStringList() : QStringList{panel.widest};
        const QFont fitting = FittingFont(*this, kSmallFontPixels, room, texts);
        if (fitting.pixelSize() < font.pixelSize()) font = fitting;
    }
    setFont(font);
}

std::string StatusBar::Text(editing::StatusPanel panel) const {
    return panels_.at(IndexOf(panel)).text;
}

void StatusBar::Clear() {
    using enum editing::StatusPanel;
    for (const editing::StatusPanel panel : {Hint, Pixel, Cell, DragSize})
        SetStatusPanel(panel, {});
}

void StatusBar::resizeEvent(QResizeEvent* /*event*/) {
    int fixed = 0;
    for (const Panel& panel : panels_)
        fixed += panel.width + kPanelGap;
    int x = 0;
    for (const Panel& panel : panels_) {
        const int panelWidth = panel.width != 0 ? panel.width : width() - fixed;
        panel.label->setGeometry(x, 0, panelWidth, height());
        x += panelWidth + kPanelGap;
    }
}

}  // namespace kestrel::widgets
