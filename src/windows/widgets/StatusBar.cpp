#include "windows/widgets/StatusBar.h"

#include <array>

#include "desktop/Text.h"
#include "windows/widgets/AccessibleRole.h"

namespace kestrel::widgets {

namespace {

constexpr int kGap = 2;
// In pixels, in the order of StatusPanel; the first takes what the others leave.
constexpr std::array kPanelWidths{0, 84, 56, 56, 44};

}  // namespace

StatusBar::StatusBar(QWidget* parent) : QWidget(parent) {
    setObjectName("StatusBar");
    SetRole(*this, QAccessible::StatusBar);
    for (const int width : kPanelWidths) {
        auto* label = new QLabel(this);
        label->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
        label->setTextFormat(Qt::PlainText);
        label->setIndent(kGap);
        panels_.push_back({label, width, {}});
    }
}

void StatusBar::SetStatusPanel(editing::StatusPanel panel, std::string_view text) {
    Panel& changed = panels_.at(IndexOf(panel));
    if (changed.text == text) return;
    changed.text = text;
    changed.label->setText(desktop::ToText(text));
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
        fixed += panel.width + kGap;
    int x = 0;
    for (const Panel& panel : panels_) {
        const int panelWidth = panel.width != 0 ? panel.width : width() - fixed;
        panel.label->setGeometry(x, 0, panelWidth, height());
        x += panelWidth + kGap;
    }
}

}  // namespace kestrel::widgets
